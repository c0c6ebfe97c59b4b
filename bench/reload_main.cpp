#include "bench/GeneratedStore.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "platform/posix/ThreadExecutor.hpp"
#include "platform/qt/QtMainQueue.hpp"
#include "shell/AppDelegate.hpp"
#include "simulator/SimulatedScenes.hpp"
#include "simulator/SimulatedWindows.hpp"
#include "ui/MainWindowView/MainWindowModel.hpp"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

namespace kestrelfen {
namespace {

constexpr double limitMilliseconds = 4;
constexpr int runs = 20;
constexpr int settlingMilliseconds = 400;
constexpr double morning = 10 * 3600;

double milliseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// The longest that the main thread worked without looking for other events, in its own time and by the
/// clock.
class Stretch {
  public:
    Stretch() {
        auto* const dispatcher = QAbstractEventDispatcher::instance();
        QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, dispatcher, [this] { begin(); });
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, dispatcher, [this] { end(); });
    }

    void forget() { longestOwn_ = longestWall_ = 0; }
    double longestOwn() const { return longestOwn_; }
    double longestWall() const { return longestWall_; }

  private:
    void begin() {
        own_ = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        wall_ = milliseconds(CLOCK_MONOTONIC);
    }
    void end() {
        longestOwn_ = std::max(longestOwn_, milliseconds(CLOCK_THREAD_CPUTIME_ID) - own_);
        longestWall_ = std::max(longestWall_, milliseconds(CLOCK_MONOTONIC) - wall_);
        begin();
    }

    double own_ = milliseconds(CLOCK_THREAD_CPUTIME_ID);
    double wall_ = milliseconds(CLOCK_MONOTONIC);
    double longestOwn_ = 0;
    double longestWall_ = 0;
};

/// The program over ten years of history, with the real queue and the real thread of the store.
struct Program {
    FakePlatform machine;
    ThreadExecutor executor;
    QtMainQueue queue;
    Platform ports = withRealQueues();
    SimulatedWindows windows{ports};
    AppDelegate delegate;

    explicit Program(const GeneratedStore& store)
        : delegate(prepared(store), store.configuration(), windows) {
        windows.setEngine(delegate.engine());
        delegate.applicationDidFinishLaunching();
    }

    Platform withRealQueues() {
        const Platform all = machine.ports();
        return {all.clock,
                all.calendar,
                all.timeFormat,
                queue,
                executor,
                all.ticker,
                all.preferences,
                all.inputIdle,
                all.systemSignals,
                all.displays,
                all.displayPower,
                all.applications,
                all.windowList,
                all.audioProcesses,
                all.browserAccess,
                all.programFocus,
                all.activationPolicy,
                all.interfaceAppearance,
                all.notificationAuthorization,
                all.notifier,
                all.sessionLock,
                all.loginItem,
                all.statusBarButton,
                all.standardOutput,
                all.log};
    }

    const Platform& prepared(const GeneratedStore& store) {
        machine.clock.set(store.today() + morning);
        machine.preferences.set("hasCompletedOnboarding", true);
        machine.preferences.set("historyRetentionDays", std::int64_t{0});
        return ports;
    }
};

void settle() {
    QEventLoop loop;
    QTimer::singleShot(settlingMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

bool measure(const char* name, Stretch& stretch, const std::function<void()>& reload) {
    double own = 0;
    double wall = 0;
    for (int run = 0; run < runs; ++run) {
        settle();
        stretch.forget();
        QTimer::singleShot(0, reload);
        settle();
        own = std::max(own, stretch.longestOwn());
        wall = std::max(wall, stretch.longestWall());
    }
    std::printf("%-34s %6.2f ms of its own, %6.2f ms by the clock\n", name, own, wall);
    return own <= limitMilliseconds;
}

int run() {
    const GeneratedStore store(GeneratedStore::daysOfTenYears);
    Program program(store);
    SimulatedScenes scenes(program.machine.activationPolicy);
    AppDelegate& delegate = program.delegate;
    MainWindowModel model(
        {delegate.engine(), delegate.screenTime(), delegate.store(), delegate.router(), scenes},
        program.ports, [] { return nullptr; });
    Stretch stretch;
    settle();
    bool isWithin = measure("dashboard", stretch, [&] {
        model.dashboard()->hide();
        model.dashboard()->show();
    });
    isWithin &= measure("history, all of it", stretch, [&] {
        model.history()->hide();
        model.history()->chooseRange("all");
        model.history()->show();
    });
    isWithin &= measure("tasks", stretch, [&] {
        model.tasks()->hide();
        model.tasks()->show();
    });
    if (model.history()->rowCount() == 0 || model.dashboard()->usageRows()->rowCount() == 0) {
        std::puts("nothing was loaded");
        return 1;
    }
    std::printf("each the longest of %d, limit %.0f ms: %s\n", runs, limitMilliseconds,
                isWithin ? "kept" : "NOT kept");
    return isWithin ? 0 : 1;
}

} // namespace
} // namespace kestrelfen

/// How long a reload of the main window keeps the main thread from anything else, over ten years of history.
int main(int argumentCount, char** arguments) {
    // The other dispatcher does not tell when it begins and ends to look for events.
    qputenv("QT_NO_GLIB", "1");
    const QCoreApplication application(argumentCount, arguments);
    return kestrelfen::run();
}
