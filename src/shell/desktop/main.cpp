#include "shell/CommandLine.hpp"
#include "shell/desktop/KestrelfenApp.hpp"

#include <cstdio>
#include <cstdlib>

int main(int argumentCount, char** arguments) {
    const std::span<const char* const> words(arguments, static_cast<std::size_t>(argumentCount));
    const kestrelfen::ProgramVersion version{KESTRELFEN_VERSION, KESTRELFEN_BUILD};
    if (const auto answer =
            kestrelfen::answerInPlaceOfStarting(words.subspan(words.empty() ? 0 : 1), version)) {
        return std::fputs(answer->c_str(), stdout) >= 0 && std::fflush(stdout) == 0 ? EXIT_SUCCESS
                                                                                    : EXIT_FAILURE;
    }
    return kestrelfen::KestrelfenApp(argumentCount, arguments).run();
}
