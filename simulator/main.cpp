#include "Output.hpp"
#include "Scenario.hpp"

#include <array>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <unistd.h>

namespace {

using kestrelfen::Scenario;

constexpr int malformedStatus = 2;
constexpr int faultStatus = 3;
constexpr std::array<int, 5> faultSignals{SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSEGV};

extern "C" void stopAtFault(int) {
    kestrelfen::Output::flush();
    _exit(faultStatus);
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

int runFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!canBeRead(file)) {
        return refuse(path + " cannot be read");
    }
    return statusOf(Scenario(path).run(file));
}

int runStandardInput() {
    const int status = statusOf(Scenario("-").run(std::cin));
    return std::ferror(stdin) ? refuse("standard input cannot be read") : status;
}

} // namespace

int main(int argumentCount, char** arguments) {
    for (const int fault : faultSignals) {
        std::signal(fault, stopAtFault);
    }
    std::optional<std::string> scenario;
    for (int index = 1; index < argumentCount; ++index) {
        const std::string argument = arguments[index];
        if (argument == "--store") {
            return refuse("--store: not built yet");
        }
        if (argument.size() > 1 && argument.front() == '-') {
            return refuse("unknown option " + argument);
        }
        if (scenario) {
            return refuse("more than one scenario");
        }
        scenario = argument;
    }
    return scenario && *scenario != "-" ? runFile(*scenario) : runStandardInput();
}
