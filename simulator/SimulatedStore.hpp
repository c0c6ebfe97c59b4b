#pragma once

#include "PrivateFolder.hpp"
#include "store/StoreConfiguration.hpp"

#include <optional>
#include <string>

namespace kestrelfen {

/// The disk under the history: outlives every run of the program, and fails when it is told to.
class SimulatedStore {
  public:
    /// Without a file, one of its own that is gone when this ends.
    explicit SimulatedStore(std::optional<std::filesystem::path> file = {});
    SimulatedStore(const SimulatedStore&) = delete;
    SimulatedStore& operator=(const SimulatedStore&) = delete;

    /// Makes every opening fail with that description; absent lets it be.
    void setBroken(std::optional<std::string> description) { broken_ = std::move(description); }

    /// Makes every operation fail with that description; absent lets them be.
    void setFailing(std::optional<std::string> description) { failing_ = std::move(description); }

    /// This outlives whoever uses it.
    StoreConfiguration configuration() const;

  private:
    std::optional<PrivateFolder> folder_;
    std::filesystem::path file_;
    std::optional<std::string> broken_;
    std::optional<std::string> failing_;
};

} // namespace kestrelfen
