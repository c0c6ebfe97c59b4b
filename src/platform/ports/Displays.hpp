#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

/// A rectangle in the desktop's logical coordinates, y growing downwards.
struct ScreenRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const ScreenRect&, const ScreenRect&) = default;
};

struct Display {
    /// The platform's number of the display, from 1.
    std::int64_t number = 0;
    /// The platform's name of its connector; empty where there is none.
    std::string name;
    ScreenRect frame;
    /// The frame without panels and docks.
    ScreenRect visibleFrame;

    friend bool operator==(const Display&, const Display&) = default;
};

/// The displays that make up the desktop.
class Displays {
  public:
    /// Destroying it ends the telling.
    class Observation {
      public:
        virtual ~Observation() = default;
    };

    virtual ~Displays() = default;

    /// In the system's order; may be empty. A read of memory.
    virtual std::vector<Display> all() const = 0;

    /// How many displays there are. A read of memory, without allocation.
    virtual std::int64_t count() const = 0;

    /// The display that the person is working on, as far as the system tells; absent when there is none.
    virtual std::optional<Display> main() const = 0;

    /// Tells, on the main thread, that a display came, went, moved or changed its size.
    virtual std::unique_ptr<Observation> observe(std::function<void()> changed) = 0;
};

} // namespace kestrelfen
