#include "Output.hpp"
#include "PrivateFolder.hpp"
#include "Scenario.hpp"

#include <array>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using kestrelfen::Scenario;

constexpr int malformedStatus = 2;
constexpr int faultStatus = 3;
constexpr std::array<int, 5> faultSignals{SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSEGV};

constexpr std::array<int, 4> endSignals{SIGHUP, SIGINT, SIGPIPE, SIGTERM};

/// What the arguments ask for.
struct Request {
    /// Absent for standard input.
    std::optional<std::string> scenario;
    std::optional<std::filesystem::path> storeFile;
};

extern "C" void stopAtFault(int) {
    kestrelfen::Output::flush();
    kestrelfen::PrivateFolder::removeAtOnce();
    _exit(faultStatus);
}

/// Ends as the signal would have it, but tidily.
extern "C" void stopAtSignal(int number) {
    kestrelfen::PrivateFolder::removeAtOnce();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void handleSignals() {
    for (const int fault : faultSignals) {
        std::signal(fault, stopAtFault);
    }
    for (const int end : endSignals) {
        std::signal(end, stopAtSignal);
    }
}

int statusOf(Scenario::Result result) {
    switch (result) {
    case Scenario::Result::allHeld:
        return 0;
    case Scenario::Result::expectationFailed:
        return 1;
    case Scenario::Result::malformed:
        return malformedStatus;
    }
    return faultStatus;
}

int refuse(const std::string& what) {
    std::fprintf(stderr, "kestrelfen-sim: %s\nusage: kestrelfen-sim [--store FILE] [SCENARIO]\n",
                 what.c_str());
    return malformedStatus;
}

/// A folder can be opened, but not read.
bool canBeRead(std::ifstream& file) {
    return file.is_open() && (file.peek(), !file.bad());
}

int runFile(const std::string& path, const std::optional<std::filesystem::path>& storeFile) {
    std::ifstream file(path, std::ios::binary);
    if (!canBeRead(file)) {
        return refuse(path + " cannot be read");
    }
    return statusOf(Scenario(path, storeFile).run(file));
}

int runStandardInput(const std::optional<std::filesystem::path>& storeFile) {
    const int status = statusOf(Scenario("-", storeFile).run(std::cin));
    return std::ferror(stdin) ? refuse("standard input cannot be read") : status;
}

/// What is wrong with the arguments; absent when `request` was filled.
std::optional<std::string> read(const std::vector<std::string>& arguments, Request& request) {
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string& argument = arguments[index];
        if (argument == "--store") {
            if (++index == arguments.size() || arguments[index].empty()) {
                return "--store needs a file";
            }
            if (request.storeFile) {
                return "more than one store";
            }
            request.storeFile = arguments[index];
        } else if (argument.size() > 1 && argument.front() == '-') {
            return "unknown option " + argument;
        } else if (request.scenario) {
            return "more than one scenario";
        } else {
            request.scenario = argument;
        }
    }
    return std::nullopt;
}

} // namespace

int main(int argumentCount, char** arguments) {
    handleSignals();
    Request request;
    if (const auto error = read({arguments + 1, arguments + argumentCount}, request)) {
        return refuse(*error);
    }
    const bool isFile = request.scenario && *request.scenario != "-";
    return isFile ? runFile(*request.scenario, request.storeFile) : runStandardInput(request.storeFile);
}
