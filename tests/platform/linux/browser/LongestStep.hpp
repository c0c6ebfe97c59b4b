#pragma once

#include "platform/linux/EventLoop.hpp"

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace kestrelfen {

/// The longest time between two rounds of the event loop since this was made, without that in which a busy
/// machine let other programs run: what was worked or waited for.
class LongestStep {
  public:
    /// Of several tries the best one counts: a step that waits for somebody waits each time.
    template <typename Act>
    static double during(Act act, double enough) {
        double best = 1e9;
        for (int times = 0; times < 4 && best > enough; ++times) {
            const LongestStep step;
            act();
            pass(std::chrono::milliseconds(50));
            best = std::min(best, step.milliseconds());
        }
        return best;
    }

  private:
    LongestStep() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { note(); });
        timer_.start(0);
        begin();
    }

    double milliseconds() const { return static_cast<double>(longest_) / 1e6; }

    static qint64 nanosecondsInTheQueue() {
        QFile file("/proc/thread-self/schedstat");
        return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() : 0;
    }

    void begin() {
        queued_ = nanosecondsInTheQueue();
        elapsed_.start();
    }

    void note() {
        const qint64 time = elapsed_.nsecsElapsed();
        longest_ = std::max(longest_, time - (nanosecondsInTheQueue() - queued_));
        begin();
    }

    QTimer timer_;
    QElapsedTimer elapsed_;
    qint64 queued_ = 0;
    qint64 longest_ = 0;
};

} // namespace kestrelfen
