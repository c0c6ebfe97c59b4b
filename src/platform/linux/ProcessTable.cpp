#include "platform/linux/ProcessTable.hpp"

#include "platform/linux/KeyFile.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>
#include <utility>

namespace kestrelfen {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostRemembered = 500;

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

fs::path executableIn(const fs::path& folder) {
    constexpr std::string_view replacedMark = " (deleted)";
    std::error_code error;
    std::string path = fs::read_symlink(folder / "exe", error).string();
    if (path.ends_with(replacedMark)) {
        path.resize(path.size() - replacedMark.size());
    }
    return path;
}

std::string flatpakIdIn(const fs::path& folder) {
    const auto values = keyFileGroup(contentOf(folder / "root/.flatpak-info"), "Application");
    const auto name = values.find("name");
    return name == values.end() ? std::string() : name->second;
}

std::string variableIn(std::string_view environment, std::string_view name) {
    while (!environment.empty()) {
        const std::string_view variable = environment.substr(0, environment.find('\0'));
        if (variable.starts_with(name) && variable.substr(name.size()).starts_with('=')) {
            return std::string(variable.substr(name.size() + 1));
        }
        environment.remove_prefix(std::min(environment.size(), variable.size() + 1));
    }
    return {};
}

/// Children inherit both variables: the number tells for whom they were meant.
fs::path launchedEntryIn(const fs::path& folder, std::int32_t process) {
    const std::string environment = contentOf(folder / "environ");
    const bool isMeant = variableIn(environment, "GIO_LAUNCHED_DESKTOP_FILE_PID") == std::to_string(process);
    return isMeant ? variableIn(environment, "GIO_LAUNCHED_DESKTOP_FILE") : std::string();
}

} // namespace

ProcessTable::ProcessTable(fs::path root) : root_(std::move(root)) {}

const ProcessFacts* ProcessTable::find(std::int32_t process) {
    const fs::path folder = root_ / std::to_string(process);
    auto facts = readStatus(folder);
    if (!facts) {
        known_.erase(process);
        return nullptr;
    }
    const auto known = known_.find(process);
    // A process that turns into another program keeps its number and its age, but not its name.
    if (known != known_.end() && known->second.startTime == facts->startTime &&
        known->second.command == facts->command) {
        known->second.parent = facts->parent;
        return &known->second;
    }
    if (known_.size() >= mostRemembered) {
        known_.clear();
    }
    readTraces(folder, process, *facts);
    return &known_.insert_or_assign(process, *std::move(facts)).first->second;
}

std::optional<ProcessFacts> ProcessTable::readStatus(const fs::path& folder) const {
    const std::string status = contentOf(folder / "stat");
    const std::size_t nameBegin = status.find('(');
    const std::size_t nameEnd = status.rfind(')');
    if (nameBegin == std::string::npos || nameEnd == std::string::npos || nameEnd < nameBegin) {
        return std::nullopt;
    }
    ProcessFacts facts;
    facts.command = status.substr(nameBegin + 1, nameEnd - nameBegin - 1);
    std::istringstream fields(status.substr(nameEnd + 1));
    std::string skipped;
    fields >> skipped >> facts.parent;
    constexpr int fieldsBetweenParentAndStart = 17;
    for (int field = 0; field < fieldsBetweenParentAndStart; ++field) {
        fields >> skipped;
    }
    fields >> facts.startTime;
    return fields ? std::optional(std::move(facts)) : std::nullopt;
}

void ProcessTable::readTraces(const fs::path& folder, std::int32_t process, ProcessFacts& facts) const {
    facts.executable = executableIn(folder);
    facts.flatpakId = flatpakIdIn(folder);
    facts.unit = ProcessUnit::parse(contentOf(folder / "cgroup"));
    facts.launchedEntry = launchedEntryIn(folder, process);
}

} // namespace kestrelfen
