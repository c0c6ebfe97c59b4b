#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// What the session's service manager started a process in, as its control group tells. What a program
/// starts is in the unit of that program, also when it is a product of its own.
struct ProcessUnit {
    enum class Kind { application, flatpak, snap };

    Kind kind = Kind::application;
    /// The id of a desktop entry, mostly.
    std::string applicationId;
    /// Of a snap alone.
    std::string snapName;
    /// The process that the unit was made for, where its name tells.
    std::optional<std::int32_t> mainProcess;

    /// From the text of /proc/PID/cgroup; absent when the process is in no application's unit.
    static std::optional<ProcessUnit> parse(std::string_view controlGroups);

    friend bool operator==(const ProcessUnit&, const ProcessUnit&) = default;
};

} // namespace kestrelfen
