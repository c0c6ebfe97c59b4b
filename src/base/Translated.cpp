#include "base/Translated.hpp"

namespace kestrelfen {

namespace {

const Catalogue* inUse = nullptr;

} // namespace

void useCatalogue(const Catalogue* catalogue) {
    inUse = catalogue;
}

std::string filled(std::string_view pattern, std::initializer_list<std::string_view> values) {
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const std::size_t place = pattern[at] == '%' && at + 1 < pattern.size()
                                      ? static_cast<std::size_t>(pattern[at + 1] - '1')
                                      : 9;
        if (place < values.size()) {
            text += values.begin()[place];
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

std::string translated(std::string_view original) {
    return inUse ? inUse->text(original) : std::string(original);
}

std::string translated(std::string_view original, std::initializer_list<std::string_view> values) {
    return filled(translated(original), values);
}

std::string translatedCount(std::int64_t count, std::string_view one, std::string_view many) {
    const std::string pattern =
        inUse ? inUse->counted(count, one, many) : std::string(count == 1 ? one : many);
    return filled(pattern, {std::to_string(count)});
}

} // namespace kestrelfen
