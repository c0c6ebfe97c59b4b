#include <QGuiApplication>
#include <QQuickWindow>
#include <gtest/gtest.h>

namespace {

/// A view that complains has a fault that nobody would see otherwise.
void failOnComplaint(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    if (type != QtDebugMsg && type != QtInfoMsg && message.contains(QStringLiteral("qrc:"))) {
        ADD_FAILURE() << message.toStdString();
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argumentCount, arguments);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argumentCount, arguments);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(failOnComplaint);
    return RUN_ALL_TESTS();
}
