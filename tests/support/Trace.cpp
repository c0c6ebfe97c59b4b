#include "support/Trace.hpp"

#include "support/Moments.hpp"

#include <utility>

namespace kestrelfen {

void Trace::add(std::string_view event) {
    text_ += momentText(clock_.now()) + " ";
    text_ += event;
    text_ += '\n';
}

std::string Trace::take() {
    return std::exchange(text_, {});
}

std::string lines(std::initializer_list<std::string_view> each) {
    std::string text;
    for (const std::string_view line : each) {
        text += line;
        text += '\n';
    }
    return text;
}

} // namespace kestrelfen
