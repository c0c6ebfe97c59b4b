#pragma once

#include "platform/ports/OverlayReach.hpp"
#include "platform/ports/Platform.hpp"

#include <functional>

namespace kestrelfen {

class AppDelegate;
class QuickSceneWindows;
class SaveDialog;
class TextFileWriter;

/// What the ordinary windows need beside the program's own parts; all of it outlives them.
struct SceneServices {
    Platform platform;
    TextFileWriter& fileWriter;
    SaveDialog& saveDialog;
    /// Shows where the desktop lets the person allow that browsers are read.
    std::function<void()> openAutomationSettings;
    OverlayReach overlays;
};

/// Tells `windows` what the main window and the settings are made of.
void setSceneFaces(QuickSceneWindows& windows, AppDelegate& delegate, const SceneServices& services);

} // namespace kestrelfen
