#include "ui/UsageDetailView/UsageDetailContent.hpp"

#include "core/Formatters.hpp"
#include "ui/UsageDetailView/UsageDetail.hpp"

#include <algorithm>
#include <cmath>

namespace kestrelfen {

namespace {

using Content = UsageDetailContent;

/// The seconds that the shares and bars of some rows are measured by.
struct Scale {
    double total = 0;
    double longest = 0;
};

template <typename Totals>
Scale scaleOf(const Totals& totals) {
    Scale scale;
    for (const auto& each : totals) {
        scale.total += each.activeSeconds;
    }
    scale.longest = totals.empty() ? 0.0 : totals.front().activeSeconds;
    return scale;
}

double partOf(double seconds, double whole) {
    return whole > 0 ? std::clamp(seconds / whole, 0.0, 1.0) : 0.0;
}

Content::Row rowOf(std::string id, std::string name, double seconds, const Scale& scale) {
    return {.id = std::move(id),
            .name = std::move(name),
            .detail = {},
            .time = Formatters::activeTime(seconds),
            .share = translated("%1%", {std::to_string(std::llround(partOf(seconds, scale.total) * 100))}),
            .fraction = partOf(seconds, scale.longest),
            .category = {}};
}

/// `sources` are the counted rows.
std::string summaryOf(double seconds, std::string_view sources) {
    return translated("%1 across %2", {Formatters::activeTime(seconds), sources});
}

std::vector<Content::Chip> chipsOf(const UsageDetail& detail) {
    std::vector<Content::Chip> chips{
        {.category = {}, .label = translated("All"), .symbol = {}, .count = detail.totals().size()}};
    for (const auto& row : EnumerationTable<AppCategory>::rows) {
        chips.push_back(
            {.category = row.value, .label = translated(row.label), .symbol = symbolName(row.value)});
    }
    for (const AppTotal& total : detail.totals()) {
        const AppCategory category = resolveCategory(total.bundleIdentifier, detail.preferences());
        ++chips.at(static_cast<std::size_t>(category) + 1).count;
    }
    for (Content::Chip& chip : chips) {
        chip.isSelected = chip.category == detail.category();
    }
    return chips;
}

std::vector<AppTotal> filtered(const UsageDetail& detail) {
    std::vector<AppTotal> totals;
    for (const AppTotal& total : detail.totals()) {
        const bool isShown =
            !detail.category() ||
            *detail.category() == resolveCategory(total.bundleIdentifier, detail.preferences());
        if (isShown) {
            totals.push_back(total);
        }
    }
    return totals;
}

Content::Row appRow(const AppTotal& total, const Scale& scale, const Preferences& preferences) {
    Content::Row row = rowOf(total.bundleIdentifier, total.displayName, total.activeSeconds, scale);
    row.category = resolveCategory(total.bundleIdentifier, preferences);
    row.canReset = hasOverride(total.bundleIdentifier, preferences);
    if (row.canReset) {
        row.detail = translated("set by you");
    }
    return row;
}

Content contentOfApps(const UsageDetail& detail) {
    const std::vector<AppTotal> shown = filtered(detail);
    const Scale scale = scaleOf(shown);
    Content content;
    content.summaryLine = summaryOf(scale.total, translatedCount(std::ssize(shown), "%1 app", "%1 apps"));
    content.chips = chipsOf(detail);
    for (const AppTotal& total : shown) {
        content.rows.push_back(appRow(total, scale, detail.preferences()));
    }
    if (!detail.hasLoaded() && detail.totals().empty()) {
        content.placeholder = translated("Loading…");
    } else if (shown.empty()) {
        content.placeholder = detail.category() ? translated("No apps in this category.")
                                                : translated("Nothing recorded in this range.");
    }
    content.firstNote = translated("Categories are yours to change and only affect this view.");
    content.secondNote = translated("attributed from window bounds · no extra permissions");
    return content;
}

Content::Row siteRow(const WebsiteTotal& site, const Scale& scale, DayRange range) {
    Content::Row row = rowOf(site.domain, site.domain, site.activeSeconds, scale);
    if (range != DayRange::today) {
        row.detail = translatedCount(site.dayCount, "%1 day", "%1 days");
    }
    return row;
}

Content contentOfWebsites(const UsageDetail& detail) {
    const Scale scale = scaleOf(detail.sites());
    Content content;
    content.summaryLine =
        summaryOf(scale.total, translatedCount(std::ssize(detail.sites()), "%1 site", "%1 sites"));
    for (const WebsiteTotal& site : detail.sites()) {
        content.rows.push_back(siteRow(site, scale, detail.range()));
    }
    if (detail.sites().empty()) {
        content.placeholder =
            detail.hasLoaded()
                ? translated("No website time in this range. Turn a browser on in Settings › Website Stats.")
                : translated("Loading…");
    }
    content.firstNote = translated("Domains only — never full URLs, page titles, or contents.");
    content.secondNote = translated("from the browsers you enabled · Automation permission");
    return content;
}

} // namespace

UsageDetailContent UsageDetailContent::of(const UsageDetail& detail) {
    switch (detail.source()) {
    case UsageSource::apps:
        return contentOfApps(detail);
    case UsageSource::websites:
        return contentOfWebsites(detail);
    }
    return {};
}

std::string usageSourceLabel(UsageSource source) {
    switch (source) {
    case UsageSource::apps:
        return translated("Apps");
    case UsageSource::websites:
        return translated("Websites");
    }
    return {};
}

} // namespace kestrelfen
