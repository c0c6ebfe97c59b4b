#pragma once

#include "base/Date.hpp"
#include "platform/ports/Displays.hpp"

#include <cstdint>
#include <optional>
#include <vector>

namespace kestrelfen {

class WindowList;

/// Tells on which display the person looks at an application: the one under the centre of its frontmost
/// normal window. Reads the frames of windows, never their titles. Main thread only.
class DisplayLocator {
  public:
    /// How long an answer stays in use, in seconds.
    static constexpr double cacheLifetime = 5.0;

    DisplayLocator(const WindowList& windowList, const Displays& displays)
        : windowList_(windowList), displays_(displays) {}

    /// The display's number, 0 for none, as it was found less than `cacheLifetime` before `now`.
    std::int64_t displayID(std::int32_t processIdentifier, Date now);

    /// The same, found by a walk over the windows.
    std::int64_t resolveDisplayID(std::int32_t processIdentifier) const;

  private:
    struct CachedDisplay {
        std::int32_t processIdentifier;
        std::int64_t displayID;
        Date resolvedAt;
    };

    const WindowList& windowList_;
    const Displays& displays_;
    std::optional<CachedDisplay> cached_;
};

} // namespace kestrelfen
