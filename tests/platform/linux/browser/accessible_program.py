#!/usr/bin/python3
"""A program on the accessibility bus that tells of windows and their pages as a browser does.

Each line that it is given is a JSON object and answered by one. "windows" says what it shows from now on: a list of
objects with a "name" and, where there is one, a page's "address"; "active" when it is in front, "asleep" when it tells
of its page only some time after it was asked for attributes. "calls" answers what it was asked since the last time.
"""

import json
import sys
import time

import dbus
import dbus.bus
import dbus.lowlevel
import dbus.mainloop.glib
from gi.repository import GLib

FOLDER = "/org/a11y/atspi/accessible/"
ROOT = FOLDER + "root"
WAKING_SECONDS = 0.25
ACTIVE = 1 << 1
SHOWING = 1 << 25
WEB_DOCUMENT = 95


class Window:
    def __init__(self, number, told):
        self.number = number
        self.told = told
        self.is_asleep = told.get("asleep", False)
        self.awake_at = 0.0

    def wake(self):
        if self.is_asleep:
            self.is_asleep = False
            self.awake_at = time.monotonic() + WAKING_SECONDS

    def matches(self, rule, count):
        is_sought = bool(rule[0][0] & SHOWING) and bool(rule[4][WEB_DOCUMENT // 32] & (1 << 31)) and count == 1
        return ["document"] if "address" in self.told and is_sought and not self.is_asleep else []

    def document(self):
        is_awake = time.monotonic() >= self.awake_at
        return {self.told.get("attribute", "URI"): self.told["address"] if is_awake else "", "Title": "Secret Title",
                "MimeType": "text/html" if is_awake else ""}


class Program:
    def __init__(self, bus):
        self.bus = bus
        self.windows = []
        self.calls = []
        bus.add_message_filter(self.hear)

    def hear(self, _connection, message):
        if message.get_type() != dbus.lowlevel.MESSAGE_TYPE_METHOD_CALL or not message.get_path().startswith(FOLDER):
            return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
        answer = self.answer(message.get_path()[len(FOLDER):], message.get_member(), message.get_args_list())
        if answer is None:
            return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
        signature, value = answer
        reply = dbus.lowlevel.MethodReturnMessage(message)
        reply.append(value, signature=signature)
        self.bus.send_message(reply)
        return dbus.lowlevel.HANDLER_RESULT_HANDLED

    def answer(self, name, member, arguments):
        if name == "root":
            return ("a(so)", self.objects([f"window{window.number}" for window in self.windows])) \
                if member == "GetChildren" else None
        kind, number = name.rstrip("0123456789"), int("0" + name.lstrip("windowcumet"))
        if number >= len(self.windows):
            return None
        self.calls.append({"member": member, "window": number})
        window = self.windows[number]
        return self.of_document(window, member) if kind == "document" else self.of_window(window, member, arguments)

    def of_window(self, window, member, arguments):
        if member == "GetState":
            return "au", [ACTIVE if window.told.get("active") else 0, 0]
        if member == "Get":
            return "v", dbus.String(window.told["name"], variant_level=1)
        if member == "GetAttributes":
            window.wake()
            return "a{ss}", {"class": "BrowserRootView"}
        if member == "GetMatches":
            found = window.matches(arguments[0], arguments[2])
            return "a(so)", self.objects([f"{each}{window.number}" for each in found])
        return None

    @staticmethod
    def of_document(window, member):
        return ("a{ss}", window.document()) if member == "GetAttributes" else None

    def objects(self, names):
        return dbus.Array([(self.bus.get_unique_name(), dbus.ObjectPath(FOLDER + name)) for name in names],
                          signature="(so)")

    def take(self, command):
        if "windows" in command:
            self.windows = [Window(number, told) for number, told in enumerate(command["windows"])]
        calls, self.calls = self.calls, []
        return {"calls": calls}


def listen(program, loop):
    def take_line(_source, _condition):
        line = sys.stdin.readline()
        if line:
            print(json.dumps(program.take(json.loads(line))), flush=True)
        else:
            loop.quit()
        return bool(line)

    GLib.io_add_watch(0, GLib.IO_IN | GLib.IO_HUP, take_line)


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    service = dbus.SessionBus().get_object("org.a11y.Bus", "/org/a11y/bus")
    bus = dbus.bus.BusConnection(str(service.GetAddress(dbus_interface="org.a11y.Bus")))
    program = Program(bus)
    loop = GLib.MainLoop()
    listen(program, loop)
    registry = bus.get_object("org.a11y.atspi.Registry", ROOT)
    registry.Embed((bus.get_unique_name(), dbus.ObjectPath(ROOT)), dbus_interface="org.a11y.atspi.Socket")
    print("{}", flush=True)
    loop.run()


main()
