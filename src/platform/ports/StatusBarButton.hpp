#pragma once

namespace kestrelfen {

/// The button that the program has in the desktop's bar of small icons.
class StatusBarButton {
  public:
    virtual ~StatusBarButton() = default;

    /// Whether the button has appeared.
    virtual bool exists() const = 0;

    /// From now on, at the latest, a right click acts as a left click does. Only once the button exists.
    virtual void answerRightClicks() = 0;
};

} // namespace kestrelfen
