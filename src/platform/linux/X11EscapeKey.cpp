#include "platform/linux/X11EscapeKey.hpp"

#include "platform/linux/X11EscapeGrab.hpp"

#include <utility>

namespace kestrelfen {

std::unique_ptr<EscapeKey::Handle> X11EscapeKey::grab(std::function<void()> pressed) {
    return std::make_unique<X11EscapeGrab>(log_, std::move(pressed));
}

} // namespace kestrelfen
