#pragma once

#include "Forms.hpp"
#include "Simulation.hpp"

#include <filesystem>
#include <istream>
#include <optional>
#include <string>

namespace kestrelfen {

/// Runs a scenario line by line.
class Scenario {
  public:
    enum class Result { allHeld, expectationFailed, malformed };

    /// `name` stands before the line number in what is said on standard error. Without a file for the store,
    /// it is a fresh one that is gone at the end.
    explicit Scenario(std::string name, std::optional<std::filesystem::path> storeFile = {})
        : name_(std::move(name)), simulation_(std::move(storeFile)) {}

    /// Stops at a malformed line; goes on after an expectation that did not hold.
    Result run(std::istream& lines);

    /// Of every line that can stand in a scenario.
    static FormList forms();

  private:
    using Order = void (Scenario::*)(Arguments&);

    /// A command that is the scenario's own.
    struct NamedOrder {
        std::string_view name;
        Order order;
        Forms forms = nullptr;
    };

    static std::span<const NamedOrder> orders();

    void runLine(const std::string& line);
    void runCommand(const std::string& command, Arguments& arguments);
    void show(Arguments& arguments);
    void expect(Arguments& arguments);
    void expectEvent(Arguments& arguments);
    void setEvents(Arguments& arguments);
    void forgetEvents(Arguments& arguments);
    void compare(const std::string& subject, const Json& actual, const std::string& expected);
    void say(const std::string& message) const;

    std::string name_;
    int lineNumber_ = 0;
    bool failed_ = false;
    Simulation simulation_;
};

} // namespace kestrelfen
