#pragma once

#include "platform/ports/TimeFormat.hpp"

namespace kestrelfen {

class Calendar;

/// Times of day and dates by the conventions of the person's locale. Main thread only.
class QtTimeFormat final : public TimeFormat {
  public:
    explicit QtTimeFormat(const Calendar& calendar) : calendar_(calendar) {}

    std::string shortTime(Date date) const override;
    std::string timeWithSeconds(Date date) const override;
    std::string weekday(Date date) const override;
    std::string shortDay(Date date) const override;

  private:
    const Calendar& calendar_;
};

} // namespace kestrelfen
