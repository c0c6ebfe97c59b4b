#pragma once

#include <cstdint>

namespace kestrelfen {

/// The memory of this process that is resident now, and the largest that it grows to from now on. One at a
/// time.
class ResidentSize {
  public:
    ResidentSize();

    /// Bytes.
    double growthAtPeak() const;

  private:
    double atStart_;
};

} // namespace kestrelfen
