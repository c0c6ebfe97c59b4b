#include "screentime/DomainCache.hpp"

#include "platform/ports/Applications.hpp"
#include "sensing/BrowserScripting.hpp"

namespace kestrelfen {

const std::string* DomainCache::currentDomain(const RunningApplication& application, Date now) {
    const auto browser =
        application.bundleIdentifier ? matchingBrowser(*application.bundleIdentifier) : std::nullopt;
    if (!browser || !isEnabled(*browser, preferences_)) {
        return nullptr;
    }
    if (!isYounger(*browser, now, lifetime)) {
        refresh(*browser, now);
    }
    return cached_ && cached_->domain ? &*cached_->domain : nullptr;
}

void DomainCache::refresh(Browser browser, Date now) {
    auto answer = browserScripting_.frontmostDomain(browser);
    if (!answer.isPending) {
        cached_ = {browser, std::move(answer.domain), now};
    } else if (!isYounger(browser, now, 2 * lifetime)) {
        cached_.reset();
    }
}

bool DomainCache::isYounger(Browser browser, Date now, double seconds) const {
    return cached_ && cached_->browser == browser && now - cached_->resolvedAt < seconds;
}

} // namespace kestrelfen
