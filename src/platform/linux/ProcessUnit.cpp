#include "platform/linux/ProcessUnit.hpp"

#include "base/ParsedNumber.hpp"

#include <algorithm>
#include <charconv>

namespace kestrelfen {

namespace {

constexpr std::string_view scopeEnding = ".scope";
constexpr std::string_view serviceEnding = ".service";

/// The part before the mark, which is cut off together with it; all of it when there is no mark.
std::string_view takeUntil(std::string_view& text, char mark) {
    const std::size_t at = text.find(mark);
    const std::string_view part = text.substr(0, at);
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
    return part;
}

std::string_view lastPart(std::string_view text) {
    return text.substr(text.rfind('-') + 1);
}

std::optional<unsigned char> escapedByte(std::string_view text) {
    constexpr std::size_t size = 4;
    unsigned char byte = 0;
    if (text.size() < size || !text.starts_with("\\x")) {
        return std::nullopt;
    }
    const auto [end, error] = std::from_chars(text.data() + 2, text.data() + size, byte, 16);
    return error == std::errc() && end == text.data() + size ? std::optional(byte) : std::nullopt;
}

std::string withoutEscapes(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto byte = escapedByte(text);
        result += byte ? static_cast<char>(*byte) : text.front();
        text.remove_prefix(byte ? 4 : 1);
    }
    return result;
}

/// app[-LAUNCHER]-ID-NUMBER.scope and app[-LAUNCHER]-ID[@WORD].service; dashes within a part are escaped.
std::optional<ProcessUnit> applicationUnit(std::string_view unit) {
    constexpr std::string_view beginning = "app-";
    constexpr std::string_view flatpak = "flatpak-";
    if (!unit.starts_with(beginning)) {
        return std::nullopt;
    }
    unit.remove_prefix(beginning.size());
    ProcessUnit result;
    result.kind = unit.starts_with(flatpak) ? ProcessUnit::Kind::flatpak : ProcessUnit::Kind::application;
    if (unit.ends_with(scopeEnding)) {
        unit.remove_suffix(scopeEnding.size());
        result.mainProcess = parsedNumber<std::int32_t>(lastPart(unit));
        unit = unit.substr(0, unit.rfind('-'));
    } else if (unit.ends_with(serviceEnding)) {
        unit.remove_suffix(serviceEnding.size());
        unit = takeUntil(unit, '@');
    } else {
        return std::nullopt;
    }
    result.applicationId = withoutEscapes(lastPart(unit));
    return result.applicationId.empty() ? std::nullopt : std::optional(result);
}

/// snap.NAME.APP[-WORD].scope, .service, and the like with a dot before the word. The words are of 36
/// letters, with dashes.
std::optional<ProcessUnit> snapUnit(std::string_view unit) {
    constexpr std::size_t wordSize = 36;
    if (takeUntil(unit, '.') != "snap") {
        return std::nullopt;
    }
    const std::string_view name = takeUntil(unit, '.');
    std::string_view application = takeUntil(unit, '.');
    if (application.size() > wordSize && application[application.size() - wordSize - 1] == '-') {
        application.remove_suffix(wordSize + 1);
    }
    ProcessUnit result{ProcessUnit::Kind::snap, std::string(name), std::string(name), std::nullopt};
    result.applicationId.append("_").append(application);
    return name.empty() || application.empty() ? std::nullopt : std::optional(result);
}

/// The innermost unit of an application on the path.
std::optional<ProcessUnit> unitOnPath(std::string_view path) {
    while (!path.empty()) {
        const std::string_view unit = path.substr(path.rfind('/') + 1);
        if (auto found = applicationUnit(unit)) {
            return found;
        }
        if (auto found = snapUnit(unit)) {
            return found;
        }
        path.remove_suffix(std::min(path.size(), unit.size() + 1));
    }
    return std::nullopt;
}

} // namespace

std::optional<ProcessUnit> ProcessUnit::parse(std::string_view controlGroups) {
    while (!controlGroups.empty()) {
        std::string_view line = takeUntil(controlGroups, '\n');
        takeUntil(line, ':');
        takeUntil(line, ':');
        if (auto found = unitOnPath(line)) {
            return found;
        }
    }
    return std::nullopt;
}

} // namespace kestrelfen
