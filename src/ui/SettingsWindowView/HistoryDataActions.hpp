#pragma once

#include "base/Date.hpp"
#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "platform/ports/Platform.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace kestrelfen {

class Calendar;
class KestrelfenStore;
class TextFileWriter;

/// What the person does to the history as a whole, and what is said of it afterwards. Main thread only.
class HistoryDataActions {
  public:
    /// How far back an export reaches, in calendar days.
    static constexpr int exportedDays = 3650;

    /// What the file is called unless the person says otherwise.
    static constexpr const char* proposedFileName = "Kestrelfen-history.csv";

    /// `store` is null when history is unavailable.
    HistoryDataActions(const Platform& platform, KestrelfenStore* store, TextFileWriter& writer);

    /// The first day of an export made at `now`.
    static Date exportStart(const Calendar& calendar, Date now);

    bool areAvailable() const { return store_ != nullptr; }

    /// Writes the history to the file that the person chose.
    void exportCSV(const std::string& path);

    /// After the person has confirmed it.
    void deleteAllHistory();

    /// How the last export ended; absent before the first.
    const std::optional<std::string>& exportMessage() const { return exportMessage_.get(); }

    /// How many days the last deletion removed; absent before the first.
    std::optional<std::int64_t> deletedDays() const { return deletedDays_.get(); }
    std::optional<std::string> deletionMessage() const;

    /// Tells of every real change of these.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    void write(const std::string& path, const std::string& text);

    const Platform platform_;
    KestrelfenStore* const store_;
    TextFileWriter& writer_;
    Observers changes_;
    Property<std::optional<std::string>> exportMessage_{changes_};
    Property<std::optional<std::int64_t>> deletedDays_{changes_};
    Lifeline lifeline_;
};

} // namespace kestrelfen
