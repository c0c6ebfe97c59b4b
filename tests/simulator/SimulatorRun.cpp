#include "SimulatorRun.hpp"

#include "support/TemporaryFolder.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrelfen {

namespace {

/// The standard streams of the program, as files in a folder.
class Streams {
  public:
    Streams(const TemporaryFolder& folder, std::string_view errors) {
        posix_spawn_file_actions_init(&actions_);
        open(STDIN_FILENO, folder / "input", O_RDONLY);
        open(STDOUT_FILENO, folder / "output", O_WRONLY | O_CREAT | O_APPEND);
        open(STDERR_FILENO, folder / errors, O_WRONLY | O_CREAT | O_APPEND);
    }
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;
    ~Streams() { posix_spawn_file_actions_destroy(&actions_); }

    const posix_spawn_file_actions_t* actions() const { return &actions_; }

  private:
    void open(int descriptor, const std::filesystem::path& file, int flags) {
        posix_spawn_file_actions_addopen(&actions_, descriptor, file.c_str(), flags, 0600);
    }

    posix_spawn_file_actions_t actions_{};
};

/// The exit status, and the process that had it.
std::pair<int, pid_t> outcomeOf(std::vector<std::string> words, const Streams& streams) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    pid_t process = 0;
    if (posix_spawn(&process, words.front().c_str(), streams.actions(), nullptr, arguments.data(), environ) !=
        0) {
        throw std::runtime_error("the simulator cannot be started");
    }
    int status = 0;
    waitpid(process, &status, 0);
    return {WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status), process};
}

} // namespace

SimulatorRun runSimulator(const std::vector<std::string>& arguments, std::string_view input) {
    const TemporaryFolder folder;
    writeInPlace(folder / "input", input);
    const Streams streams(folder, "errors");
    std::vector<std::string> words{KESTRELFEN_SIMULATOR};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const auto [status, process] = outcomeOf(std::move(words), streams);
    return {status, contentOf(folder / "output"), contentOf(folder / "errors"), process};
}

SimulatorRun simulate(std::string_view scenario) {
    return runSimulator({}, scenario);
}

std::string everythingWritten(std::string_view scenario) {
    const TemporaryFolder folder;
    writeInPlace(folder / "input", scenario);
    const Streams streams(folder, "output");
    outcomeOf({KESTRELFEN_SIMULATOR}, streams);
    return contentOf(folder / "output");
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::string timerEventsOf(const std::string& output) {
    std::string events;
    for (const std::string& line : linesOf(output)) {
        const auto tells = [&](const char* text) { return line.find(text) != std::string::npos; };
        if (!tells(R"("event":"audio")") && !tells(R"("event":"flush")") &&
            !tells(R"("category":"ScreenTime")")) {
            events += line + '\n';
        }
    }
    return events;
}

} // namespace kestrelfen
