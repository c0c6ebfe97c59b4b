#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

#include <chrono>

namespace kestrelfen {

/// Long enough for a busy machine; no passing test waits for so long.
constexpr std::chrono::milliseconds longWait{8000};

/// Runs the event loop until `isReached`, or for `limit`. Answers whether it was reached.
template <typename Condition>
bool waitUntil(Condition isReached, std::chrono::milliseconds limit = longWait) {
    const QDeadlineTimer deadline(limit);
    while (!isReached()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}

/// Runs the event loop for `time`.
inline void pass(std::chrono::milliseconds time) {
    waitUntil([] { return false; }, time);
}

} // namespace kestrelfen
