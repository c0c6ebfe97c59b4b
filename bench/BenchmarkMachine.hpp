#pragma once

#include "platform/fake/FakePlatform.hpp"
#include "platform/posix/JsonPreferences.hpp"
#include "platform/posix/PosixCalendar.hpp"
#include "simulator/SimulatedProgram.hpp"
#include "support/TemporaryFolder.hpp"

#include <array>
#include <memory>
#include <string_view>

namespace kestrelfen {

/// The program without a screen, on a machine whose clock is moved by hand. One thread.
class BenchmarkMachine {
  public:
    /// Whether calendar and preferences are those by hand or those that a person's run has.
    enum class Ports { byHand, real };
    enum class Moment { working, warning, onBreak, paused, away };

    static constexpr std::array allPorts{Ports::byHand, Ports::real};
    static constexpr std::array allMoments{Moment::working, Moment::warning, Moment::onBreak, Moment::paused,
                                           Moment::away};
    static std::string_view name(Ports ports);
    static std::string_view name(Moment moment);

    /// Runs at `moment`, with nothing due for its next seconds and nothing left to do.
    BenchmarkMachine(Ports ports, Moment moment);

    BreakEngine& engine() { return program_->engine(); }
    Calendar& calendar() { return ports_.calendar; }
    Preferences& preferences() { return ports_.preferences; }

    /// A tick at another date than the last, to and fro by the least step of time, so that nothing comes due
    /// however often this is called.
    void tick() {
        step_ = -step_;
        fake_.clock.advanceMicroseconds(step_);
        engine().tick(fake_.clock.now());
    }

    /// Whether the engine is still where it was brought to.
    bool isAtMoment() { return engine().state() == state_; }

  private:
    Platform choosePorts(Ports ports);
    void bringTo(Moment moment);
    void pass(double seconds);

    TemporaryFolder folder_;
    FakePlatform fake_;
    PosixCalendar realCalendar_;
    JsonPreferences realPreferences_;
    const Platform ports_;
    std::unique_ptr<SimulatedProgram> program_;
    Subscription face_;
    std::int64_t facesChanges_ = 0;
    std::int64_t step_ = -1;
    BreakState state_ = BreakState::idle();
};

} // namespace kestrelfen
