#!/usr/bin/python3
"""A notification daemon that tells each notification in a line of JSON."""

import json

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib


class Daemon(dbus.service.Object):
    @dbus.service.method("org.freedesktop.Notifications", in_signature="susssasa{sv}i", out_signature="u")
    def Notify(self, application, replaces, icon, title, body, actions, hints, expire):
        record = {
            "application": application, "replaces": int(replaces), "icon": icon, "title": title, "body": body,
            "actions": list(actions), "expire": int(expire),
            "hints": {key: bool(value) if isinstance(value, dbus.Boolean) else value for key, value in hints.items()},
        }
        print(json.dumps(record), flush=True)
        return 1


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
daemon = Daemon(bus, "/org/freedesktop/Notifications")
name = dbus.service.BusName("org.freedesktop.Notifications", bus, do_not_queue=True)
print("{}", flush=True)
GLib.MainLoop().run()
