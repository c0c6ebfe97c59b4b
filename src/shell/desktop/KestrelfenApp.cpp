#include "shell/desktop/KestrelfenApp.hpp"

#include "platform/linux/FreeMemory.hpp"
#include "platform/linux/SessionEnd.hpp"
#include "platform/linux/TerminationSignals.hpp"
#include "platform/posix/GettextCatalogue.hpp"
#include "shell/AppDelegate.hpp"
#include "shell/desktop/KestrelfenAppPlatform.hpp"
#include "shell/desktop/QuickOverlayWindows.hpp"
#include "shell/desktop/QuickPopover.hpp"
#include "shell/desktop/QuickSceneWindows.hpp"
#include "shell/desktop/SceneFaces.hpp"
#include "ui/Wording.hpp"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QQuickWindow>

#include <cstdio>
#include <cstdlib>

namespace kestrelfen {

namespace {

/// After so long a start is over, with all that only a start needs.
constexpr double settlingSeconds = 3;

bool canSpeakWayland() {
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           !plugins.entryList({QStringLiteral("*wayland*")}, QDir::Files).isEmpty();
}

/// Whether Qt will find the display that it needs. Windows can place themselves on X11 only, so that a
/// Wayland desktop's own X server is taken where there is one.
bool chooseDisplay() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        return true;
    }
    const bool hasX11 = !XConnection().isBroken();
    if (!hasX11 && !canSpeakWayland()) {
        return false;
    }
    qputenv("QT_QPA_PLATFORM", hasX11 ? "xcb" : "wayland");
    return true;
}

void preferSoftwareRenderer() {
    const bool chosen =
        qEnvironmentVariableIsSet("QT_QUICK_BACKEND") || qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
    if (!chosen) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

/// The texts in the person's language, which lie beside the program.
class Texts {
  public:
    Texts() { useCatalogue(&worded_); }
    ~Texts() { useCatalogue(nullptr); }
    Texts(const Texts&) = delete;
    Texts& operator=(const Texts&) = delete;

  private:
    GettextCatalogue own_{
        QDir::cleanPath(QGuiApplication::applicationDirPath() + QStringLiteral("/../share/locale"))
            .toStdString()};
    WordedCatalogue worded_{own_};
};

} // namespace

/// Everything of the running program, in the order in which it comes up.
class KestrelfenApp::Parts {
  public:
    Parts();

    SingleInstance::Claim claim() { return machine_.instance.claim(); }
    void launch();
    /// `done` runs when everything is written and taken down.
    void terminate(std::function<void()> done = {});
    bool hasEnded() const { return hasEnded_; }

  private:
    Texts texts_;
    KestrelfenAppPlatform machine_;
    QuickOverlayWindows windows_{machine_.ports(), machine_.views, *machine_.escapeKey, *machine_.compositor};
    AppDelegate delegate_{machine_.ports(), machine_.storeConfiguration(), windows_};
    QuickSceneWindows scenes_{machine_.views,
                              {[this](QWindow& window) { machine_.activationPolicy.bringForward(window); },
                               [this] {
                                   machine_.views.forgetUnused();
                                   returnFreeMemory();
                                   releaseCode();
                               }}};
    QuickPopover popover_{{delegate_.engine(), delegate_.screenTime(), delegate_.store(), delegate_.router(),
                           scenes_, [this] { terminate(); }},
                          machine_.ports(),
                          machine_.views,
                          {*machine_.compositor, machine_.panels}};
    SessionEnd sessionEnd_{machine_.systemLink, [this](const SessionEnd::Done& done) { terminate(done); }};
    bool isTerminating_ = false;
    bool hasEnded_ = false;
};

KestrelfenApp::Parts::Parts() {
    windows_.setEngine(delegate_.engine());
    // Only what is drawn in memory can be handed over to the desktop.
    const bool canUseLayers = QQuickWindow::sceneGraphBackend() == QStringLiteral("software");
    if (canUseLayers) {
        windows_.setLayers(machine_.session.layers());
    }
    setSceneFaces(scenes_, delegate_,
                  {machine_.ports(), machine_.fileWriter, machine_.saveDialog,
                   [this] { machine_.openAccessibilitySettings(); },
                   machine_.session.overlayReach(canUseLayers)});
}

void KestrelfenApp::Parts::launch() {
    machine_.statusItem.follow(delegate_.engine(), machine_.mainQueue);
    machine_.statusItem.onActivate = [this](std::optional<TrayPoint> place) { popover_.toggle(place); };
    machine_.instance.onShow([this] { popover_.open(std::nullopt); });
    delegate_.applicationDidFinishLaunching();
    if (delegate_.needsOnboarding()) {
        scenes_.open(Scene::main);
    }
    machine_.mainQueue.postAfter(settlingSeconds, releaseCode);
}

void KestrelfenApp::Parts::terminate(std::function<void()> done) {
    if (isTerminating_) {
        return;
    }
    isTerminating_ = true;
    delegate_.applicationShouldTerminate([this, done = std::move(done)] {
        delegate_.applicationWillTerminate();
        machine_.preferences.flush();
        hasEnded_ = true;
        if (done) {
            done();
        }
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
    int status = QGuiApplication::exec();
    if (!parts_->hasEnded()) {
        // The desktop's session manager ends the event loop by itself.
        parts_->terminate();
        status = QGuiApplication::exec();
    }
    parts_.reset();
    return status;
}

} // namespace kestrelfen
