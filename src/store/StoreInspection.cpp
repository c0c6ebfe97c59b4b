#include "store/StoreInspection.hpp"

#include "store/Schema.hpp"
#include "store/StoreFile.hpp"

#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include <sqlite3.h>
#include <stdexcept>
#include <string>

namespace kestrelfen {

namespace {

constexpr int timeoutMilliseconds = 200;

/// As a URI's path: what has a meaning there is written by its number.
std::string escaped(const std::string& path) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (const char character : path) {
        if (character == '%' || character == '?' || character == '#') {
            const auto byte = static_cast<unsigned char>(character);
            result += {'%', digits[byte / 16], digits[byte % 16]};
        } else {
            result += character;
        }
    }
    return result;
}

/// For a file at rest: takes no lock and makes nothing beside the file.
SQLite::Database openAtRest(const StoreFile& file) {
    return {"file:" + escaped(file.path().string()) + "?immutable=1",
            SQLite::OPEN_READONLY | SQLite::OPEN_URI};
}

/// The last connection to close would else move the log's content into the file.
SQLite::Database openKeepingLog(const StoreFile& file, int flags) {
    SQLite::Database connection(file.path().string(), flags, timeoutMilliseconds);
    sqlite3_db_config(connection.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    return connection;
}

/// For a file with a log, as a crash leaves it. Alone with the file, the database keeps the log's index in
/// memory.
SQLite::Database openWithLog(const StoreFile& file) {
    SQLite::Database connection = openKeepingLog(file, SQLite::OPEN_READWRITE);
    connection.exec("PRAGMA locking_mode = EXCLUSIVE");
    try {
        connection.execAndGet("SELECT count(*) FROM sqlite_schema");
        return connection;
    } catch (const SQLite::Exception& exception) {
        if (exception.getErrorCode() != SQLITE_BUSY) {
            throw;
        }
        // Another program has the file open, and keeps the log's index as well.
        return openKeepingLog(file, SQLite::OPEN_READONLY);
    }
}

SQLite::Database openForInspection(const StoreFile& file) {
    return file.hasLog() || file.hasRollbackJournal() ? openWithLog(file) : openAtRest(file);
}

std::string versionText(std::int64_t version) {
    return std::to_string(version / 10000) + "." + std::to_string(version / 100 % 100) + "." +
           std::to_string(version % 100);
}

} // namespace

StoreInspection::StoreInspection(const StoreFile& file) : file_(file), connection_(openForInspection(file)) {}

bool StoreInspection::findsNothing() {
    return number("PRAGMA application_id") == 0 && number("PRAGMA user_version") == 0 &&
           number("SELECT count(*) FROM sqlite_schema") == 0;
}

void StoreInspection::demandStore() {
    demandKnownVersion();
    demandWholeFile();
    demandKnownLayout();
    demandSoundPages();
}

std::int64_t StoreInspection::number(const char* sql) {
    return connection_.execAndGet(sql).getInt64();
}

void StoreInspection::demandKnownVersion() {
    if (number("PRAGMA application_id") != Schema::applicationID) {
        throw std::runtime_error("the file belongs to another program");
    }
    const std::int64_t version = number("PRAGMA user_version");
    if (version != Schema::version) {
        throw std::runtime_error("the store has the unknown version " + versionText(version));
    }
}

void StoreInspection::demandWholeFile() {
    const std::int64_t expected = number("PRAGMA page_count") * number("PRAGMA page_size");
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(file_.path()));
    if (!file_.hasLog() && size < expected) {
        throw std::runtime_error("the file is cut short");
    }
}

void StoreInspection::demandKnownLayout() {
    for (const char* const probe : Schema::layoutProbes) {
        const SQLite::Statement prepared(connection_, probe);
    }
}

void StoreInspection::demandSoundPages() {
    connection_.exec("PRAGMA cell_size_check = ON");
    if (number("PRAGMA page_count") * number("PRAGMA page_size") <= largestFullCheck) {
        demandAnswerOk("PRAGMA quick_check(1)");
        return;
    }
    demandAnswerOk("PRAGMA quick_check('DayRecord')");
    demandAnswerOk("PRAGMA quick_check('TaskRecord')");
    readNewestDays();
}

void StoreInspection::demandAnswerOk(const char* check) {
    const std::string answer = connection_.execAndGet(check).getString();
    if (answer != "ok") {
        throw std::runtime_error("the file is damaged: " + answer);
    }
}

/// What is damaged there ends the reading with an exception.
void StoreInspection::readNewestDays() {
    constexpr const char* newest = "WHERE day IN (SELECT id FROM DayRecord ORDER BY id DESC LIMIT 31)";
    for (const char* const sum :
         {"SELECT total(length(outcomeRawValue) + startedAt) FROM BreakRecord ",
          "SELECT total(length(bundleIdentifier) + activeSeconds) FROM AppUsageRecord ",
          "SELECT total(length(kindRawValue) + startedAt) FROM PauseRecord ",
          "SELECT total(length(domain) + activeSeconds) FROM WebsiteUsageRecord "}) {
        connection_.execAndGet(std::string(sum) + newest);
    }
}

} // namespace kestrelfen
