#include "platform/ports/Utf8.hpp"

#include <cstddef>
#include <cstdint>

namespace kestrelfen {

namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

/// The front of a text: how many of its bytes belong together, and whether they are a whole character.
struct Piece {
    std::size_t length;
    bool isCharacter;
};

/// What may follow a leading byte: how many bytes, and the range of the first of them; the others lie in
/// 0x80 to 0xBF.
struct Tail {
    std::size_t length;
    std::uint8_t low;
    std::uint8_t high;
};

std::uint8_t byteAt(std::string_view text, std::size_t index) {
    return static_cast<std::uint8_t>(text[index]);
}

/// Shuts out overlong forms, surrogates and what lies beyond U+10FFFF by the range of the second byte.
Tail tailOf(std::uint8_t lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return {1, 0x80, 0xBF};
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        const std::uint8_t low = lead == 0xE0 ? 0xA0 : 0x80;
        const std::uint8_t high = lead == 0xED ? 0x9F : 0xBF;
        return {2, low, high};
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const std::uint8_t low = lead == 0xF0 ? 0x90 : 0x80;
        const std::uint8_t high = lead == 0xF4 ? 0x8F : 0xBF;
        return {3, low, high};
    }
    return {0, 0, 0};
}

Piece frontPiece(std::string_view text) {
    const std::uint8_t lead = byteAt(text, 0);
    if (lead < 0x80) {
        return {1, true};
    }
    Tail tail = tailOf(lead);
    if (tail.length == 0) {
        return {1, false};
    }
    for (std::size_t index = 1; index <= tail.length; ++index) {
        if (index >= text.size() || byteAt(text, index) < tail.low || byteAt(text, index) > tail.high) {
            return {index, false};
        }
        tail.low = 0x80;
        tail.high = 0xBF;
    }
    return {tail.length + 1, true};
}

} // namespace

bool isWellFormedUtf8(std::string_view text) {
    while (!text.empty()) {
        const Piece piece = frontPiece(text);
        if (!piece.isCharacter) {
            return false;
        }
        text.remove_prefix(piece.length);
    }
    return true;
}

std::string wellFormedUtf8(std::string text) {
    if (isWellFormedUtf8(text)) {
        return text;
    }
    std::string result;
    for (std::string_view rest = text; !rest.empty();) {
        const Piece piece = frontPiece(rest);
        result += piece.isCharacter ? rest.substr(0, piece.length) : replacementCharacter;
        rest.remove_prefix(piece.length);
    }
    return result;
}

} // namespace kestrelfen
