#pragma once

#include <string>
#include <string_view>

namespace kestrelfen {

struct HistoryEntry;

/// Writes history as comma-separated text, one entry after the other, in UTF-8 with single line feeds.
class HistoryCSV {
  public:
    /// How many entries an export holds at most.
    static constexpr int entryLimit = 100'000;

    HistoryCSV();

    void add(const HistoryEntry& entry);

    /// The whole text, taken out.
    std::string take() { return std::move(text_); }

  private:
    void addSeconds(double seconds);
    void addField(std::string_view field);

    std::string text_;
};

} // namespace kestrelfen
