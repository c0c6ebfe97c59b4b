#include "shell/CommandLine.hpp"

#include <string_view>

namespace kestrelfen {

namespace {

constexpr const char* help = "Usage: kestrelfen [OPTION]\n"
                             "Eye breaks at the right time. Kestrelfen lives in the tray; started a second "
                             "time, it shows its popover.\n"
                             "\n"
                             "  -h, --help     tell this and end\n"
                             "  -v, --version  tell the version and end\n"
                             "\n"
                             "Everything else is chosen in its settings window.\n";

} // namespace

std::optional<std::string> answerInPlaceOfStarting(std::span<const char* const> arguments,
                                                   const ProgramVersion& version) {
    for (const std::string_view argument : arguments) {
        if (argument == "--help" || argument == "-h") {
            return help;
        }
        if (argument == "--version" || argument == "-v") {
            return "Kestrelfen " + version.number + " (build " + version.build + ")\n";
        }
    }
    return std::nullopt;
}

} // namespace kestrelfen
