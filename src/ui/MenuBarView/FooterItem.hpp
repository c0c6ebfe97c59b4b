#pragma once

#include "base/Enumeration.hpp"
#include "base/Translated.hpp"

namespace kestrelfen {

/// The buttons at the popover's foot. The label is the tooltip and what is spoken.
enum class FooterItem { screenTime, usageDetail, tasks, breaks, settings, quit };

template <>
struct EnumerationTable<FooterItem> {
    static constexpr std::array<EnumerationRow<FooterItem>, 6> rows{{
        {FooterItem::screenTime, "screenTime", toTranslate("Screen Time")},
        {FooterItem::usageDetail, "usageDetail", toTranslate("App Usage Detail")},
        {FooterItem::tasks, "tasks", toTranslate("Tasks")},
        {FooterItem::breaks, "breaks", toTranslate("Break History")},
        {FooterItem::settings, "settings", toTranslate("Settings")},
        {FooterItem::quit, "quit", toTranslate("Quit Kestrelfen")},
    }};
};

/// All that lead to a window, in their order.
inline constexpr std::array footerDestinations{FooterItem::screenTime, FooterItem::usageDetail,
                                               FooterItem::tasks, FooterItem::breaks, FooterItem::settings};

constexpr std::string_view symbol(FooterItem item) {
    switch (item) {
    case FooterItem::screenTime:
        return "chart.bar.fill";
    case FooterItem::usageDetail:
        return "list.bullet.rectangle";
    case FooterItem::tasks:
        return "checklist";
    case FooterItem::breaks:
        return "clock.arrow.circlepath";
    case FooterItem::settings:
        return "gearshape.fill";
    case FooterItem::quit:
        return "power";
    }
    return {};
}

} // namespace kestrelfen
