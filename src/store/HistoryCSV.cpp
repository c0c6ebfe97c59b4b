#include "store/HistoryCSV.hpp"

#include "base/CivilTime.hpp"
#include "store/HistoryEntry.hpp"

#include <array>
#include <charconv>
#include <limits>

namespace kestrelfen {

HistoryCSV::HistoryCSV() : text_("started_at,type,duration_seconds,task,displays\n") {}

void HistoryCSV::add(const HistoryEntry& entry) {
    addField(isoTime(entry.startedAt, 0));
    text_ += ',';
    addField(label(entry.kind));
    text_ += ',';
    if (entry.seconds) {
        addSeconds(*entry.seconds);
    }
    text_ += ',';
    if (entry.taskTitle) {
        addField(*entry.taskTitle);
    }
    text_ += ',';
    if (entry.displayCount >= 1) {
        text_ += std::to_string(entry.displayCount);
    }
    text_ += '\n';
}

/// As "%.0f" does, whatever the locale.
void HistoryCSV::addSeconds(double seconds) {
    std::array<char, std::numeric_limits<double>::max_exponent10 + 3> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), seconds, std::chars_format::fixed, 0).ptr;
    text_.append(digits.begin(), end);
}

void HistoryCSV::addField(std::string_view field) {
    if (field.find_first_of(",\"\n\r") == std::string_view::npos) {
        text_ += field;
        return;
    }
    text_ += '"';
    for (const char character : field) {
        text_.append(character == '"' ? 2 : 1, character);
    }
    text_ += '"';
}

} // namespace kestrelfen
