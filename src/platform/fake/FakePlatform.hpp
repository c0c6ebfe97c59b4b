#pragma once

#include "base/CivilTime.hpp"
#include "platform/fake/FakeActivationPolicy.hpp"
#include "platform/fake/FakeApplications.hpp"
#include "platform/fake/FakeAudioProcesses.hpp"
#include "platform/fake/FakeBrowserAccess.hpp"
#include "platform/fake/FakeCalendar.hpp"
#include "platform/fake/FakeClock.hpp"
#include "platform/fake/FakeDisplayPower.hpp"
#include "platform/fake/FakeDisplays.hpp"
#include "platform/fake/FakeInputIdle.hpp"
#include "platform/fake/FakeInterfaceAppearance.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/fake/FakeLoginItem.hpp"
#include "platform/fake/FakeMainQueue.hpp"
#include "platform/fake/FakeNotificationAuthorization.hpp"
#include "platform/fake/FakeNotifier.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "platform/fake/FakeProgramFocus.hpp"
#include "platform/fake/FakeSerialExecutor.hpp"
#include "platform/fake/FakeSessionLock.hpp"
#include "platform/fake/FakeStandardOutput.hpp"
#include "platform/fake/FakeStatusBarButton.hpp"
#include "platform/fake/FakeSystemSignals.hpp"
#include "platform/fake/FakeTicker.hpp"
#include "platform/fake/FakeTimeFormat.hpp"
#include "platform/fake/FakeWindowList.hpp"
#include "platform/ports/Platform.hpp"

namespace kestrelfen {

/// A whole machine by hand, under a virtual clock that begins at 2026-03-09 08:00 UTC in the zone UTC.
struct FakePlatform {
    FakeClock clock{*parseIsoTime("2026-03-09T08:00:00Z")};
    FakeCalendar calendar;
    FakeTimeFormat timeFormat{calendar};
    FakeMainQueue mainQueue{clock};
    FakeSerialExecutor storeExecutor;
    FakeTicker ticker;
    FakePreferences preferences;
    FakeInputIdle inputIdle{clock};
    FakeSystemSignals systemSignals;
    FakeDisplays displays;
    FakeDisplayPower displayPower;
    FakeApplications applications;
    FakeWindowList windowList{applications, displays};
    FakeAudioProcesses audioProcesses;
    FakeBrowserAccess browserAccess{applications, mainQueue};
    FakeProgramFocus programFocus;
    FakeActivationPolicy activationPolicy;
    FakeInterfaceAppearance interfaceAppearance;
    FakeNotificationAuthorization notificationAuthorization;
    FakeNotifier notifier;
    FakeSessionLock sessionLock;
    FakeLoginItem loginItem;
    FakeStatusBarButton statusBarButton;
    FakeStandardOutput standardOutput;
    FakeLog log;

    Platform ports() {
        return {clock,
                calendar,
                timeFormat,
                mainQueue,
                storeExecutor,
                ticker,
                preferences,
                inputIdle,
                systemSignals,
                displays,
                displayPower,
                applications,
                windowList,
                audioProcesses,
                browserAccess,
                programFocus,
                activationPolicy,
                interfaceAppearance,
                notificationAuthorization,
                notifier,
                sessionLock,
                loginItem,
                statusBarButton,
                standardOutput,
                log};
    }
};

} // namespace kestrelfen
