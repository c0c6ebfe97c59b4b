#pragma once

#include "base/Lifeline.hpp"

#include <cstdint>
#include <utility>

namespace kestrelfen {

/// Of several loads of a view that overlap, only the latest may still change it, and none once the view has
/// gone. Main thread only.
class LatestLoad {
  public:
    /// The answers to earlier loads count no more.
    void begin() { ++number_; }

    /// `closure`, made to do nothing once a later load has begun.
    template <typename Closure>
    auto guard(Closure closure) const {
        return lifeline_.guard(
            [this, number = number_, closure = std::move(closure)](auto&&... arguments) mutable {
                if (number == number_) {
                    closure(std::forward<decltype(arguments)>(arguments)...);
                }
            });
    }

  private:
    std::uint64_t number_ = 0;
    Lifeline lifeline_;
};

} // namespace kestrelfen
