#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// The bytes in base64 with padding, in one line.
std::string base64(const std::vector<std::uint8_t>& bytes);

/// Reads what base64() writes; absent for anything else.
std::optional<std::vector<std::uint8_t>> parseBase64(std::string_view text);

} // namespace kestrelfen
