#include "platform/fake/FakePlatform.hpp"
#include "platform/linux/BusLink.hpp"
#include "platform/linux/LinuxDisplayPower.hpp"
#include "platform/linux/LinuxPrograms.hpp"
#include "platform/linux/LinuxSystemSignals.hpp"
#include "platform/linux/PulseAudioProcesses.hpp"
#include "platform/linux/X11Applications.hpp"
#include "platform/linux/X11InputIdle.hpp"
#include "platform/linux/X11WindowList.hpp"
#include "platform/posix/PosixCalendar.hpp"
#include "platform/posix/PosixClock.hpp"
#include "platform/qt/QtDisplays.hpp"
#include "simulator/SimulatedProgram.hpp"
#include "support/TemporaryFolder.hpp"

#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>
#include <vector>

namespace kestrelfen {
namespace {

constexpr int ticks = 2000;
constexpr double medianLimit = 200;
constexpr double highLimit = 1000;

double threadMicroseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

long proportionalKibibytes() {
    std::ifstream rollup("/proc/self/smaps_rollup");
    for (std::string word; rollup >> word;) {
        if (word == "Pss:") {
            long kibibytes = 0;
            rollup >> kibibytes;
            return kibibytes;
        }
    }
    return 0;
}

/// The senses as this session offers them, the rest of the machine by hand.
struct Senses {
    BusLink systemLink{BusLink::Bus::system};
    BusLink sessionLink{BusLink::Bus::session};
    LinuxSystemSignals systemSignals{systemLink, sessionLink};
    LinuxDisplayPower displayPower{systemSignals};
    LinuxPrograms programs;
    X11WindowWatch windowWatch{programs};
    X11Applications applications{windowWatch};
    X11WindowList windowList{windowWatch};
    PulseAudioProcesses audioProcesses{programs};
};

class SensesBench {
  public:
    SensesBench() { fake_.preferences.set("hasCompletedOnboarding", true); }

    void run() {
        const long before = proportionalKibibytes();
        senses_ = std::make_unique<Senses>();
        process(300);
        const long after = proportionalKibibytes();
        start();
        std::vector<double> costs;
        for (int tick = 0; tick < ticks; ++tick) {
            process(1);
            costs.push_back(costOfATick());
        }
        std::sort(costs.begin(), costs.end());
        const double median = costs[costs.size() / 2];
        const double high = costs[costs.size() * 99 / 100];
        std::printf("windows %zu, programs %zu, sound server %s\n", senses_->windowWatch.windows().size(),
                    senses_->applications.running().size(),
                    senses_->audioProcesses.hasProcessList() ? "heard" : "not there");
        std::printf("a tick with all senses: median %.1f µs, 99th percentile %.1f µs of processor "
                    "(%.2f and %.2f times what it may take)\n",
                    median, high, median / medianLimit, high / highLimit);
        std::printf("memory of the senses: %.1f MiB PSS\n", static_cast<double>(after - before) / 1024);
    }

  private:
    void start() {
        Platform ports = fake_.ports();
        program_ = std::make_unique<SimulatedProgram>(
            Platform{ports.clock,
                     calendar_,
                     ports.timeFormat,
                     ports.mainQueue,
                     ports.storeExecutor,
                     ports.ticker,
                     ports.preferences,
                     inputIdle_,
                     senses_->systemSignals,
                     displays_,
                     senses_->displayPower,
                     senses_->applications,
                     senses_->windowList,
                     senses_->audioProcesses,
                     ports.browserAccess,
                     ports.programFocus,
                     ports.activationPolicy,
                     ports.interfaceAppearance,
                     ports.notificationAuthorization,
                     ports.notifier,
                     ports.sessionLock,
                     ports.loginItem,
                     ports.statusBarButton,
                     ports.standardOutput,
                     ports.log},
            StoreConfiguration{folder_ / StoreConfiguration::fileName, {}, {}}, [](std::string_view) {});
        program_->delegate().applicationDidFinishLaunching();
    }

    double costOfATick() {
        fake_.clock.advance(1);
        const double start = threadMicroseconds();
        fake_.ticker.fire();
        const double cost = threadMicroseconds() - start;
        while (fake_.mainQueue.drain() || fake_.storeExecutor.drain()) {
        }
        return cost;
    }

    static void process(int rounds) {
        for (int round = 0; round < rounds; ++round) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            timespec pause{0, 1'000'000};
            nanosleep(&pause, nullptr);
        }
    }

    TemporaryFolder folder_;
    FakePlatform fake_;
    PosixCalendar calendar_;
    QtDisplays displays_;
    X11InputIdle inputIdle_{fake_.log};
    std::unique_ptr<Senses> senses_;
    std::unique_ptr<SimulatedProgram> program_;
};

} // namespace
} // namespace kestrelfen

int main(int count, char** arguments) {
    const QGuiApplication application(count, arguments);
    kestrelfen::SensesBench().run();
}
