#include "platform/linux/LinuxPrograms.hpp"

#include "platform/linux/KnownPrograms.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

namespace {

constexpr int mostGenerations = 10;

std::optional<std::string> unlessEmpty(const std::string& text) {
    return text.empty() ? std::nullopt : std::optional(text);
}

std::string_view withoutInstanceKey(std::string_view snapName) {
    return snapName.substr(0, snapName.find('_'));
}

/// The product that the entry is one of, in the way of the built-in lists where they name it.
std::string productOf(const DesktopEntry& entry) {
    for (const std::string_view name :
         {std::string_view(entry.id), std::string_view(entry.flatpakId), withoutInstanceKey(entry.snapName),
          std::string_view(entry.startupClass)}) {
        if (const auto known = KnownPrograms::bundleIdentifier(name)) {
            return std::string(*known);
        }
    }
    return entry.id;
}

bool isInSnap(const std::filesystem::path& executable) {
    const std::string path = executable.string();
    return path.starts_with("/snap/") || path.starts_with("/var/lib/snapd/snap/");
}

/// Whether the unit was made for this process, and not for one of its ancestors.
bool isOwnUnit(const ProcessFacts& facts, std::int32_t number) {
    switch (facts.unit->kind) {
    case ProcessUnit::Kind::flatpak:
        return true;
    case ProcessUnit::Kind::snap:
        return facts.executable.empty() || isInSnap(facts.executable);
    case ProcessUnit::Kind::application:
        return facts.unit->mainProcess == number;
    }
    return false;
}

/// Of an entry outside of the folders of entries, like one that starts with the session, its bare name.
std::string launchedId(const std::filesystem::path& file) {
    std::string id = file.stem().string();
    for (auto folder = file.parent_path(); folder.has_filename(); folder = folder.parent_path()) {
        if (folder.filename() == "applications") {
            return id;
        }
        id.insert(0, folder.filename().string().append("-"));
    }
    return file.stem().string();
}

/// The number may be a sandbox's own, and another process have it outside.
bool bears(const ProcessFacts& facts, const std::string& binary) {
    return binary.empty() || facts.executable.filename() == binary || facts.command == binary.substr(0, 15);
}

} // namespace

LinuxPrograms::LinuxPrograms(ProgramPlaces places)
    : index_(std::move(places.entries), std::move(places.locale)), processes_(std::move(places.processes)) {}

Program LinuxPrograms::identify(const WindowClues& clues) {
    index_.refresh();
    const ProcessFacts* const facts = process(clues.processIdentifier);
    Found found = byProcessAlone(facts, clues.processIdentifier);
    if (!found) {
        found = byWindow(clues);
    }
    if (!found) {
        found = byProgramFile(facts);
    }
    // A program without an entry is not what it was started from: its class tells it from that.
    if (!found && clues.className.empty() && facts && facts->unit) {
        found = byUnit(*facts->unit);
    }
    if (!found) {
        return {unlessEmpty(clues.className), unlessEmpty(clues.className)};
    }
    const std::string& name =
        found->entry && !found->entry->name.empty() ? found->entry->name : clues.className;
    return {found->bundleIdentifier, unlessEmpty(name)};
}

bool LinuxPrograms::isInstalled(std::string_view bundleIdentifier) {
    index_.refresh();
    const auto& entries = index_.entries();
    return std::any_of(entries.begin(), entries.end(),
                       [&](const DesktopEntry& entry) { return productOf(entry) == bundleIdentifier; });
}

std::optional<std::vector<std::string>> LinuxPrograms::launchCommand(std::string_view bundleIdentifier) {
    index_.refresh();
    const auto& entries = index_.entries();
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const DesktopEntry& entry) {
        return !entry.words.empty() && !entry.isOnlyForTerminals && productOf(entry) == bundleIdentifier;
    });
    return found == entries.end() ? std::nullopt : std::optional(found->words);
}

std::optional<std::string> LinuxPrograms::bundleIdentifier(const ProgramClues& clues) {
    index_.refresh();
    const Found found = byClues(clues);
    return found ? std::optional(found->bundleIdentifier) : std::nullopt;
}

const ProcessFacts* LinuxPrograms::process(std::optional<std::int32_t> number) {
    return number ? processes_.find(*number) : nullptr;
}

const ProcessFacts* LinuxPrograms::processMeant(const ProgramClues& clues) {
    const ProcessFacts* const facts = process(clues.processIdentifier);
    return facts && bears(*facts, clues.binary) ? facts : nullptr;
}

LinuxPrograms::Found LinuxPrograms::byClues(const ProgramClues& clues) {
    const ProcessFacts* const facts = processMeant(clues);
    if (Found found = byProcessAlone(facts, clues.processIdentifier)) {
        return found;
    }
    if (Found found = byId(clues.applicationId)) {
        return found;
    }
    if (Found found = byExecutable(clues.binary)) {
        return found;
    }
    if (facts) {
        if (Found found = byAncestry(*clues.processIdentifier)) {
            return found;
        }
    }
    return byIcon(clues.iconName);
}

LinuxPrograms::Found LinuxPrograms::byAncestry(std::int32_t number) {
    for (int generation = 0; generation <= mostGenerations && number > 1; ++generation) {
        const ProcessFacts* const facts = processes_.find(number);
        if (!facts) {
            return std::nullopt;
        }
        if (Found found = byProcessAlone(facts, number)) {
            return found;
        }
        if (Found found = byProgramFile(facts)) {
            return found;
        }
        if (facts->unit) {
            if (Found found = byUnit(*facts->unit)) {
                return found;
            }
        }
        number = facts->parent;
    }
    return std::nullopt;
}

LinuxPrograms::Found LinuxPrograms::byProcessAlone(const ProcessFacts* facts,
                                                   std::optional<std::int32_t> number) const {
    if (!facts) {
        return std::nullopt;
    }
    if (!facts->flatpakId.empty()) {
        return byFlatpak(facts->flatpakId);
    }
    if (facts->unit && isOwnUnit(*facts, *number)) {
        if (Found found = byUnit(*facts->unit)) {
            return found;
        }
    }
    return byLaunchedEntry(facts->launchedEntry);
}

LinuxPrograms::Found LinuxPrograms::byFlatpak(const std::string& name) const {
    const Found found = byId(name);
    return found ? found : Finding{name, nullptr};
}

LinuxPrograms::Found LinuxPrograms::byUnit(const ProcessUnit& unit) const {
    switch (unit.kind) {
    case ProcessUnit::Kind::flatpak:
        return byFlatpak(unit.applicationId);
    case ProcessUnit::Kind::snap:
        if (Found found = byId(unit.applicationId)) {
            return found;
        }
        if (Found found = ofEntry(index_.withSnap(unit.snapName))) {
            return found;
        }
        return ofKnown(withoutInstanceKey(unit.snapName));
    case ProcessUnit::Kind::application:
        return byId(unit.applicationId);
    }
    return std::nullopt;
}

LinuxPrograms::Found LinuxPrograms::byLaunchedEntry(const std::filesystem::path& file) const {
    return byId(launchedId(file));
}

LinuxPrograms::Found LinuxPrograms::byWindow(const WindowClues& clues) const {
    if (Found found = byId(clues.gtkApplicationId)) {
        return found;
    }
    for (const auto find : {&DesktopEntryIndex::withStartupClass, &DesktopEntryIndex::withId,
                            &DesktopEntryIndex::withLastIdPart}) {
        for (const std::string& name : {clues.className, clues.instanceName}) {
            if (Found found = ofEntry((index_.*find)(name))) {
                return found;
            }
        }
    }
    const Found found = ofKnown(clues.className);
    return found ? found : ofKnown(clues.instanceName);
}

LinuxPrograms::Found LinuxPrograms::byProgramFile(const ProcessFacts* facts) const {
    if (!facts) {
        return std::nullopt;
    }
    const Found found = byExecutable(facts->executable.filename().string());
    return found ? found : byExecutable(facts->command);
}

LinuxPrograms::Found LinuxPrograms::byId(std::string_view id) const {
    const Found found = ofEntry(index_.withId(id));
    return found ? found : ofKnown(id);
}

LinuxPrograms::Found LinuxPrograms::byExecutable(std::string_view name) const {
    Found found = ofEntry(index_.withExecutable(name));
    if (const Found known = ofKnown(name)) {
        return Finding{known->bundleIdentifier, found ? found->entry : nullptr};
    }
    return found;
}

LinuxPrograms::Found LinuxPrograms::byIcon(std::string_view name) const {
    // The icon of everything that is built upon Chromium.
    if (name == "chromium-browser") {
        return std::nullopt;
    }
    const Found found = byId(name);
    return found ? found : ofEntry(index_.withIcon(name));
}

LinuxPrograms::Found LinuxPrograms::ofEntry(const DesktopEntry* entry) {
    return entry ? Found(Finding{productOf(*entry), entry}) : std::nullopt;
}

LinuxPrograms::Found LinuxPrograms::ofKnown(std::string_view name) {
    const auto known = KnownPrograms::bundleIdentifier(name);
    return known ? Found(Finding{std::string(*known), nullptr}) : std::nullopt;
}

} // namespace kestrelfen
