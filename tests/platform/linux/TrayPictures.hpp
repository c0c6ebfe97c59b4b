#pragma once

#include "platform/ports/TrayIcon.hpp"

#include <cstddef>

namespace kestrelfen {

constexpr std::uint32_t opaqueRed = 0xffff0000;
constexpr std::uint32_t opaqueGreen = 0xff00ff00;

inline TrayPicture plainPicture(int size, std::uint32_t argb) {
    return {size, std::vector<std::uint32_t>(static_cast<std::size_t>(size) * static_cast<std::size_t>(size),
                                             argb)};
}

} // namespace kestrelfen
