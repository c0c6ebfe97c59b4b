#pragma once

#include "platform/ports/TimeFormat.hpp"

namespace kestrelfen {

class Calendar;

/// Times as "14:05", "14:05:09", "Mon" and "Mon 9 Mar", whatever the person's habits. Main thread only.
class FakeTimeFormat final : public TimeFormat {
  public:
    /// The calendar must outlive it.
    explicit FakeTimeFormat(const Calendar& calendar) : calendar_(calendar) {}

    std::string shortTime(Date date) const override;
    std::string timeWithSeconds(Date date) const override;
    std::string weekday(Date date) const override;
    std::string shortDay(Date date) const override;

  private:
    const Calendar& calendar_;
};

} // namespace kestrelfen
