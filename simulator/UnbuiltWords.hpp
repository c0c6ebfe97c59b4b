#pragma once

#include <string_view>

namespace kestrelfen {

// Words of the scenario language that belong to rooms of the program that do not stand yet.

bool isUnbuiltCommand(std::string_view command);
bool isUnbuiltReading(std::string_view what);
bool isUnbuiltView(std::string_view view);

} // namespace kestrelfen
