#include "Readings.hpp"

#include "Readers.hpp"
#include "ScenarioError.hpp"
#include "Values.hpp"

namespace kestrelfen {

Json reading(Simulation& simulation, const std::string& what, Arguments& arguments) {
    for (const auto find : {viewReader, senseReader, historyReader, popoverReader, mainWindowReader,
                            settingsReader, onboardingReader}) {
        if (const Reader reader = find(what)) {
            Json json{{"show", what}};
            json.update(reader(simulation, arguments));
            return json;
        }
    }
    throw ScenarioError(quoted(what) + " is no reading");
}

} // namespace kestrelfen
