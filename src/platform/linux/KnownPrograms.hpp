#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace kestrelfen {

/// What Linux calls the products that the built-in lists name. Any thread.
struct KnownPrograms {
    struct Row {
        /// A desktop entry's id, a Flatpak's or Snap's name, a window class or an executable's name.
        std::string_view name;
        std::string_view bundleIdentifier;
    };

    static std::span<const Row> rows();

    /// The products of the built-in lists that there are not on Linux.
    static std::span<const std::string_view> absentProducts();

    /// The product of this name, whatever its case.
    static std::optional<std::string_view> bundleIdentifier(std::string_view name);
};

} // namespace kestrelfen
