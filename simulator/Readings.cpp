#include "Readings.hpp"

#include "Readers.hpp"
#include "ScenarioError.hpp"
#include "UnbuiltWords.hpp"
#include "Values.hpp"

namespace kestrelfen {

Json reading(Simulation& simulation, const std::string& what, Arguments& arguments) {
    for (const auto find : {viewReader, senseReader, historyReader}) {
        if (const Reader reader = find(what)) {
            Json json{{"show", what}};
            json.update(reader(simulation, arguments));
            return json;
        }
    }
    throw ScenarioError(quoted(what) + (isUnbuiltReading(what) ? ": not built yet" : " is no reading"));
}

} // namespace kestrelfen
