#pragma once

#include "base/Lifeline.hpp"
#include "platform/ports/Log.hpp"
#include "platform/ports/MainQueue.hpp"
#include "platform/ports/PreferenceTable.hpp"
#include "platform/ports/Preferences.hpp"
#include "platform/posix/PreferenceDocument.hpp"
#include "platform/posix/PreferenceFile.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// The preferences in a JSON file that may be edited by hand, also while the program runs. Reads come from
/// memory. Changes made here are written together at the end of the main loop's turn; changes from outside
/// are taken over, save for keys that were set here and are not written yet. A damaged file is set aside,
/// never overwritten. Where the file cannot be read or written the run goes on from memory. Main thread only.
class JsonPreferences final : public Preferences {
  public:
    /// $XDG_CONFIG_HOME/kestrelfen/preferences.json, or the same below ~/.config.
    static std::filesystem::path standardPath();

    /// Reads the file. `log` and `queue` outlive this object.
    JsonPreferences(std::filesystem::path path, Log& log, MainQueue& queue);

    const PreferenceValue* object(std::string_view key) const override { return table_.find(key); }
    void set(std::string_view key, PreferenceValue value) override;
    void remove(std::string_view key) override;

    /// Takes over what was changed from outside. Costs no more than a look at the file's dates when nothing
    /// was. For whoever watches the folders().
    void reloadIfChanged();

    /// Writes at once what is not written yet, as is due before the program ends.
    void flush();

    /// Where changes of the file show: its folder and, if it is a symbolic link, that of the file it leads
    /// to.
    std::vector<std::filesystem::path> folders() const { return file_.folders(); }

  private:
    enum class Condition {
        /// `document_` is what the file holds.
        good,
        /// The file is damaged or somebody is just writing it: the next look will tell.
        suspect,
        /// The file must not be replaced: unreadable, or damaged and not to be moved.
        barred,
    };

    enum class Patience { none, some };

    void load(Patience patience);
    void adopt(PreferenceDocument document);
    void meetDamage(const std::string& problem, Patience patience);
    void setAside(const std::string& problem);
    void bar(const std::string& why);

    void noteEdit(std::string_view key);
    bool hasUnwritten() const { return mustRestore_ || !edited_.empty(); }
    void scheduleWrite();
    void retryLater();
    void write(Patience patience);
    bool replaceFile();
    PreferenceDocument documentWithEdits() const;

    void reportTrouble(const std::string& line);
    void reportRecovery(const std::string& line);

    PreferenceFile file_;
    Logger logger_;
    MainQueue& queue_;
    PreferenceTable table_;
    PreferenceDocument document_;
    /// What the file held when it was last read or written; empty without a file.
    std::string text_;
    PreferenceStamp stamp_;
    Condition condition_ = Condition::good;
    /// Keys set or removed here and not written yet, in the order in which that began.
    std::vector<std::string> edited_;
    /// The file is gone because it was damaged, and the document is to be written anew.
    bool mustRestore_ = false;
    bool writeIsScheduled_ = false;
    bool retryIsScheduled_ = false;
    /// The lasting trouble that the log knows of; empty when there is none.
    std::string trouble_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
