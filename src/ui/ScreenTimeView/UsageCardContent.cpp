#include "ui/ScreenTimeView/UsageCardContent.hpp"

#include "base/Translated.hpp"
#include "core/Formatters.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

struct Named {
    std::string id;
    std::string name;
};

Named named(const AppUsageSummary& app) {
    return {app.id(), app.displayName};
}

Named named(const WebsiteUsageSummary& site) {
    return {site.domain, site.domain};
}

template <typename Usage>
std::vector<UsageCardContent::Row> rowsOf(const std::vector<Usage>& usages) {
    std::vector<UsageCardContent::Row> rows;
    const double scale = usages.empty() ? 1.0 : std::max(usages.front().activeSeconds, 1.0);
    for (const Usage& usage : usages) {
        if (rows.size() == UsageCardContent::rowLimit) {
            break;
        }
        const auto [id, name] = named(usage);
        rows.push_back({id, name, usage.activeSeconds, Formatters::activeTime(usage.activeSeconds),
                        usage.activeSeconds / scale});
    }
    return rows;
}

std::string emptyNoteOf(UsageSource source) {
    switch (source) {
    case UsageSource::apps:
        return translated("Nothing attributed yet.");
    case UsageSource::websites:
        return translated("No website time yet. Turn a browser on in Settings › Website Stats.");
    }
    return {};
}

std::string footnoteOf(UsageSource source) {
    switch (source) {
    case UsageSource::apps:
        return translated("Resolved from window bounds. No Screen Recording or Accessibility permission.");
    case UsageSource::websites:
        return translated("Domains only, from the browsers you enabled.");
    }
    return {};
}

UsageCardContent contentOf(UsageSource source, std::vector<UsageCardContent::Row> rows) {
    const bool isEmpty = rows.empty();
    return {.source = source,
            .title = usageCardTitle(source),
            .rows = std::move(rows),
            .emptyNote = isEmpty ? std::optional(emptyNoteOf(source)) : std::nullopt,
            .footnote = footnoteOf(source)};
}

} // namespace

std::string usageCardTitle(UsageSource source) {
    switch (source) {
    case UsageSource::apps:
        return translated("By App");
    case UsageSource::websites:
        return translated("By Website");
    }
    return {};
}

UsageCardContent UsageCardContent::ofApps(const std::vector<AppUsageSummary>& apps) {
    return contentOf(UsageSource::apps, rowsOf(apps));
}

UsageCardContent UsageCardContent::ofWebsites(const std::vector<WebsiteUsageSummary>& websites) {
    return contentOf(UsageSource::websites, rowsOf(websites));
}

} // namespace kestrelfen
