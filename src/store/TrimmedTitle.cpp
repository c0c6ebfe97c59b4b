#include "store/TrimmedTitle.hpp"

#include <array>

namespace kestrelfen {

namespace {

/// Unicode's separators, the tabulator and the line ends.
constexpr std::array<std::string_view, 25> blanks{
    "\t",           "\n",           "\v",           "\f",           "\r",           " ",
    "\xC2\x85",     "\xC2\xA0",     "\xE1\x9A\x80", "\xE2\x80\x80", "\xE2\x80\x81", "\xE2\x80\x82",
    "\xE2\x80\x83", "\xE2\x80\x84", "\xE2\x80\x85", "\xE2\x80\x86", "\xE2\x80\x87", "\xE2\x80\x88",
    "\xE2\x80\x89", "\xE2\x80\x8A", "\xE2\x80\xA8", "\xE2\x80\xA9", "\xE2\x80\xAF", "\xE2\x81\x9F",
    "\xE3\x80\x80",
};

std::size_t blankAtFront(std::string_view text) {
    for (const std::string_view blank : blanks) {
        if (text.starts_with(blank)) {
            return blank.size();
        }
    }
    return 0;
}

std::size_t blankAtBack(std::string_view text) {
    for (const std::string_view blank : blanks) {
        if (text.ends_with(blank)) {
            return blank.size();
        }
    }
    return 0;
}

} // namespace

std::string trimmedTitle(std::string_view text) {
    while (const std::size_t length = blankAtFront(text)) {
        text.remove_prefix(length);
    }
    while (const std::size_t length = blankAtBack(text)) {
        text.remove_suffix(length);
    }
    return std::string(text);
}

} // namespace kestrelfen
