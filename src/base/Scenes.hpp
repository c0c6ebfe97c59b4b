#pragma once

#include "base/Enumeration.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace kestrelfen {

/// The program's ordinary windows. The raw value begins the identifier of each window of that kind.
enum class Scene { main, settings };

template <>
struct EnumerationTable<Scene> {
    static constexpr std::array<EnumerationRow<Scene>, 2> rows{{
        {Scene::main, "kestrelfen.main"},
        {Scene::settings, "kestrelfen.settings"},
    }};
};

/// The windows as the toolkit has them. Main thread only.
class SceneWindows {
  public:
    virtual ~SceneWindows() = default;

    /// Of every window that is open, in the toolkit's order; empty for one that has none.
    virtual std::vector<std::string> identifiers() const = 0;

    /// Raises the window at that place of `identifiers()` and gives it the keyboard.
    virtual void bringToFront(std::size_t index) = 0;

    /// Makes a new window.
    virtual void open(Scene scene) = 0;
};

/// Brings the first window of that kind to the front; false when there is none.
inline bool focusExistingWindow(SceneWindows& windows, Scene scene) {
    const std::vector<std::string> identifiers = windows.identifiers();
    for (std::size_t index = 0; index < identifiers.size(); ++index) {
        if (identifiers[index].starts_with(rawValue(scene))) {
            windows.bringToFront(index);
            return true;
        }
    }
    return false;
}

/// Shows the window of that kind: the one that is open, or a new one.
inline void showScene(SceneWindows& windows, Scene scene) {
    if (!focusExistingWindow(windows, scene)) {
        windows.open(scene);
    }
}

} // namespace kestrelfen
