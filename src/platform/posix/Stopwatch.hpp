#pragma once

#include <chrono>

namespace kestrelfen {

/// Measures how long something takes, unmoved by changes of the wall clock. Any thread.
class Stopwatch {
  public:
    Stopwatch();

    /// Seconds since it was made.
    double seconds() const;

  private:
    std::chrono::steady_clock::time_point start_;
};

} // namespace kestrelfen
