#include "base/Fault.hpp"

#include <gtest/gtest.h>

#include <csignal>

namespace kestrelfen {
namespace {

TEST(FaultDeathTest, aFaultSaysWhatItIsAndAborts) {
    EXPECT_EXIT(fault("the kettle is dry"), testing::KilledBySignal(SIGABRT),
                "kestrelfen: fault: the kettle is dry");
}

} // namespace
} // namespace kestrelfen
