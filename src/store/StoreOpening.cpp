#include "store/StoreOpening.hpp"

#include "store/Schema.hpp"
#include "store/StoreFile.hpp"
#include "store/StoreInspection.hpp"

#include <SQLiteCpp/Transaction.h>

#include <sqlite3.h>
#include <stdexcept>
#include <string>

namespace kestrelfen {

namespace {

constexpr int openingTimeoutMilliseconds = 200;
constexpr int operationTimeoutMilliseconds = 1000;

void setCheckpointAtClose(SQLite::Database& connection, bool isOn) {
    sqlite3_db_config(connection.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, isOn ? 0 : 1, nullptr);
}

/// Where another program is writing, the store would not be able to.
void demandUnlocked(SQLite::Database& connection) {
    SQLite::Transaction(connection, SQLite::TransactionBehavior::IMMEDIATE).commit();
}

/// A save that has returned survives a power cut; a cascade is kept by the database; what sorting needs stays
/// in memory.
void configure(SQLite::Database& connection) {
    if (connection.execAndGet("PRAGMA journal_mode = WAL").getString() != "wal") {
        throw std::runtime_error("the folder does not allow a write-ahead log");
    }
    connection.exec("PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON; PRAGMA temp_store = MEMORY; "
                    "PRAGMA journal_size_limit = 4194304");
}

void makeTables(SQLite::Database& connection) {
    SQLite::Transaction transaction(connection, SQLite::TransactionBehavior::IMMEDIATE);
    for (const char* const statement : Schema::statements) {
        connection.exec(statement);
    }
    connection.exec("PRAGMA application_id = " + std::to_string(Schema::applicationID));
    connection.exec("PRAGMA user_version = " + std::to_string(Schema::version));
    transaction.commit();
}

bool isEmptyStore(const StoreFile& file) {
    file.demandUsable();
    StoreInspection inspection(file);
    if (inspection.findsNothing()) {
        return true;
    }
    inspection.demandStore();
    return false;
}

SQLite::Database connect(const StoreFile& file, bool isEmpty) {
    SQLite::Database connection(file.path().string(), SQLite::OPEN_READWRITE, openingTimeoutMilliseconds);
    // After a failure, a log that was there has to stay.
    setCheckpointAtClose(connection, !file.hasLog());
    demandUnlocked(connection);
    configure(connection);
    if (isEmpty) {
        makeTables(connection);
    }
    setCheckpointAtClose(connection, true);
    connection.setBusyTimeout(operationTimeoutMilliseconds);
    return connection;
}

SQLite::Database openExisting(const StoreFile& file) {
    const bool hadLog = file.hasLog();
    const bool hadLogIndex = file.hasLogIndex();
    try {
        return connect(file, isEmptyStore(file));
    } catch (...) {
        file.removeTraces(hadLog, hadLogIndex);
        throw;
    }
}

SQLite::Database openNew(const StoreFile& file) {
    try {
        return connect(file, true);
    } catch (...) {
        file.remove();
        throw;
    }
}

} // namespace

SQLite::Database openStore(const StoreConfiguration& configuration) {
    if (configuration.beforeOpening) {
        configuration.beforeOpening();
    }
    const bool isNew = StoreFile(configuration.file).makeIfMissing();
    const StoreFile file = StoreFile(configuration.file).resolved();
    return isNew ? openNew(file) : openExisting(file);
}

} // namespace kestrelfen
