#include "UnbuiltWords.hpp"

#include <algorithm>
#include <array>

namespace kestrelfen {

namespace {

constexpr std::array<std::string_view, 12> commands{"apps",  "category", "choose", "choose-preset",
                                                    "close", "go",       "hover",  "login-item",
                                                    "pane",  "step",     "tab",    "website"};

constexpr std::array<std::string_view, 9> readings{"score", "popover",  "dashboard",  "breaks", "usage",
                                                   "pane",  "app-list", "onboarding", "windows"};

constexpr std::array<std::string_view, 3> views{"popover", "dashboard", "onboarding"};

template <typename List>
bool holds(const List& list, std::string_view word) {
    return std::find(list.begin(), list.end(), word) != list.end();
}

} // namespace

bool isUnbuiltCommand(std::string_view command) {
    return holds(commands, command);
}

bool isUnbuiltReading(std::string_view what) {
    return holds(readings, what);
}

bool isUnbuiltView(std::string_view view) {
    return holds(views, view);
}

} // namespace kestrelfen
