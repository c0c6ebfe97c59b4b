#pragma once

#include "base/Date.hpp"
#include "store/StoreConfiguration.hpp"
#include "support/TemporaryFolder.hpp"

#include <filesystem>

namespace kestrelfen {

/// A store of so many days, the last of them today: 30 breaks, 20 pauses, 60 rows of applications and 100 of
/// websites a day. Made once for each length and kept until the program ends.
class GeneratedStore {
  public:
    static constexpr int daysOfAYear = 365;
    static constexpr int daysOfTenYears = 3650;

    static const GeneratedStore& ofDays(int days);

    explicit GeneratedStore(int days);

    /// Midnight of the last day.
    Date today() const { return today_; }
    /// Midnight of the day that lies so many days before the last.
    Date daysAgo(int days) const { return today_ + -86'400.0 * days; }

    StoreConfiguration configuration() const { return configurationOf(file_); }

    /// The same store in a file of its own, to be spoilt.
    StoreConfiguration copyIn(const TemporaryFolder& folder) const;

  private:
    static StoreConfiguration configurationOf(const std::filesystem::path& file);

    TemporaryFolder folder_;
    std::filesystem::path file_ = folder_ / StoreConfiguration::fileName;
    Date today_;
};

} // namespace kestrelfen
