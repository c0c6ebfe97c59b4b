#pragma once

#include "platform/ports/Log.hpp"

#include <functional>
#include <vector>

namespace kestrelfen {

/// A log that keeps its lines, or hands each to a listener instead.
class FakeLog final : public Log {
  public:
    struct Line {
        LogLevel level = LogLevel::info;
        std::string category;
        std::string text;

        friend bool operator==(const Line&, const Line&) = default;
    };

    std::function<void(const Line&)> onLine;

    void write(LogLevel level, std::string_view category, std::string_view text) override {
        Line line{level, std::string(category), std::string(text)};
        if (onLine) {
            onLine(line);
        } else {
            lines_.push_back(std::move(line));
        }
    }

    const std::vector<Line>& lines() const { return lines_; }
    void clear() { lines_.clear(); }

  private:
    std::vector<Line> lines_;
};

} // namespace kestrelfen
