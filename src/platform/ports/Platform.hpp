#pragma once

namespace kestrelfen {

class ActivationPolicy;
class Applications;
class AudioProcesses;
class BrowserAccess;
class Calendar;
class Clock;
class DisplayPower;
class Displays;
class InputIdle;
class InterfaceAppearance;
class Log;
class LoginItem;
class MainQueue;
class NotificationAuthorization;
class Notifier;
class Preferences;
class ProgramFocus;
class SerialExecutor;
class SessionLock;
class StandardOutput;
class StatusBarButton;
class SystemSignals;
class Ticker;
class TimeFormat;
class WindowList;

/// Everything that the program asks of the system it runs on. The ports outlive whoever holds this.
struct Platform {
    Clock& clock;
    Calendar& calendar;
    TimeFormat& timeFormat;
    MainQueue& mainQueue;
    SerialExecutor& storeExecutor;
    Ticker& ticker;
    Preferences& preferences;
    InputIdle& inputIdle;
    SystemSignals& systemSignals;
    Displays& displays;
    DisplayPower& displayPower;
    Applications& applications;
    WindowList& windowList;
    AudioProcesses& audioProcesses;
    BrowserAccess& browserAccess;
    ProgramFocus& programFocus;
    ActivationPolicy& activationPolicy;
    InterfaceAppearance& interfaceAppearance;
    NotificationAuthorization& notificationAuthorization;
    Notifier& notifier;
    SessionLock& sessionLock;
    LoginItem& loginItem;
    StatusBarButton& statusBarButton;
    StandardOutput& standardOutput;
    Log& log;
};

} // namespace kestrelfen
