#pragma once

#include "base/Enumeration.hpp"

namespace kestrelfen {

/// Whether a browser may be asked for the address of its active tab.
enum class AutomationPermission { granted, denied, notDetermined, notRunning, notInstalled };

template <>
struct EnumerationTable<AutomationPermission> {
    static constexpr std::array<EnumerationRow<AutomationPermission>, 5> rows{{
        {AutomationPermission::granted, "granted"},
        {AutomationPermission::denied, "denied"},
        {AutomationPermission::notDetermined, "notDetermined"},
        {AutomationPermission::notRunning, "notRunning"},
        {AutomationPermission::notInstalled, "notInstalled"},
    }};
};

} // namespace kestrelfen
