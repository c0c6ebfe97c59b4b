#pragma once

#include "platform/fake/FakeApplications.hpp"
#include "platform/ports/WindowList.hpp"

namespace kestrelfen {

/// The windows of the fake applications, each in the middle of its display: the frontmost application's
/// first, then those of the later started. A window on a display that is gone is not on the screen.
class FakeWindowList final : public WindowList {
  public:
    FakeWindowList(const FakeApplications& applications, const Displays& displays)
        : applications_(applications), displays_(displays) {}

    /// Whether this session can tell.
    void setAvailable(bool available) { isAvailable_ = available; }

    std::optional<std::vector<ScreenWindow>> onScreen() const override;

  private:
    const FakeApplications& applications_;
    const Displays& displays_;
    bool isAvailable_ = true;
};

} // namespace kestrelfen
