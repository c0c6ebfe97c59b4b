#include "store/HistoryDatabase.hpp"

#include "store/StoreOpening.hpp"

namespace kestrelfen {

HistoryDatabase::HistoryDatabase(const StoreConfiguration& configuration)
    : beforeOperation_(configuration.beforeOperation), connection_(openStore(configuration)) {}

void HistoryDatabase::beginReading() {
    if (beforeOperation_) {
        beforeOperation_();
    }
}

SQLite::Statement& HistoryDatabase::statement(const char* sql) {
    const auto found = statements_.find(sql);
    return found != statements_.end()
               ? found->second
               : statements_.emplace(sql, SQLite::Statement(connection_, sql)).first->second;
}

SQLite::Transaction HistoryDatabase::beginWriting() {
    if (beforeOperation_) {
        beforeOperation_();
    }
    return SQLite::Transaction(connection_, SQLite::TransactionBehavior::IMMEDIATE);
}

} // namespace kestrelfen
