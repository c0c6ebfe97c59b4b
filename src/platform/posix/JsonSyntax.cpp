#include "platform/posix/JsonSyntax.hpp"

#include "platform/ports/Utf8.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::string_view whiteSpace = " \t\r\n";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

std::size_t digitsEnd(std::string_view text, std::size_t position) {
    while (position < text.size() && isDigit(text[position])) {
        ++position;
    }
    return position;
}

bool isAt(std::string_view text, std::size_t position, std::string_view characters) {
    return position < text.size() && characters.find(text[position]) != std::string_view::npos;
}

/// The end of the JSON number that begins at `begin`, or `begin` itself where there is none.
std::size_t numberEnd(std::string_view text, std::size_t begin) {
    const std::size_t whole = isAt(text, begin, "-") ? begin + 1 : begin;
    std::size_t end = isAt(text, whole, "0") ? whole + 1 : digitsEnd(text, whole);
    if (end == whole) {
        return begin;
    }
    if (isAt(text, end, ".") && digitsEnd(text, end + 1) > end + 1) {
        end = digitsEnd(text, end + 1);
    }
    if (isAt(text, end, "eE")) {
        const std::size_t exponent = isAt(text, end + 1, "+-") ? end + 2 : end + 1;
        end = digitsEnd(text, exponent) > exponent ? digitsEnd(text, exponent) : end;
    }
    return end;
}

/// `text` with a 0 and spaces in place of every number, because the parser refuses those beyond the range of
/// a double although they are JSON. All positions stay.
std::string withoutNumbers(std::string_view text) {
    std::string result(text);
    for (std::size_t position = 0; position < text.size();) {
        if (text[position] == '"') {
            position = jsonStringEnd(text, position);
            continue;
        }
        const std::size_t end = numberEnd(text, position);
        if (end > position) {
            std::fill(result.begin() + static_cast<std::ptrdiff_t>(position),
                      result.begin() + static_cast<std::ptrdiff_t>(end), ' ');
            result[position] = '0';
        }
        position = std::max(end, position + 1);
    }
    return result;
}

std::string placeOf(std::string_view text, std::size_t position) {
    const std::string_view before = text.substr(0, position);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    return "line " + std::to_string(line) + ", byte " + std::to_string(column);
}

std::string syntaxProblem(std::string_view text, std::size_t bytesRead) {
    if (bytesRead > text.size()) {
        return "it breaks off at " + placeOf(text, text.size());
    }
    return "it is not valid JSON at " + placeOf(text, bytesRead == 0 ? 0 : bytesRead - 1);
}

} // namespace

std::optional<std::string> jsonObjectProblem(std::string_view text) {
    if (text.find_first_not_of(whiteSpace) == std::string_view::npos) {
        return "it is empty";
    }
    // The parser would take a zero byte for the end of the text.
    if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos) {
        return "it has a zero byte at " + placeOf(text, zero);
    }
    if (!isWellFormedUtf8(text)) {
        return "it is not UTF-8 text";
    }
    try {
        const auto json = nlohmann::json::parse(withoutNumbers(text));
        return json.is_object() ? std::nullopt : std::optional<std::string>("it holds no JSON object");
    } catch (const nlohmann::json::parse_error& error) {
        return syntaxProblem(text, error.byte);
    }
}

std::size_t jsonStringEnd(std::string_view text, std::size_t begin) {
    for (std::size_t position = begin + 1; position < text.size(); ++position) {
        if (text[position] == '\\') {
            ++position;
        } else if (text[position] == '"') {
            return position + 1;
        }
    }
    return text.size();
}

} // namespace kestrelfen
