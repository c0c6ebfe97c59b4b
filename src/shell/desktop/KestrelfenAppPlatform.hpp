#pragma once

#include "platform/linux/AtspiBrowserAccess.hpp"
#include "platform/linux/BusLink.hpp"
#include "platform/linux/DBusNotifier.hpp"
#include "platform/linux/DBusSingleInstance.hpp"
#include "platform/linux/DirectoryWatch.hpp"
#include "platform/linux/LinuxDisplayPower.hpp"
#include "platform/linux/LinuxPrograms.hpp"
#include "platform/linux/LinuxSession.hpp"
#include "platform/linux/LinuxSessionLock.hpp"
#include "platform/linux/LinuxSystemSignals.hpp"
#include "platform/linux/LinuxTrayIcon.hpp"
#include "platform/linux/PortalDisplayWishes.hpp"
#include "platform/linux/PortalSaveDialog.hpp"
#include "platform/linux/ProgramLauncher.hpp"
#include "platform/linux/PulseAudioProcesses.hpp"
#include "platform/linux/X11Panels.hpp"
#include "platform/ports/LoginItem.hpp"
#include "platform/ports/PunctualClock.hpp"
#include "platform/posix/FolderSaveDialog.hpp"
#include "platform/posix/JsonPreferences.hpp"
#include "platform/posix/OpenNotificationAuthorization.hpp"
#include "platform/posix/PosixCalendar.hpp"
#include "platform/posix/PosixClock.hpp"
#include "platform/posix/PosixTextFileWriter.hpp"
#include "platform/posix/StandardFolders.hpp"
#include "platform/posix/StreamLog.hpp"
#include "platform/posix/StreamOutput.hpp"
#include "platform/posix/ThreadExecutor.hpp"
#include "platform/qt/QtActivationPolicy.hpp"
#include "platform/qt/QtDisplays.hpp"
#include "platform/qt/QtMainQueue.hpp"
#include "platform/qt/QtProgramFocus.hpp"
#include "platform/qt/QtTicker.hpp"
#include "platform/qt/QtTimeFormat.hpp"
#include "shell/desktop/QuickViews.hpp"
#include "shell/desktop/StatusItem.hpp"
#include "store/StoreConfiguration.hpp"

#include <QDBusConnection>

#include <memory>
#include <vector>

namespace kestrelfen {

/// The machine that the desktop program runs on, as this session offers it. Main thread only.
class KestrelfenAppPlatform {
  public:
    KestrelfenAppPlatform();

    Platform ports();

    StoreConfiguration storeConfiguration() const;

    /// Those of the desktop, if it has some that are known here.
    void openAccessibilitySettings();

    StreamLog log{stderr};
    StreamOutput output{stdout};
    QtMainQueue mainQueue;
    ThreadExecutor storeExecutor;
    PosixClock wallClock;
    PunctualClock clock{wallClock};
    QtTicker ticker{clock};
    PosixCalendar calendar;
    QtTimeFormat timeFormat{calendar};
    JsonPreferences preferences{JsonPreferences::standardPath(), log, mainQueue};
    BusLink systemLink{BusLink::Bus::system};
    BusLink sessionLink{BusLink::Bus::session};
    LinuxSystemSignals systemSignals{systemLink, sessionLink};
    LinuxDisplayPower displayPower{systemSignals};
    LinuxSessionLock sessionLock{systemLink, sessionLink, systemSignals, log};
    LinuxPrograms programs;
    LinuxSession session{{sessionLink, programs, log}};
    std::unique_ptr<InputIdle> inputIdle{session.makeInputIdle()};
    LinuxSession::Windows windows{orAbsent(session.makeWindows())};
    PulseAudioProcesses audioProcesses{programs};
    ProgramLauncher launcher{programs};
    AtspiBrowserAccess browserAccess{{sessionLink, *windows.applications, programs, preferences, mainQueue}};
    PosixTextFileWriter fileWriter;
    PortalRequests portal{sessionLink};
    FolderSaveDialog homeFolderSave{homeFolder()};
    PortalSaveDialog saveDialog{portal, homeFolderSave};
    std::unique_ptr<LoginItem> loginItem{makeLoginItem()};
    std::unique_ptr<Displays> displays{orQt(session.makeDisplays())};
    QtProgramFocus programFocus;
    QtActivationPolicy activationPolicy;
    OpenNotificationAuthorization notificationAuthorization;
    QDBusConnection sessionBus{QDBusConnection::sessionBus()};
    DBusSingleInstance instance{sessionBus, log};
    DBusNotifier notifier{sessionBus, sessionLink};
    std::unique_ptr<EscapeKey> escapeKey{session.makeEscapeKey()};
    std::unique_ptr<Compositor> compositor{session.makeCompositor()};
    X11Panels panels;
    std::unique_ptr<TrayIcon> tray{makeLinuxTrayIcon(sessionBus, log)};
    StatusItem statusItem{*tray};
    PortalDisplayWishes displayWishes{sessionLink};
    QuickViews views{displayWishes};

  private:
    /// Those of the session, or others that tell nothing.
    static LinuxSession::Windows orAbsent(LinuxSession::Windows windows);
    /// Those of the session, or else those of Qt.
    static std::unique_ptr<Displays> orQt(std::unique_ptr<Displays> displays);
    std::unique_ptr<LoginItem> makeLoginItem();

    std::vector<std::unique_ptr<DirectoryWatch>> watches_;
};

} // namespace kestrelfen
