#pragma once

#include <functional>

namespace kestrelfen {

/// Runs jobs one at a time, off the main thread where the system has other threads, in the order of posting.
class SerialExecutor {
  public:
    virtual ~SerialExecutor() = default;

    /// May be called from any thread. A job must not throw.
    virtual void post(std::function<void()> job) = 0;
};

} // namespace kestrelfen
