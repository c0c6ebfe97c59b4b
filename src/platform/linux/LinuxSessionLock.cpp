#include "platform/linux/LinuxSessionLock.hpp"

#include <chrono>

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

/// How long one way of locking may take before the next is tried.
constexpr auto lockingTime = 1s;

} // namespace

LinuxSessionLock::LinuxSessionLock(const BusLink& systemBus, const BusLink& sessionBus,
                                   LinuxSystemSignals& systemSignals, Log& log)
    : systemBus_(systemBus), sessionBus_(sessionBus), systemSignals_(systemSignals),
      log_(log, "SessionLock") {
    patience_.setSingleShot(true);
    patience_.setInterval(lockingTime);
    patience_.callOnTimeout([this] { check(); });
}

SessionLockResult LinuxSessionLock::lock() {
    const bool isUnderWay = patience_.isActive();
    if (!isUnderWay) {
        waysLeft_ = ways();
        if (waysLeft_.empty()) {
            return whyNoWay();
        }
        tryNext();
    }
    return {SessionLockResult::Outcome::started};
}

std::deque<LinuxSessionLock::Way> LinuxSessionLock::ways() const {
    std::deque<Way> result;
    if (systemSignals_.session().isKnown()) {
        result.push_back([this](const auto& answer) { systemSignals_.session().lock(answer); });
    }
    for (const auto& saver : systemSignals_.screenSavers()) {
        if (saver->isPresent()) {
            result.push_back([&saver = *saver](const auto& answer) { saver.lock(answer); });
        }
    }
    return result;
}

SessionLockResult LinuxSessionLock::whyNoWay() const {
    if (systemBus_.isLost()) {
        return {SessionLockResult::Outcome::failed, "the connection to the system bus is lost"};
    }
    if (sessionBus_.isLost()) {
        return {SessionLockResult::Outcome::failed, "the connection to the session bus is lost"};
    }
    return {SessionLockResult::Outcome::missing};
}

void LinuxSessionLock::tryNext() {
    const Way way = waysLeft_.front();
    waysLeft_.pop_front();
    patience_.start();
    way([this, attempt = ++attempt_](const QDBusMessage& answer) { checkAnswer(attempt, answer); });
}

void LinuxSessionLock::checkAnswer(int attempt, const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ErrorMessage) {
        return;
    }
    log_.error("could not lock the screen: " + answer.errorMessage().toStdString());
    if (attempt == attempt_ && patience_.isActive()) {
        check();
    }
}

void LinuxSessionLock::check() {
    patience_.stop();
    if (systemSignals_.isLocked()) {
        return;
    }
    if (waysLeft_.empty()) {
        log_.info("nothing tells that the screen was locked");
    } else {
        tryNext();
    }
}

} // namespace kestrelfen
