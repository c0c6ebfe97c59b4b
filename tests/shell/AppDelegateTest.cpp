#include "AppDelegateTest.hpp"

#include <sstream>

namespace kestrelfen {

AppDelegateTest::AppDelegateTest() {
    platform.preferences.set("hasCompletedOnboarding", true);
    platform.programFocus.setActive(true);
    platform.log.onLine = [this](const FakeLog::Line& line) {
        trace.add("log " + line.category + ": " + line.text);
    };
    platform.sessionLock.onLock = [this] { trace.add("session locks"); };
}

AppDelegate& AppDelegateTest::delegate() {
    if (!delegate_) {
        delegate_ = std::make_unique<AppDelegate>(platform.ports(), hasStore ? &history : nullptr, windows);
    }
    return *delegate_;
}

void AppDelegateTest::destroyDelegate() {
    delegate_.reset();
}

void AppDelegateTest::launch() {
    delegate().applicationDidFinishLaunching();
    settle();
    forget();
}

void AppDelegateTest::settle() {
    bool any = true;
    while (any) {
        const bool ranTasks = platform.mainQueue.drain();
        const bool ranJobs = history.runJobs();
        any = ranTasks || ranJobs;
    }
}

void AppDelegateTest::tickAfter(double seconds) {
    platform.clock.advance(seconds);
    platform.ticker.fire();
    settle();
}

void AppDelegateTest::reachWarning() {
    tickAfter(1195);
}

void AppDelegateTest::beginBreak() {
    engine().beginBreak(platform.clock.now());
    settle();
}

std::string AppDelegateTest::windowsHappened() {
    std::istringstream stream(trace.take());
    std::string result;
    for (std::string line; std::getline(stream, line);) {
        if (line.find(" log ") == std::string::npos && line.find(" record ") == std::string::npos) {
            result += line.substr(line.find(' ') + 1) + '\n';
        }
    }
    return result;
}

} // namespace kestrelfen
