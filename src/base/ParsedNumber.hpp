#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace kestrelfen {

/// The number that the whole of `text` writes, whatever the locale; absent when it writes none.
template <typename Number>
std::optional<Number> parsedNumber(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

} // namespace kestrelfen
