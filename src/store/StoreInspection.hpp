#pragma once

#include <SQLiteCpp/Database.h>

#include <cstdint>

namespace kestrelfen {

class StoreFile;

/// Looks into a file that stands where the store belongs, without changing a byte of it or beside it, so that
/// one which is not ours, or is damaged, stays as it is. Belongs to one thread; throws what is wrong.
class StoreInspection {
  public:
    explicit StoreInspection(const StoreFile& file);

    /// Whether nothing has been written into the file yet.
    bool findsNothing();

    void demandStore();

    /// A full check reads the whole file, a year of history in about 8 ms. A file that is larger is looked at
    /// where the program needs it first: the layout, the days, the tasks and the newest days' rows.
    static constexpr std::int64_t largestFullCheck = 16'777'216;

  private:
    std::int64_t number(const char* sql);
    void demandKnownVersion();
    void demandWholeFile();
    void demandKnownLayout();
    void demandSoundPages();
    void demandAnswerOk(const char* check);
    void readNewestDays();

    const StoreFile& file_;
    SQLite::Database connection_;
};

} // namespace kestrelfen
