#include "UnbuiltWords.hpp"

#include <algorithm>
#include <array>

namespace kestrelfen {

namespace {

constexpr std::array<std::string_view, 21> commands{"app",
                                                    "apps",
                                                    "audio",
                                                    "browser",
                                                    "category",
                                                    "choose",
                                                    "choose-preset",
                                                    "close",
                                                    "delete-all-history",
                                                    "display",
                                                    "export",
                                                    "front",
                                                    "go",
                                                    "hover",
                                                    "login-item",
                                                    "pane",
                                                    "step",
                                                    "store",
                                                    "tab",
                                                    "task",
                                                    "website"};

constexpr std::array<std::string_view, 21> readings{
    "tracker",     "smart-pause", "day",     "days", "apps",     "sites",      "app-totals",
    "site-totals", "stretch",     "history", "csv",  "tasks",    "score",      "popover",
    "dashboard",   "breaks",      "usage",   "pane", "app-list", "onboarding", "windows"};

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
