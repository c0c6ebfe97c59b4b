"""What a screen reader is told unasked."""

from typing import NamedTuple

import dbus
import dbus.bus
import dbus.mainloop.glib
from gi.repository import GLib

from scaffold.accessibility import ANSWER_PATIENCE, Node, accessibility_address

EVENTS = "org.a11y.atspi.Event.Object"
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry")


class Event(NamedTuple):
    """`what` is the property that changed, or else the kind of event."""

    what: str
    role: str


class Hearing:
    """Programs say nothing before somebody asks to hear it, and afterwards all of it."""

    def __init__(self, desktop):
        self._loop = GLib.MainLoop()
        address = accessibility_address(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        self._bus = dbus.bus.BusConnection(address, mainloop=dbus.mainloop.glib.DBusGMainLoop())
        self._heard = []

    def __enter__(self):
        self._bus.add_signal_receiver(self._hear, dbus_interface=EVENTS, member_keyword="member",
                                      sender_keyword="sender", path_keyword="path")
        self._registry("RegisterEvent")
        return self

    def __exit__(self, *_):
        self._registry("DeregisterEvent")
        self._bus.close()

    def _registry(self, method):
        self._bus.call_blocking(*REGISTRY, method, "s", ("object:",), timeout=ANSWER_PATIENCE)

    def _hear(self, detail, *_, member, sender, path):
        self._heard.append((member, detail, sender, path))

    def listen(self, seconds):
        """What is heard in that time; from what has gone meanwhile it is left out."""
        self._heard.clear()
        GLib.timeout_add(round(1000 * seconds), self._loop.quit)
        self._loop.run()
        return [event for heard in self._heard if (event := self._event(*heard))]

    def _event(self, member, detail, sender, path):
        try:
            return Event(str(detail) if member == "PropertyChange" else str(member),
                         Node(self._bus, sender, path).role)
        except dbus.DBusException:
            return None
