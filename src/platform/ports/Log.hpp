#pragma once

#include "base/Enumeration.hpp"

#include <string>
#include <string_view>

namespace kestrelfen {

enum class LogLevel { debug, info, error };

template <>
struct EnumerationTable<LogLevel> {
    static constexpr std::array<EnumerationRow<LogLevel>, 3> rows{{
        {LogLevel::debug, "debug"},
        {LogLevel::info, "info"},
        {LogLevel::error, "error"},
    }};
};

/// The system log. May be written from any thread; lines never mix.
class Log {
  public:
    virtual ~Log() = default;
    virtual void write(LogLevel level, std::string_view category, std::string_view text) = 0;
};

/// One type's entry to the log, under its role as category.
class Logger {
  public:
    Logger(Log& log, std::string_view category) : log_(&log), category_(category) {}

    void debug(std::string_view text) const { log_->write(LogLevel::debug, category_, text); }
    void info(std::string_view text) const { log_->write(LogLevel::info, category_, text); }
    void error(std::string_view text) const { log_->write(LogLevel::error, category_, text); }

  private:
    Log* log_;
    std::string_view category_;
};

} // namespace kestrelfen
