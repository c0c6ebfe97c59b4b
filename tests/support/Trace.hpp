#pragma once

#include "platform/ports/Clock.hpp"

#include <initializer_list>
#include <string>
#include <string_view>

namespace kestrelfen {

/// What happened, when, and nothing else: one line an event, in the order of happening.
class Trace {
  public:
    explicit Trace(const Clock& clock) : clock_(clock) {}

    void add(std::string_view event);

    /// Everything since the last taking.
    std::string take();

    const std::string& text() const { return text_; }

  private:
    const Clock& clock_;
    std::string text_;
};

/// The text of a trace with these lines.
std::string lines(std::initializer_list<std::string_view> each);

} // namespace kestrelfen
