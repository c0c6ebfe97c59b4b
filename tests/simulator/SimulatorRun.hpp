#pragma once

#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace kestrelfen {

/// What one run of the simulator's program left behind.
struct SimulatorRun {
    /// The exit status; above 128 when a signal ended it.
    int status = 0;
    std::string output;
    std::string errors;
    pid_t process = 0;
};

/// Starts the program with these arguments and `input` as its standard input, and waits for its end.
SimulatorRun runSimulator(const std::vector<std::string>& arguments, std::string_view input = {});

/// Hands `scenario` to the program as its standard input.
SimulatorRun simulate(std::string_view scenario);

/// All that the program wrote for `scenario` to both its streams, in the order of writing.
std::string everythingWritten(std::string_view scenario);

/// `text` cut at its line feeds.
std::vector<std::string> linesOf(const std::string& text);

/// The events of `output` that are the timer's own: without those of sound and screen time.
std::string timerEventsOf(const std::string& output);

/// A program that works, from the first line on.
inline constexpr std::string_view launched = "pref hasCompletedOnboarding bool true\nlaunch\n";

/// The first break, under way since 08:20:00.
inline constexpr std::string_view inBreak = "pref hasCompletedOnboarding bool true\nlaunch\nrun 1200\n";

} // namespace kestrelfen
