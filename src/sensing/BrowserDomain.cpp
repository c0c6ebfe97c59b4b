#include "platform/ports/Utf8.hpp"
#include "sensing/BrowserScripting.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::string_view wwwPrefix = "www.";

/// What may stand in a host besides letters, digits and characters beyond ASCII.
constexpr std::string_view hostPunctuation = "-._~!$&'()*+,;=";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

char lowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

bool isLetter(char character) {
    return lowerCase(character) >= 'a' && lowerCase(character) <= 'z';
}

bool isBeyondAscii(char character) {
    return static_cast<unsigned char>(character) >= 0x80;
}

bool isBlankOrControl(char character) {
    return static_cast<unsigned char>(character) <= 0x20 || character == 0x7f;
}

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char each) { return lowerCase(each); });
    return text;
}

std::optional<int> hexDigit(char character) {
    const char lower = lowerCase(character);
    if (isDigit(lower)) {
        return lower - '0';
    }
    return lower >= 'a' && lower <= 'f' ? std::optional(lower - 'a' + 10) : std::nullopt;
}

std::optional<std::string> withoutPercentEncoding(std::string_view text) {
    std::string decoded;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '%') {
            decoded += text[index];
            continue;
        }
        const auto high = index + 2 < text.size() ? hexDigit(text[index + 1]) : std::nullopt;
        const auto low = high ? hexDigit(text[index + 2]) : std::nullopt;
        if (!low) {
            return std::nullopt;
        }
        decoded += static_cast<char>(*high * 16 + *low);
        index += 2;
    }
    return decoded;
}

/// What stands between the two slashes and the path, without the user's name; absent unless the address is
/// one of the web.
std::optional<std::string_view> hostAndPort(std::string_view address) {
    const std::size_t colon = address.find(':');
    const std::string scheme = lowerCase(std::string(address.substr(0, colon)));
    if (colon == std::string_view::npos || (scheme != "http" && scheme != "https")) {
        return std::nullopt;
    }
    std::string_view rest = address.substr(colon + 1);
    if (rest.substr(0, 2) != "//") {
        return std::nullopt;
    }
    rest.remove_prefix(2);
    rest = rest.substr(0, rest.find_first_of("/?#"));
    return rest.substr(rest.rfind('@') + 1);
}

/// Whether `text`, that follows a host, is nothing or a port.
bool isPortOrNothing(std::string_view text) {
    return text.empty() || (text.front() == ':' && std::all_of(text.begin() + 1, text.end(), isDigit));
}

/// The address within the brackets, without its zone: that names a way to the host, not the host.
std::optional<std::string> literalHost(std::string_view text) {
    const std::size_t end = text.find(']');
    if (end == std::string_view::npos || !isPortOrNothing(text.substr(end + 1))) {
        return std::nullopt;
    }
    const std::string_view inside = text.substr(1, end - 1);
    const std::string_view address = inside.substr(0, inside.find('%'));
    const bool isAddress = address.find(':') != std::string_view::npos &&
                           std::all_of(address.begin(), address.end(),
                                       [](char c) { return c == ':' || c == '.' || hexDigit(c); });
    return isAddress ? std::optional(std::string(address)) : std::nullopt;
}

std::optional<std::string> namedHost(std::string_view text) {
    const std::string_view name = text.substr(0, text.find(':'));
    if (!isPortOrNothing(text.substr(name.size()))) {
        return std::nullopt;
    }
    auto host = withoutPercentEncoding(name);
    const auto mayStandInHost = [](char c) {
        return isLetter(c) || isDigit(c) || isBeyondAscii(c) || hostPunctuation.find(c) != std::string::npos;
    };
    const bool isHost =
        host && std::all_of(host->begin(), host->end(), mayStandInHost) && isWellFormedUtf8(*host);
    return isHost ? host : std::nullopt;
}

} // namespace

std::optional<std::string> BrowserScripting::domain(std::string_view address) {
    if (std::any_of(address.begin(), address.end(), isBlankOrControl) || !isWellFormedUtf8(address)) {
        return std::nullopt;
    }
    const auto authority = hostAndPort(address);
    if (!authority || authority->empty()) {
        return std::nullopt;
    }
    const auto host = authority->front() == '[' ? literalHost(*authority) : namedHost(*authority);
    if (!host || host->empty()) {
        return std::nullopt;
    }
    std::string domain = lowerCase(*host);
    if (domain.compare(0, wwwPrefix.size(), wwwPrefix) == 0) {
        domain.erase(0, wwwPrefix.size());
    }
    return domain;
}

} // namespace kestrelfen
