#pragma once

#include "base/Enumeration.hpp"
#include "base/Translated.hpp"

namespace kestrelfen {

/// How many days a list looks back over, the present one included.
enum class DayRange { today, week, month };

template <>
struct EnumerationTable<DayRange> {
    static constexpr std::array<EnumerationRow<DayRange>, 3> rows{{
        {DayRange::today, "today", toTranslate("Today")},
        {DayRange::week, "week", toTranslate("7 days")},
        {DayRange::month, "month", toTranslate("30 days")},
    }};
};

/// The days from the present one to the first of the range: 0 or less.
constexpr int dayOffset(DayRange range) {
    switch (range) {
    case DayRange::today:
        return 0;
    case DayRange::week:
        return -6;
    case DayRange::month:
        return -29;
    }
    return 0;
}

} // namespace kestrelfen
