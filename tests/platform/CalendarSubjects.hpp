#pragma once

#include "platform/CalendarEnvironment.hpp"
#include "platform/fake/FakeCalendar.hpp"
#include "platform/posix/PosixCalendar.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kestrelfen {

/// The fake calendar as the subject of a test for every calendar.
class FakeCalendarSubject {
  public:
    Calendar& calendar() { return calendar_; }
    void setZone(const std::string& zone) { calendar_.setZone(zone); }

  private:
    FakeCalendar calendar_;
};

/// The calendar of the C library's local time as such a subject.
class PosixCalendarSubject {
  public:
    Calendar& calendar() { return calendar_; }
    void setZone(const std::string& zone) { ZoneVariable::set(zone); }

  private:
    ZoneVariable variable_{"UTC"};
    PosixCalendar calendar_;
};

using CalendarSubjects = testing::Types<FakeCalendarSubject, PosixCalendarSubject>;

} // namespace kestrelfen
