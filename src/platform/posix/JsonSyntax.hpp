#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// What keeps `text` from being one JSON object, in words that go on from "the file is damaged: "; absent
/// when it is one. A number may be as large as it likes.
std::optional<std::string> jsonObjectProblem(std::string_view text);

/// Where the JSON string that begins at `begin` with its quotation mark ends: behind the closing one.
std::size_t jsonStringEnd(std::string_view text, std::size_t begin);

} // namespace kestrelfen
