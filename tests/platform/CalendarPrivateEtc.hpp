#pragma once

#include <functional>
#include <optional>
#include <string>

namespace kestrelfen {

/// Runs `body` in a child process that sees `directory` in the place of /etc, and tells whether all of its
/// expectations held. Absent where the system does not permit such a view.
std::optional<bool> runWithEtc(const std::string& directory, const std::function<void()>& body);

} // namespace kestrelfen
