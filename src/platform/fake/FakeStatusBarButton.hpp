#pragma once

#include "platform/ports/StatusBarButton.hpp"

namespace kestrelfen {

/// A status bar button that may take some tries to appear.
class FakeStatusBarButton final : public StatusBarButton {
  public:
    /// How often `exists` still answers no.
    void setTriesUntilFound(int tries) { tries_ = tries; }
    bool answersRightClicks() const { return answersRightClicks_; }

    bool exists() const override { return tries_ == 0 || --tries_ < 0; }
    void answerRightClicks() override { answersRightClicks_ = true; }

  private:
    mutable int tries_ = 0;
    bool answersRightClicks_ = false;
};

} // namespace kestrelfen
