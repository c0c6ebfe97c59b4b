#pragma once

namespace kestrelfen {

class Calendar;
class Clock;
class Displays;
class InputIdle;
class Log;
class MainQueue;
class Notifier;
class Preferences;
class ProgramFocus;
class SessionLock;
class StandardOutput;
class StatusBarButton;
class SystemSignals;
class Ticker;
class TimeFormat;

/// Everything that the program asks of the system it runs on. The ports outlive whoever holds this.
struct Platform {
    Clock& clock;
    Calendar& calendar;
    TimeFormat& timeFormat;
    MainQueue& mainQueue;
    Ticker& ticker;
    Preferences& preferences;
    InputIdle& inputIdle;
    SystemSignals& systemSignals;
    Displays& displays;
    ProgramFocus& programFocus;
    Notifier& notifier;
    SessionLock& sessionLock;
    StatusBarButton& statusBarButton;
    StandardOutput& standardOutput;
    Log& log;
};

} // namespace kestrelfen
