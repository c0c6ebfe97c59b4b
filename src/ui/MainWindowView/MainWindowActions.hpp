#pragma once

namespace kestrelfen {

class Navigation;
class SceneWindows;

/// What the controls around the main window's tabs do. Main thread only.
class MainWindowActions {
  public:
    /// Both outlive this object.
    MainWindowActions(Navigation& navigation, SceneWindows& windows)
        : navigation_(navigation), windows_(windows) {}

    /// Shows the settings at their first pane.
    void openSettings();

  private:
    Navigation& navigation_;
    SceneWindows& windows_;
};

} // namespace kestrelfen
