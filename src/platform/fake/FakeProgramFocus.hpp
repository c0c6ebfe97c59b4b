#pragma once

#include "platform/ports/ProgramFocus.hpp"

namespace kestrelfen {

/// Whether the program is in front, by hand.
class FakeProgramFocus final : public ProgramFocus {
  public:
    void setActive(bool active) { active_ = active; }
    bool isActive() const override { return active_; }

  private:
    bool active_ = false;
};

} // namespace kestrelfen
