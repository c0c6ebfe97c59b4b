#include "EventLog.hpp"

#include "Output.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace kestrelfen {

namespace {

constexpr std::array<std::string_view, 11> kinds{"log",     "stdout",     "authorization", "notification",
                                                 "windows", "lock",       "script",        "audio",
                                                 "dock",    "login-item", "flush"};

} // namespace

bool EventLog::isKind(const std::string& kind) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

FormList EventLog::kindForms() {
    return formsOf(kinds);
}

void EventLog::add(const std::string& kind, Date at, const Json& details) {
    Json event{{"event", kind}, {"at", jsonOf(at)}};
    event.update(details);
    if (printing_) {
        Output::line(lineOf(event));
    }
    latest_[kind] = std::move(event);
}

Json EventLog::latest(const std::string& kind) const {
    const auto found = latest_.find(kind);
    return found == latest_.end() ? Json(nullptr) : found->second;
}

} // namespace kestrelfen
