#include "Readings.hpp"

#include "Readers.hpp"
#include "ScenarioError.hpp"
#include "Values.hpp"

namespace kestrelfen {

namespace {

constexpr std::array families{viewReaders,       senseReaders,    historyReaders,   popoverReaders,
                              mainWindowReaders, settingsReaders, onboardingReaders};

} // namespace

Json reading(Simulation& simulation, const std::string& what, Arguments& arguments) {
    for (const auto readers : families) {
        for (const auto& [name, reader, forms] : readers()) {
            if (name == what) {
                Json json{{"show", what}};
                json.update(reader(simulation, arguments));
                return json;
            }
        }
    }
    throw ScenarioError(quoted(what) + " is no reading");
}

FormList readingForms() {
    std::vector<FormList> lists;
    lists.reserve(std::size(families));
    for (const auto readers : families) {
        lists.push_back(formsOfAll(readers()));
    }
    return joined(std::move(lists));
}

} // namespace kestrelfen
