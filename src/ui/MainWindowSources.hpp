#pragma once

namespace kestrelfen {

class BreakEngine;
class KestrelfenStore;
class Navigation;
class SceneWindows;
class ScreenTimeTracker;

/// What the main window shows and acts upon; all of it outlives the window.
struct MainWindowSources {
    BreakEngine& engine;
    ScreenTimeTracker& screenTime;
    /// Null when history is unavailable.
    KestrelfenStore* store;
    Navigation& navigation;
    SceneWindows& windows;
};

} // namespace kestrelfen
