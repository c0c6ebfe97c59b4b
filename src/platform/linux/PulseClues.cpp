#include "platform/linux/PulseClues.hpp"

#include "base/ParsedNumber.hpp"

#include <initializer_list>
#include <string_view>

namespace kestrelfen {

namespace {

std::string_view text(const pa_proplist& properties, const char* key) {
    const char* const value = pa_proplist_gets(&properties, key);
    return value ? value : "";
}

/// The text under the first of the keys that has one.
std::string firstText(const pa_proplist& properties, std::initializer_list<const char*> keys) {
    for (const char* const key : keys) {
        if (const std::string_view found = text(properties, key); !found.empty()) {
            return std::string(found);
        }
    }
    return {};
}

std::optional<std::int32_t> processNumber(const pa_proplist& properties, const char* key) {
    const auto number = parsedNumber<std::int32_t>(text(properties, key));
    return number && *number > 0 ? number : std::nullopt;
}

std::optional<std::int32_t> processNumber(const pa_proplist& properties) {
    // What PipeWire found out by itself comes before what the program says, which may be a sandbox's own
    // number. Of a program that speaks PulseAudio's protocol, it has found out the number of its own
    // translator.
    if (text(properties, "client.api") != "pipewire-pulse") {
        if (const auto found = processNumber(properties, "pipewire.sec.pid")) {
            return found;
        }
    }
    return processNumber(properties, PA_PROP_APPLICATION_PROCESS_ID);
}

} // namespace

ProgramClues programClues(const pa_proplist& properties) {
    return {processNumber(properties), firstText(properties, {PA_PROP_APPLICATION_PROCESS_BINARY}),
            firstText(properties, {"pipewire.access.portal.app_id", PA_PROP_APPLICATION_ID}),
            firstText(properties, {PA_PROP_APPLICATION_ICON_NAME})};
}

} // namespace kestrelfen
