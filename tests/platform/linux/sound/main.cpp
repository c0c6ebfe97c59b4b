#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    // A sound server that another display names may not leak in.
    qunsetenv("DISPLAY");
    const QCoreApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
