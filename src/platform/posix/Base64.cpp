#include "platform/posix/Base64.hpp"

#include <array>
#include <cstddef>

namespace kestrelfen {

namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t bytesPerGroup = 3;
constexpr std::size_t charactersPerGroup = 4;
constexpr unsigned bitsPerCharacter = 6;

} // namespace

std::string base64(const std::vector<std::uint8_t>& bytes) {
    std::string text;
    for (std::size_t begin = 0; begin < bytes.size(); begin += bytesPerGroup) {
        std::uint32_t group = 0;
        for (std::size_t index = begin; index < begin + bytesPerGroup; ++index) {
            group = (group << 8U) | (index < bytes.size() ? bytes[index] : 0U);
        }
        const std::size_t meant = bytes.size() - begin + 1;
        for (std::size_t place = 0; place < charactersPerGroup; ++place) {
            const auto shift = static_cast<unsigned>(charactersPerGroup - 1 - place) * bitsPerCharacter;
            text += place < meant || meant > bytesPerGroup ? alphabet[(group >> shift) & 0x3FU] : '=';
        }
    }
    return text;
}

std::optional<std::vector<std::uint8_t>> parseBase64(std::string_view text) {
    std::vector<std::uint8_t> bytes;
    std::uint32_t bits = 0;
    unsigned count = 0;
    for (const char character : text.substr(0, text.find('='))) {
        const std::size_t digit = alphabet.find(character);
        if (digit == std::string_view::npos) {
            return std::nullopt;
        }
        bits = (bits << bitsPerCharacter) | static_cast<std::uint32_t>(digit);
        count += bitsPerCharacter;
        if (count >= 8) {
            count -= 8;
            bytes.push_back(static_cast<std::uint8_t>(bits >> count));
        }
    }
    return base64(bytes) == text ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace kestrelfen
