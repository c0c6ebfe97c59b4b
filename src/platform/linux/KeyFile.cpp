#include "platform/linux/KeyFile.hpp"

namespace kestrelfen {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return trimmed(line);
}

char unescaped(char letter) {
    switch (letter) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    default:
        return letter;
    }
}

bool isEscape(char letter) {
    return std::string_view("sntr\\").find(letter) != std::string_view::npos;
}

} // namespace

std::optional<std::string_view> keyFileGroupName(std::string_view line) {
    const bool isGroup = line.size() > 2 && line.front() == '[' && line.back() == ']';
    return isGroup ? std::optional(line.substr(1, line.size() - 2)) : std::nullopt;
}

std::map<std::string, std::string, std::less<>> keyFileGroup(std::string_view text, std::string_view group) {
    std::map<std::string, std::string, std::less<>> values;
    bool isInside = false;
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        const std::size_t equals = line.find('=');
        if (const auto name = keyFileGroupName(line)) {
            if (isInside) {
                return values;
            }
            isInside = *name == group;
        } else if (isInside && !line.starts_with('#') && equals != std::string_view::npos) {
            values.emplace(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
        }
    }
    return values;
}

std::string unescapedValue(std::string_view value) {
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const bool escapes = value[at] == '\\' && at + 1 < value.size() && isEscape(value[at + 1]);
        text += escapes ? unescaped(value[++at]) : value[at];
    }
    return text;
}

} // namespace kestrelfen
