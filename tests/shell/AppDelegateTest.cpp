#include "AppDelegateTest.hpp"

#include <sstream>

namespace kestrelfen {

AppDelegateTest::AppDelegateTest() {
    platform.preferences.set("hasCompletedOnboarding", true);
    platform.programFocus.setActive(true);
    platform.log.onLine = [this](const FakeLog::Line& line) {
        trace.add("log " + line.category + ": " + line.text);
    };
    platform.preferences.set("didRequestNotificationAuthorization", true);
    storeConfiguration.file = folder_ / StoreConfiguration::fileName;
    platform.sessionLock.onLock = [this] { trace.add("session locks"); };
}

AppDelegate& AppDelegateTest::delegate() {
    if (!delegate_) {
        delegate_ = std::make_unique<AppDelegate>(platform.ports(), storeConfiguration, windows);
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
        const bool ranJobs = platform.storeExecutor.drain();
        any = ranTasks || ranJobs;
    }
}

void AppDelegateTest::relaunch() {
    destroyDelegate();
    settle();
    launch();
}

DaySummary AppDelegateTest::summary(Date dayStart) {
    DaySummary result;
    delegate().store()->summary(dayStart, [&result](const DaySummary& found) { result = found; });
    settle();
    return result;
}

std::vector<DaySummary> AppDelegateTest::summaries(Date since) {
    std::vector<DaySummary> result;
    delegate().store()->summaries(since, [&result](auto found) { result = std::move(found); });
    settle();
    return result;
}

std::vector<HistoryEntry> AppDelegateTest::history(Date since) {
    std::vector<HistoryEntry> result;
    delegate().store()->history(since, 100, [&result](auto found) { result = std::move(found); });
    settle();
    return result;
}

std::vector<TaskSummary> AppDelegateTest::tasks() {
    std::vector<TaskSummary> result;
    delegate().store()->tasks([&result](auto found) { result = std::move(found); });
    settle();
    return result;
}

std::vector<AppUsageSummary> AppDelegateTest::appUsage(Date dayStart) {
    std::vector<AppUsageSummary> result;
    delegate().store()->appUsage(dayStart, 100, [&result](auto found) { result = std::move(found); });
    settle();
    return result;
}

void AppDelegateTest::remember(Date dayStart, int completed, int skipped) {
    for (int index = 0; index < completed + skipped; ++index) {
        delegate().store()->recordBreak(
            BreakEntry{.startedAt = dayStart + index,
                       .outcome = index < completed ? BreakOutcome::completed : BreakOutcome::skipped,
                       .creditedTaskTitle = {},
                       .dayStart = dayStart});
    }
    settle();
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
