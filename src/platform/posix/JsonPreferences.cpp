#include "platform/posix/JsonPreferences.hpp"

#include "platform/ports/Utf8.hpp"
#include "platform/posix/JsonSyntax.hpp"
#include "platform/posix/StandardFolders.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

namespace {

/// Time for a program that writes the file in place, to finish.
constexpr double settlingSeconds = 1;

constexpr double retrySeconds = 60;

/// Of one turn, to write the file while others write it too.
constexpr int mostAttempts = 5;

} // namespace

std::filesystem::path JsonPreferences::standardPath() {
    return configurationFolder() / "kestrelfen" / "preferences.json";
}

JsonPreferences::JsonPreferences(std::filesystem::path path, Log& log, MainQueue& queue)
    : file_(std::move(path)), logger_(log, "Preferences"), queue_(queue) {
    load(Patience::none);
}

void JsonPreferences::set(std::string_view key, PreferenceValue value) {
    if (table_.set(key, std::move(value))) {
        noteEdit(key);
    }
}

void JsonPreferences::remove(std::string_view key) {
    if (table_.remove(key)) {
        noteEdit(key);
    }
}

void JsonPreferences::reloadIfChanged() {
    if (!stamp_.stillHolds(file_.stamp())) {
        load(Patience::some);
    }
}

void JsonPreferences::flush() {
    write(Patience::none);
}

void JsonPreferences::load(Patience patience) {
    const PreferenceFile::Reading reading = file_.read();
    stamp_ = reading.stamp;
    text_ = reading.text;
    switch (reading.outcome) {
    case PreferenceFile::Reading::Outcome::absent:
        adopt({});
        return;
    case PreferenceFile::Reading::Outcome::unreadable:
        bar("cannot be read: " + reading.reason + ". It stays as it is");
        return;
    case PreferenceFile::Reading::Outcome::text:
        break;
    }
    if (const auto problem = jsonObjectProblem(reading.text)) {
        meetDamage(*problem, patience);
        return;
    }
    adopt(PreferenceDocument(reading.text));
}

void JsonPreferences::adopt(PreferenceDocument document) {
    if (condition_ == Condition::barred) {
        reportRecovery("can be used again.");
    }
    condition_ = Condition::good;
    mustRestore_ = false;
    document_ = std::move(document);
    if (hasUnwritten()) {
        scheduleWrite();
    }
    PreferenceTable values = documentWithEdits().values();
    if (!(values == table_)) {
        table_ = std::move(values);
        notifyObservers();
    }
}

void JsonPreferences::meetDamage(const std::string& problem, Patience patience) {
    if (patience == Patience::none || condition_ == Condition::barred) {
        setAside(problem);
        return;
    }
    if (condition_ != Condition::suspect) {
        condition_ = Condition::suspect;
        queue_.postAfter(settlingSeconds, lifeline_.guard([this] {
            if (condition_ == Condition::suspect) {
                load(Patience::none);
            }
        }));
    }
}

void JsonPreferences::setAside(const std::string& problem) {
    const auto [newPath, error] = file_.setAside();
    if (error) {
        bar("is damaged: " + problem + ". It could not be moved aside (" + error.message() +
            "), so it stays as it is");
        return;
    }
    stamp_ = {};
    text_.clear();
    condition_ = Condition::good;
    mustRestore_ = !document_.isEmpty();
    const char* const consequence = hasUnwritten() ? "the preferences in force are kept and written anew."
                                                   : "Kestrelfen goes on with no preferences set.";
    logger_.error(file_.path().string() + " is damaged: " + problem + ". It was moved to " +
                  newPath.string() + "; " + consequence);
    if (hasUnwritten()) {
        scheduleWrite();
    }
}

void JsonPreferences::bar(const std::string& why) {
    condition_ = Condition::barred;
    reportTrouble(why + ", and preferences are kept in memory only.");
    if (hasUnwritten()) {
        retryLater();
    }
}

void JsonPreferences::noteEdit(std::string_view key) {
    std::string stored = wellFormedUtf8(std::string(key));
    if (std::find(edited_.begin(), edited_.end(), stored) == edited_.end()) {
        edited_.push_back(std::move(stored));
    }
    scheduleWrite();
    notifyObservers();
}

void JsonPreferences::scheduleWrite() {
    if (!std::exchange(writeIsScheduled_, true)) {
        queue_.post(lifeline_.guard([this] {
            writeIsScheduled_ = false;
            write(Patience::some);
        }));
    }
}

void JsonPreferences::retryLater() {
    if (!std::exchange(retryIsScheduled_, true)) {
        queue_.postAfter(retrySeconds, lifeline_.guard([this] {
            retryIsScheduled_ = false;
            write(Patience::some);
        }));
    }
}

void JsonPreferences::write(Patience patience) {
    for (int attempt = 0; attempt < mostAttempts && hasUnwritten(); ++attempt) {
        // A hindrance may have gone without a trace in the file's dates.
        if (condition_ != Condition::good || !stamp_.stillHolds(file_.stamp())) {
            load(patience);
        }
        if (condition_ != Condition::good || !hasUnwritten()) {
            return;
        }
        if (replaceFile()) {
            return;
        }
    }
    if (hasUnwritten()) {
        scheduleWrite();
    }
}

/// False when somebody else has written the file in the meantime, so that it is to be read first.
bool JsonPreferences::replaceFile() {
    PreferenceDocument document = documentWithEdits();
    if (mustRestore_ || document != document_) {
        std::string text = document.text();
        const auto error = file_.replace(text_, text);
        if (error == std::errc::operation_canceled) {
            return false;
        }
        if (error) {
            reportTrouble("cannot be written: " + error.message() +
                          ". Preferences are kept in memory until it can.");
            retryLater();
            return true;
        }
        stamp_ = file_.stamp();
        text_ = std::move(text);
        document_ = std::move(document);
        reportRecovery("can be written again, and holds the preferences in force.");
    }
    mustRestore_ = false;
    edited_.clear();
    return true;
}

PreferenceDocument JsonPreferences::documentWithEdits() const {
    PreferenceDocument document = document_;
    for (const std::string& key : edited_) {
        if (const PreferenceValue* const value = table_.find(key)) {
            document.set(key, *value);
        } else {
            document.remove(key);
        }
    }
    return document;
}

void JsonPreferences::reportTrouble(const std::string& line) {
    if (std::exchange(trouble_, line) != line) {
        logger_.error(file_.path().string() + " " + line);
    }
}

void JsonPreferences::reportRecovery(const std::string& line) {
    if (!std::exchange(trouble_, {}).empty()) {
        logger_.info(file_.path().string() + " " + line);
    }
}

} // namespace kestrelfen
