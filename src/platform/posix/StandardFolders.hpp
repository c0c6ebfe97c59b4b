#pragma once

#include <filesystem>

namespace kestrelfen {

/// The person's home: $HOME, or what the system's user database says.
std::filesystem::path homeFolder();

/// Where programs keep what the person has chosen: $XDG_CONFIG_HOME if it is an absolute path, or ~/.config.
std::filesystem::path configurationFolder();

/// Where programs keep what the person has made: $XDG_DATA_HOME if it is an absolute path, or ~/.local/share.
std::filesystem::path dataFolder();

} // namespace kestrelfen
