#pragma once

#include "base/Date.hpp"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// One run of a prepared statement. The values are bound in their order; columns count from 0. Ends the run
/// when it ends, so that nothing holds the file's older state.
class Query {
  public:
    template <typename... Values>
    explicit Query(SQLite::Statement& statement, const Values&... values) : statement_(statement) {
        int index = 0;
        (bind(++index, values), ...);
    }

    ~Query() { statement_.tryReset(); }
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    /// Goes to the next row, if there is one.
    bool next() { return statement_.executeStep(); }

    /// Runs a statement that has no rows. Answers how many rows it changed, those of a cascade left out.
    std::int64_t run() { return statement_.exec(); }

    std::int64_t integer(int column) const { return statement_.getColumn(column).getInt64(); }
    double real(int column) const { return statement_.getColumn(column).getDouble(); }
    bool boolean(int column) const { return integer(column) != 0; }
    std::string text(int column) const { return statement_.getColumn(column).getString(); }
    Date date(int column) const { return Date::fromMicroseconds(integer(column)); }

    std::optional<std::string> optionalText(int column) const {
        return isAbsent(column) ? std::nullopt : std::optional(text(column));
    }

    std::optional<Date> optionalDate(int column) const {
        return isAbsent(column) ? std::nullopt : std::optional(date(column));
    }

  private:
    bool isAbsent(int column) const { return statement_.getColumn(column).isNull(); }

    template <std::integral Number>
    void bind(int index, Number value) {
        statement_.bind(index, static_cast<std::int64_t>(value));
    }

    void bind(int index, double value) { statement_.bind(index, value); }
    void bind(int index, const std::string& value) { statement_.bind(index, value); }
    void bind(int index, std::string_view value) { statement_.bind(index, std::string(value)); }
    void bind(int index, Date value) { statement_.bind(index, value.microseconds()); }

    template <typename Value>
    void bind(int index, const std::optional<Value>& value) {
        if (value) {
            bind(index, *value);
        } else {
            statement_.bind(index);
        }
    }

    SQLite::Statement& statement_;
};

} // namespace kestrelfen
