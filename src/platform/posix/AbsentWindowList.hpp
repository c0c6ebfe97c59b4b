#pragma once

#include "platform/ports/WindowList.hpp"

namespace kestrelfen {

/// The windows of a session that does not tell of them.
class AbsentWindowList final : public WindowList {
  public:
    std::optional<std::vector<ScreenWindow>> onScreen() const override { return std::nullopt; }
};

} // namespace kestrelfen
