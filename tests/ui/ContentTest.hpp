#pragma once

#include "support/EngineHarness.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

/// A test of what a view shows and does, over the engine on a fake machine.
class ContentTest : public testing::Test, public EngineHarness {
  protected:
    /// Starts, if need be, and begins a break now.
    void beginBreak() {
        engine().start();
        engine().beginBreak(now());
        settle();
        forget();
    }

    /// A long break, with `every` breaks to the cycle.
    void beginLongBreak(std::int64_t every = 2) {
        prefer("longBreakEvery", every);
        engine().start();
        for (std::int64_t index = 1; index < every; ++index) {
            engine().beginBreak(now());
            engine().completeBreak(now());
        }
        beginBreak();
    }

    /// Goes on to a warning with `left` seconds to the break.
    void enterWarning(double left) {
        start();
        platform.clock.set(*engine().nextBreakAt() - left);
        tick();
        forget();
    }

    /// The time passes, and the engine sees it.
    void wait(double seconds) {
        pass(seconds);
        tick();
        forget();
    }

    void setQuota(std::string_view key, std::int64_t limit) { prefer(key, limit); }
};

} // namespace kestrelfen
