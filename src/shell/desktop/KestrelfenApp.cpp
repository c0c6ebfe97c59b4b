#include "shell/desktop/KestrelfenApp.hpp"

#include "core/Settings.hpp"
#include "platform/linux/DBusNotifier.hpp"
#include "platform/linux/DBusSingleInstance.hpp"
#include "platform/linux/DirectoryWatch.hpp"
#include "platform/linux/LinuxTrayIcon.hpp"
#include "platform/linux/TerminationSignals.hpp"
#include "platform/linux/X11Compositor.hpp"
#include "platform/linux/X11EscapeKey.hpp"
#include "platform/linux/X11InputIdle.hpp"
#include "platform/ports/PunctualClock.hpp"
#include "platform/posix/AbsentSessionLock.hpp"
#include "platform/posix/AbsentSystemSignals.hpp"
#include "platform/posix/JsonPreferences.hpp"
#include "platform/posix/PosixCalendar.hpp"
#include "platform/posix/PosixClock.hpp"
#include "platform/posix/StreamLog.hpp"
#include "platform/posix/StreamOutput.hpp"
#include "platform/qt/QtDisplays.hpp"
#include "platform/qt/QtMainQueue.hpp"
#include "platform/qt/QtProgramFocus.hpp"
#include "platform/qt/QtTicker.hpp"
#include "platform/qt/QtTimeFormat.hpp"
#include "shell/AppDelegate.hpp"
#include "shell/desktop/QuickOverlayWindows.hpp"
#include "shell/desktop/QuickPopover.hpp"
#include "shell/desktop/StatusItem.hpp"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdio>
#include <cstdlib>

namespace kestrelfen {

namespace {

/// Whether Qt will find the display that it needs. The overlays need X11; a Wayland desktop's own X server
/// does.
bool chooseDisplay() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        return true;
    }
    if (XConnection().isBroken()) {
        return false;
    }
    qputenv("QT_QPA_PLATFORM", "xcb");
    return true;
}

void preferSoftwareRenderer() {
    const bool chosen =
        qEnvironmentVariableIsSet("QT_QUICK_BACKEND") || qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
    if (!chosen) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

} // namespace

/// Everything of the running program, in the order in which it comes up.
class KestrelfenApp::Parts {
  public:
    Parts();

    SingleInstance::Claim claim() { return instance_.claim(); }
    void launch();
    void terminate();

  private:
    Platform platform();
    void watchPreferences();

    StreamLog log_{stderr};
    StreamOutput output_{stdout};
    QtMainQueue mainQueue_;
    PosixClock wallClock_;
    PunctualClock clock_{wallClock_};
    QtTicker ticker_{clock_};
    PosixCalendar calendar_;
    QtTimeFormat timeFormat_{calendar_};
    JsonPreferences preferences_{JsonPreferences::standardPath(), log_, mainQueue_};
    std::vector<std::unique_ptr<DirectoryWatch>> watches_;
    X11InputIdle inputIdle_{log_};
    AbsentSystemSignals systemSignals_;
    AbsentSessionLock sessionLock_;
    QtDisplays displays_;
    QtProgramFocus programFocus_;
    QDBusConnection bus_{QDBusConnection::sessionBus()};
    DBusSingleInstance instance_{bus_, log_};
    DBusNotifier notifier_{bus_};
    X11EscapeKey escapeKey_{log_};
    X11Compositor compositor_;
    std::unique_ptr<TrayIcon> tray_{makeLinuxTrayIcon(bus_, log_)};
    StatusItem statusItem_{*tray_};
    QuickViews views_{preferences_};
    QuickOverlayWindows windows_{platform(), views_, escapeKey_, compositor_};
    AppDelegate delegate_{platform(), nullptr, windows_};
    QuickPopover popover_{delegate_.engine(), platform(), views_, compositor_, [this] { terminate(); }};
    bool isTerminating_ = false;
};

KestrelfenApp::Parts::Parts() {
    windows_.setEngine(delegate_.engine());
    watchPreferences();
}

Platform KestrelfenApp::Parts::platform() {
    return {clock_,       calendar_,    timeFormat_,    mainQueue_, ticker_,
            preferences_, inputIdle_,   systemSignals_, displays_,  programFocus_,
            notifier_,    sessionLock_, statusItem_,    output_,    log_};
}

void KestrelfenApp::Parts::watchPreferences() {
    for (const auto& folder : preferences_.folders()) {
        watches_.push_back(
            std::make_unique<DirectoryWatch>(folder, [this] { preferences_.reloadIfChanged(); }));
    }
}

void KestrelfenApp::Parts::launch() {
    statusItem_.follow(delegate_.engine(), mainQueue_);
    statusItem_.onActivate = [this](std::optional<TrayPoint> place) { popover_.toggle(place); };
    instance_.onShow([this] { popover_.open(std::nullopt); });
    delegate_.applicationDidFinishLaunching();
    // There is no welcome window yet that would start the timer of a first run.
    delegate_.engine().start();
}

void KestrelfenApp::Parts::terminate() {
    if (isTerminating_) {
        return;
    }
    isTerminating_ = true;
    delegate_.applicationShouldTerminate([this] {
        delegate_.applicationWillTerminate();
        preferences_.flush();
        QGuiApplication::quit();
    });
}

KestrelfenApp::KestrelfenApp(int& argumentCount, char** arguments)
    : argumentCount_(argumentCount), arguments_(arguments) {}

KestrelfenApp::~KestrelfenApp() = default;

int KestrelfenApp::run() {
    TerminationSignals termination([this] { parts_->terminate(); });
    if (!chooseDisplay()) {
        std::fputs("kestrelfen: there is no X11 display to show anything on (DISPLAY is not set, or cannot "
                   "be reached)\n",
                   stderr);
        return EXIT_FAILURE;
    }
    preferSoftwareRenderer();
    QGuiApplication application(argumentCount_, arguments_);
    QGuiApplication::setApplicationName(QStringLiteral("kestrelfen"));
    QGuiApplication::setDesktopFileName(QStringLiteral("app.kestrelfen.Kestrelfen"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    parts_ = std::make_unique<Parts>();
    termination.listen();
    if (parts_->claim() == SingleInstance::Claim::second) {
        std::puts("Kestrelfen runs already; it was asked to show itself.");
        parts_.reset();
        return EXIT_SUCCESS;
    }
    parts_->launch();
    const int status = QGuiApplication::exec();
    parts_.reset();
    return status;
}

} // namespace kestrelfen
