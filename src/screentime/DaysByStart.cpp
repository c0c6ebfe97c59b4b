#include "screentime/DaysByStart.hpp"

#include "base/Fault.hpp"

namespace kestrelfen {

DaysByStart daysByStart(const std::vector<DaySummary>& days) {
    DaysByStart result;
    for (const DaySummary& day : days) {
        if (!result.emplace(day.startOfDay, &day).second) {
            fault("two summaries of one day");
        }
    }
    return result;
}

} // namespace kestrelfen
