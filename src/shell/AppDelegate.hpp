#pragma once

#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "core/BreakEngine.hpp"
#include "platform/ports/Platform.hpp"
#include "shell/OverlayWindowController.hpp"

#include <functional>
#include <memory>

namespace kestrelfen {

/// The composition root: owns the long-lived objects, brings them up in order, keeps the overlays in step
/// with the engine's state and brings everything down at quit. It knows no screen. Main thread only.
class AppDelegate {
  public:
    /// `store` is null when history is unavailable. All three outlive the delegate.
    AppDelegate(const Platform& platform, BreakHistory* store, OverlayWindows& windows);

    BreakEngine& engine();
    OverlayWindowController& overlays();

    void applicationDidFinishLaunching();

    /// Calls `reply` once the program may end.
    void applicationShouldTerminate(std::function<void()> reply);
    void applicationWillTerminate();

    /// What the end of the welcome does.
    void finishOnboarding();

  private:
    std::unique_ptr<BreakEngine> makeEngine();
    void observeEngineState();
    void syncOverlayPresentation();
    void removeBreakWindows();
    void showBreakWindows();

    const Platform platform_;
    BreakHistory* const store_;
    OverlayWindows& windows_;
    std::unique_ptr<BreakEngine> engine_;
    std::unique_ptr<OverlayWindowController> overlays_;
    Subscription stateObservation_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
