#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kestrelfen {

/// What was heard, in order.
struct Heard {
    std::vector<std::string> names;

    std::function<void()> listener(std::string name) {
        return [this, name = std::move(name)] { names.push_back(name); };
    }
};

} // namespace kestrelfen
