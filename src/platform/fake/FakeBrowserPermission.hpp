#pragma once

#include "base/Enumeration.hpp"

namespace kestrelfen {

/// How a fake browser answers the wish to read its address.
enum class FakeBrowserPermission { granted, denied, notDetermined, notRunning, notInstalled };

template <>
struct EnumerationTable<FakeBrowserPermission> {
    static constexpr std::array<EnumerationRow<FakeBrowserPermission>, 5> rows{{
        {FakeBrowserPermission::granted, "granted"},
        {FakeBrowserPermission::denied, "denied"},
        {FakeBrowserPermission::notDetermined, "notDetermined"},
        {FakeBrowserPermission::notRunning, "notRunning"},
        {FakeBrowserPermission::notInstalled, "notInstalled"},
    }};
};

} // namespace kestrelfen
