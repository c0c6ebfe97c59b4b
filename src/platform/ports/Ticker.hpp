#pragma once

#include <functional>
#include <memory>

namespace kestrelfen {

/// Repeating timers on the main thread.
class Ticker {
  public:
    /// Destroying it ends the firing.
    class Handle {
      public:
        virtual ~Handle() = default;
    };

    virtual ~Ticker() = default;

    /// Calls `fire` every `seconds`, first after one period, without drift over many periods. A late firing
    /// (the machine slept) comes once, not once for each period missed.
    virtual std::unique_ptr<Handle> start(double seconds, std::function<void()> fire) = 0;
};

} // namespace kestrelfen
