#pragma once

#include "base/Date.hpp"

#include <string>

namespace kestrelfen {

/// Seconds of attention for one website as they go into history.
struct WebsiteTimeEntry {
    double seconds = 0;
    std::string domain;
    Date dayStart;
};

} // namespace kestrelfen
