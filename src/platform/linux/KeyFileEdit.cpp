#include "platform/linux/KeyFileEdit.hpp"

#include "platform/linux/KeyFile.hpp"

#include <utility>

namespace kestrelfen {

namespace {

std::string_view bare(std::string_view line) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = line.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

/// With its line feed.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
    return std::exchange(text, text.substr(length)).substr(0, length);
}

bool sets(std::string_view line, std::string_view key) {
    const std::size_t equals = line.find('=');
    return equals != std::string_view::npos && bare(line.substr(0, equals)) == key;
}

/// The text without the key's lines; with `added`, if there is any, right below the group's name.
std::string edited(std::string_view text, std::string_view group, std::string_view key,
                   const std::string& added) {
    std::string result;
    bool isInside = false;
    bool wasInside = false;
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        const std::string_view words = bare(line);
        if (const auto name = keyFileGroupName(words)) {
            isInside = !wasInside && *name == group;
        }
        if (isInside && !words.starts_with('#') && sets(words, key)) {
            continue;
        }
        result += line;
        if (isInside && !std::exchange(wasInside, true)) {
            result += (line.ends_with('\n') || added.empty() ? "" : "\n") + added;
        }
    }
    return result;
}

} // namespace

std::string withKey(std::string_view text, std::string_view group, std::string_view key,
                    std::string_view value) {
    return edited(text, group, key, std::string(key) + "=" + std::string(value) + "\n");
}

std::string withoutKey(std::string_view text, std::string_view group, std::string_view key) {
    return edited(text, group, key, {});
}

} // namespace kestrelfen
