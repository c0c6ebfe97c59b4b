#!/usr/bin/python3
"""A StatusNotifierWatcher and host on the session bus.

It tells what happens in lines of JSON, and obeys lines of JSON:
  {"do": "properties"}                            all properties of the item
  {"do": "property", "name": NAME}                one property, or the error's name
  {"do": "call", "method": NAME, "arguments": []} a method of the item
  {"do": "host", "is": BOOL}                      a host comes or goes
"""

import json
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
PROPERTIES = "org.freedesktop.DBus.Properties"


def tell(**event):
    print(json.dumps(event), flush=True)


def plain(value):
    """D-Bus values as JSON knows them, bytes as numbers."""
    if isinstance(value, dbus.Boolean):
        return bool(value)
    if isinstance(value, (dbus.String, dbus.ObjectPath)):
        return str(value)
    if isinstance(value, dict):
        return {plain(key): plain(item) for key, item in value.items()}
    if isinstance(value, (list, tuple)):
        return [plain(item) for item in value]
    return int(value)


class Watcher(dbus.service.Object):
    def __init__(self, bus, has_host):
        super().__init__(bus, "/StatusNotifierWatcher")
        self.bus = bus
        self.has_host = has_host
        self.service = None

    def item(self, interface):
        return dbus.Interface(self.bus.get_object(self.service, "/StatusNotifierItem", introspect=False), interface)

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierItem(self, service):
        self.service = service
        self.bus.add_signal_receiver(
            lambda *arguments, member: tell(event="signal", name=member),
            dbus_interface=ITEM, bus_name=service, path="/StatusNotifierItem", member_keyword="member")
        tell(event="registered", service=service)

    @dbus.service.method(PROPERTIES, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return {"IsStatusNotifierHostRegistered": self.has_host, "ProtocolVersion": 0}[name]

    @dbus.service.signal(WATCHER)
    def StatusNotifierHostRegistered(self):
        pass

    @dbus.service.signal(WATCHER)
    def StatusNotifierHostUnregistered(self):
        pass

    def obey(self, command):
        try:
            self.do(command)
        except dbus.DBusException as failure:
            tell(error=failure.get_dbus_name())

    def do(self, command):
        if command["do"] == "properties":
            tell(answer=plain(self.item(PROPERTIES).GetAll(ITEM)))
        elif command["do"] == "property":
            tell(answer=plain(self.item(PROPERTIES).Get(ITEM, command["name"])))
        elif command["do"] == "call":
            getattr(self.item(ITEM), command["method"])(*command["arguments"])
            tell(answer=None)
        elif command["do"] == "host":
            self.has_host = command["is"]
            (self.StatusNotifierHostRegistered if self.has_host else self.StatusNotifierHostUnregistered)()


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    watcher = Watcher(bus, "--no-host" not in sys.argv)
    name = dbus.service.BusName(WATCHER, bus, do_not_queue=True)
    tell(event="ready")
    loop = GLib.MainLoop()

    def read(channel, _condition):
        line = channel.readline()
        if not line:
            loop.quit()
            return False
        watcher.obey(json.loads(line))
        return True

    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, read)
    loop.run()
    del name


main()
