#pragma once

#include "base/Enumeration.hpp"

namespace kestrelfen {

enum class InterfaceStyle { system, light, dark };

template <>
struct EnumerationTable<InterfaceStyle> {
    static constexpr std::array<EnumerationRow<InterfaceStyle>, 3> rows{{
        {InterfaceStyle::system, "system"},
        {InterfaceStyle::light, "light"},
        {InterfaceStyle::dark, "dark"},
    }};
};

/// How all of the program's surfaces look. Main thread only.
class InterfaceAppearance {
  public:
    virtual ~InterfaceAppearance() = default;

    /// `system` follows the desktop from then on.
    virtual void set(InterfaceStyle style) = 0;
};

} // namespace kestrelfen
