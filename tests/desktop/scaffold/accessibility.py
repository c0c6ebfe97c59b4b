"""The accessibility tree of a program, read as a screen reader would."""

import re

import dbus
import dbus.bus

ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
PROPERTIES = "org.freedesktop.DBus.Properties"
SCREEN_COORDINATES = dbus.UInt32(0)
ANSWER_PATIENCE = 10.0
BUTTON = "push button"
SHOWING = 1 << 25
LABEL = "label"
COUNTDOWN = re.compile(r"^\d+:\d\d$")


class Node:
    """One accessible object. Every look at it may find that it has gone: that is a DBusException."""

    def __init__(self, bus, service, path):
        self._bus = bus
        self.service = service
        self._path = path

    def _call(self, interface, method, signature="", *arguments):
        return self._bus.call_blocking(self.service, self._path, interface, method, signature, arguments,
                                       timeout=ANSWER_PATIENCE)

    @property
    def name(self):
        return str(self._call(PROPERTIES, "Get", "ss", ACCESSIBLE, "Name"))

    @property
    def role(self):
        return str(self._call(ACCESSIBLE, "GetRoleName"))

    @property
    def path(self):
        """Tells it from the others of its program."""
        return str(self._path)

    @property
    def told(self):
        return self.name, self.role

    @property
    def frame(self):
        """On the display: from the left, from the top, width, height."""
        return tuple(map(int, self._call(COMPONENT, "GetExtents", "u", SCREEN_COORDINATES)))

    @property
    def centre(self):
        x, y, width, height = self.frame
        return x + width // 2, y + height // 2

    @property
    def state(self):
        """One bit each."""
        return int(self._call(ACCESSIBLE, "GetState")[0])

    @property
    def is_showing(self):
        return bool(self.state & SHOWING)

    def children(self):
        return [Node(self._bus, service, path) for service, path in self._call(ACCESSIBLE, "GetChildren")]

    def walk(self):
        yield self
        for child in self.children():
            yield from child.walk()


def accessibility_address(session_address):
    """Of the bus of its own that all this goes over."""
    session = dbus.bus.BusConnection(session_address)
    address = session.call_blocking("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", "", (),
                                    timeout=ANSWER_PATIENCE)
    session.close()
    return str(address)


class Accessibility:
    """What the programs of a desktop tell of themselves."""

    def __init__(self, session_address):
        self._bus = dbus.bus.BusConnection(accessibility_address(session_address))

    def close(self):
        self._bus.close()

    def program(self, pid):
        """The root of the program of that process, if it has told of itself yet."""
        registry = Node(self._bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
        for node in registry.children():
            if self._pid_of(node.service) == pid:
                return node
        return None

    def _pid_of(self, service):
        return int(self._bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                           "GetConnectionUnixProcessID", "s", (service,), timeout=ANSWER_PATIENCE))

    def nodes(self, pid):
        """All that the program shows now; nothing while the tree changes under the eyes."""
        try:
            root = self.program(pid)
            return [node for node in root.walk() if node.is_showing] if root else []
        except dbus.DBusException:
            return []

    def told(self, pid, role=None):
        """The names of what the program shows, of one role or of all."""
        try:
            return [node.name for node in self.nodes(pid) if role is None or node.role == role]
        except dbus.DBusException:
            return []

    def countdowns(self, pid):
        """The time that each window shows as a countdown."""
        return [name for name in self.told(pid, LABEL) if COUNTDOWN.match(name)]

    def button(self, pid, name):
        """Where to click on the button of that name, or nothing."""
        return self.control(pid, name, BUTTON)

    def control(self, pid, name, role):
        """Where to click on what has that name and role, or nothing."""
        try:
            return next((node.centre for node in self.nodes(pid) if node.name == name and node.role == role), None)
        except dbus.DBusException:
            return None
