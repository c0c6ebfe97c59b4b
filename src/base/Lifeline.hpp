#pragma once

#include <memory>
#include <utility>

namespace kestrelfen {

/// Lets a queued closure find out whether the object that queued it still lives. Main thread only.
class Lifeline {
  public:
    Lifeline() = default;
    Lifeline(const Lifeline&) = delete;
    Lifeline& operator=(const Lifeline&) = delete;

    /// `closure`, made to do nothing once this lifeline has ended.
    template <typename Closure>
    auto guard(Closure closure) const {
        return [alive = std::weak_ptr<const char>(token_),
                closure = std::move(closure)](auto&&... arguments) mutable {
            if (!alive.expired()) {
                closure(std::forward<decltype(arguments)>(arguments)...);
            }
        };
    }

  private:
    std::shared_ptr<const char> token_ = std::make_shared<const char>('\0');
};

} // namespace kestrelfen
