#pragma once

#include "platform/ports/InterfaceAppearance.hpp"

#include <functional>

namespace kestrelfen {

class FakeInterfaceAppearance final : public InterfaceAppearance {
  public:
    std::function<void(InterfaceStyle)> onSet;

    void set(InterfaceStyle style) override {
        style_ = style;
        if (onSet) {
            onSet(style);
        }
    }

    InterfaceStyle style() const { return style_; }

  private:
    InterfaceStyle style_ = InterfaceStyle::system;
};

} // namespace kestrelfen
