"""A stand-in for login1 on a system bus of its own: the one service that a machine cannot run for a test."""

import dbus
import dbus.bus

from scaffold.session_bus import start_session_bus
from scaffold.waiting import until

NAME = "org.freedesktop.login1"
PATH = "/org/freedesktop/login1"
SESSION = f"{PATH}/session/c1"
MANAGER_INTERFACE = f"{NAME}.Manager"
SESSION_INTERFACE = f"{NAME}.Session"
PYTHON = "/usr/bin/python3"


class LoginManager:
    """Programs find it by the desktop's environment."""

    def __init__(self, desktop):
        self._desktop = desktop
        self._address = start_session_bus(desktop.processes, desktop.make_folder("system-bus"))
        desktop.environment["DBUS_SYSTEM_BUS_ADDRESS"] = self._address
        self._bus = dbus.bus.BusConnection(self._address)
        self.start()

    def start(self):
        environment = self._desktop.environment | {"DBUS_SESSION_BUS_ADDRESS": self._address}
        self._mock = self._desktop.processes.start([PYTHON, "-m", "dbusmock", "--session", "-t", "logind"],
                                                   env=environment)
        until(lambda: self._bus.name_has_owner(NAME), "login1")
        self._mocked(PATH).AddMethod(MANAGER_INTERFACE, "GetSessionByPID", "u", "o", f"ret = '{SESSION}'")
        self._mocked(PATH).AddSession("c1", "seat0", dbus.UInt32(1000), "somebody", True)

    def stop(self):
        self._desktop.processes.end(self._mock)

    def close(self):
        self._bus.close()

    def _mocked(self, path):
        return dbus.Interface(self._bus.get_object(NAME, path, introspect=False), "org.freedesktop.DBus.Mock")

    def prepare_for_sleep(self, is_coming):
        self._mocked(PATH).EmitSignal(MANAGER_INTERFACE, "PrepareForSleep", "b", [is_coming])

    def prepare_for_shutdown(self):
        self._mocked(PATH).EmitSignal(MANAGER_INTERFACE, "PrepareForShutdown", "b", [True])

    def change(self, name, value):
        """A property of the session, as told to everybody."""
        self._mocked(SESSION).UpdateProperties(SESSION_INTERFACE, {name: dbus.Boolean(value, variant_level=1)})
