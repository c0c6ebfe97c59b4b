#pragma once

#include "platform/linux/EventLoop.hpp"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

namespace kestrelfen {

/// A clock that is looked at again and again, and the longest time for which it was not.
class Lookout {
  public:
    Lookout() { elapsed_.start(); }

    void look() {
        nanoseconds_ = std::max(nanoseconds_, elapsed_.nsecsElapsed());
        elapsed_.start();
    }

    double longestGap() const { return static_cast<double>(nanoseconds_) / 1e6; }

  private:
    QElapsedTimer elapsed_;
    qint64 nanoseconds_ = 0;
};

/// The longest time, in milliseconds, for which the event loop did not come round while `act` was done and
/// shortly after, beyond what an idle thread beside it had to wait for a busy machine. The best of several
/// tries counts.
class LongestGap {
  public:
    /// A busy machine spoils many of them; what waits for a service spoils all.
    static constexpr int attempts = 25;

    /// No call and no event of the program may take longer.
    static constexpr double longestStep = 5;

    template <typename Act>
    static double during(Act act) {
        double best = 1e9;
        for (int times = 0; times < attempts && best > longestStep; ++times) {
            LongestGap gap;
            act();
            pass(std::chrono::milliseconds(100));
            best = std::min(best, gap.end());
        }
        return best;
    }

  private:
    LongestGap() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { own_.look(); });
        timer_.start(1);
    }

    double end() {
        isOver_ = true;
        idle_.join();
        return own_.longestGap() - beside_.longestGap();
    }

    void lookBeside() {
        while (!isOver_) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            beside_.look();
        }
    }

    Lookout own_;
    Lookout beside_;
    std::atomic<bool> isOver_ = false;
    QTimer timer_;
    std::thread idle_{[this] { lookBeside(); }};
};

} // namespace kestrelfen
