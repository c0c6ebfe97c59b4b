"""A stand-in for the desktop's portal on the session bus: the answers of a person and the desktop's settings."""

import dbus
import dbus.bus

from scaffold.waiting import until

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
FILES = "org.freedesktop.portal.FileChooser"
SETTINGS = "org.freedesktop.portal.Settings"
REQUEST = "org.freedesktop.portal.Request"
MOCK = "org.freedesktop.DBus.Mock"
APPEARANCE = "org.freedesktop.appearance"
COLOR_SCHEME = "color-scheme"
GRANTED, REFUSED = 0, 1
PREFERS_DARK, PREFERS_LIGHT = 1, 2
PYTHON = "/usr/bin/python3"

RESPOND = """handle = '{path}/request/1_1/' + str(args[-1]['handle_token'])
self.AddObject(handle, '{request}', {{}}, [])
objects[handle].EmitSignal('{request}', 'Response', 'ua{{sv}}',
                           [dbus.UInt32({answer}), dbus.Dictionary({results}, signature='sv')])
ret = dbus.ObjectPath(handle)"""


class Portal:
    def __init__(self, desktop):
        self._desktop = desktop
        self._bus = dbus.bus.BusConnection(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        command = [PYTHON, "-m", "dbusmock", "--session", NAME, PATH, SETTINGS]
        self._process = desktop.processes.start(command, env=desktop.environment)
        until(lambda: self._bus.name_has_owner(NAME), "the portal")
        self.color_scheme(PREFERS_LIGHT)

    def end(self):
        self._desktop.processes.end(self._process)
        self._bus.close()

    def _mocked(self, interface=MOCK):
        return dbus.Interface(self._bus.get_object(NAME, PATH, introspect=False), interface)

    def color_scheme(self, value):
        """From now on, and to everybody who listens."""
        value = dbus.UInt32(value)
        values = f"{{'{COLOR_SCHEME}': dbus.UInt32({int(value)})}}"
        self._mocked().AddMethod(SETTINGS, "ReadAll", "as", "a{sa{sv}}", f"ret = {{'{APPEARANCE}': {values}}}")
        self._mocked().EmitSignal(SETTINGS, "SettingChanged", "ssv",
                                  dbus.Array([APPEARANCE, COLOR_SCHEME, value], signature="v"), signature="sssav")

    def answer_save(self, answer, path=None):
        """What the person will do with the dialog that asks where to save."""
        results = f"{{'uris': dbus.Array(['{path.as_uri()}'], signature='s')}}" if path else "{}"
        code = RESPOND.format(path=PATH, request=REQUEST, answer=answer, results=results)
        self._mocked().AddMethod(FILES, "SaveFile", "ssa{sv}", "o", code)

    def save_calls(self):
        """The arguments of each dialog until now."""
        calls = self._mocked().GetMethodCalls("SaveFile")
        return [arguments for _, arguments in calls]
