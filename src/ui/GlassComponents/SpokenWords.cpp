#include "ui/GlassComponents/SpokenWords.hpp"

#include "base/Translated.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

namespace {

QString textOf(std::string_view original) {
    return shownText(std::string_view(translated(original)));
}

} // namespace

QString SpokenWords::unavailable() {
    return textOf(toTranslate("Not available"));
}

QString SpokenWords::view() {
    return textOf(toTranslate("View"));
}

QString SpokenWords::source() {
    return textOf(toTranslate("Source"));
}

QString SpokenWords::range() {
    return textOf(toTranslate("Days"));
}

QString SpokenWords::category() {
    return textOf(toTranslate("Category"));
}

} // namespace kestrelfen
