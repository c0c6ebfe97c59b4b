#pragma once

#include "base/CivilTime.hpp"
#include "platform/fake/FakeCalendar.hpp"
#include "platform/fake/FakeClock.hpp"
#include "platform/fake/FakeDisplays.hpp"
#include "platform/fake/FakeInputIdle.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/fake/FakeMainQueue.hpp"
#include "platform/fake/FakeNotifier.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "platform/fake/FakeProgramFocus.hpp"
#include "platform/fake/FakeSessionLock.hpp"
#include "platform/fake/FakeStandardOutput.hpp"
#include "platform/fake/FakeStatusBarButton.hpp"
#include "platform/fake/FakeSystemSignals.hpp"
#include "platform/fake/FakeTicker.hpp"
#include "platform/fake/FakeTimeFormat.hpp"
#include "platform/ports/Platform.hpp"

namespace kestrelfen {

/// A whole machine by hand, under a virtual clock that begins at 2026-03-09 08:00 UTC in the zone UTC.
struct FakePlatform {
    FakeClock clock{*parseIsoTime("2026-03-09T08:00:00Z")};
    FakeCalendar calendar;
    FakeTimeFormat timeFormat{calendar};
    FakeMainQueue mainQueue{clock};
    FakeTicker ticker;
    FakePreferences preferences;
    FakeInputIdle inputIdle{clock};
    FakeSystemSignals systemSignals;
    FakeDisplays displays;
    FakeProgramFocus programFocus;
    FakeNotifier notifier;
    FakeSessionLock sessionLock;
    FakeStatusBarButton statusBarButton;
    FakeStandardOutput standardOutput;
    FakeLog log;

    Platform ports() {
        return {clock,       calendar,    timeFormat,      mainQueue,      ticker,
                preferences, inputIdle,   systemSignals,   displays,       programFocus,
                notifier,    sessionLock, statusBarButton, standardOutput, log};
    }
};

} // namespace kestrelfen
