#include "platform/fake/FakeInputIdle.hpp"

#include <algorithm>

namespace kestrelfen {

std::optional<double> FakeInputIdle::secondsSinceLastInput() {
    return lastInput_ ? std::optional(std::max(clock_.now() - *lastInput_, 0.0)) : age_;
}

} // namespace kestrelfen
