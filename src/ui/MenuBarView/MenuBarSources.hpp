#pragma once

#include <functional>

namespace kestrelfen {

class BreakEngine;
class KestrelfenStore;
class Navigation;
class SceneWindows;
class ScreenTimeTracker;

/// What the popover shows and acts upon; all of it outlives the popover.
struct MenuBarSources {
    BreakEngine& engine;
    ScreenTimeTracker& screenTime;
    /// Null when history is unavailable.
    KestrelfenStore* store;
    Navigation& navigation;
    SceneWindows& windows;
    /// Asks the program to end.
    std::function<void()> quit;
};

} // namespace kestrelfen
