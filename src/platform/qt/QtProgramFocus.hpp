#pragma once

#include "platform/ports/ProgramFocus.hpp"

namespace kestrelfen {

/// The focus as Qt knows it. Main thread only.
class QtProgramFocus final : public ProgramFocus {
  public:
    bool isActive() const override;
};

} // namespace kestrelfen
