"""What a program holds while it is at rest, looked at again and again, and whether it grows."""

import os
import statistics
from collections import Counter

import dbus
import dbus.bus

from scaffold.x_resources import XResources

#: The pages of files come and go with what else runs, so that only the others are the program's own.
OWN = "own KiB"
MEMORY = {"Pss": "PSS KiB", "Pss_Anon": OWN, "Pss_Shmem": OWN}
DAEMON = "org.freedesktop.DBus"
DAEMON_PATH = "/org/freedesktop/DBus"
STATISTICS = f"{DAEMON}.Debug.Stats"
#: A third of fewer says nothing.
ENOUGH = 6


def memory_of(pid):
    counts = Counter()
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as stream:
        for line in stream:
            name, _, value = line.partition(":")
            if name in MEMORY:
                counts[MEMORY[name]] += int(value.split()[0])
    return counts


def has_sanitizer(pid):
    """Its allocator keeps what was freed, so that memory tells nothing."""
    with open(f"/proc/{pid}/maps", encoding="utf-8", errors="replace") as stream:
        return "libasan" in stream.read()


class Gauge:
    """Looks at one program from outside."""

    def __init__(self, desktop, pid):
        self._pid = pid
        self._server = XResources(desktop.environment["DISPLAY"])
        self._bus = dbus.bus.BusConnection(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])

    def close(self):
        self._bus.close()
        self._server.close()

    def look(self):
        counts = memory_of(self._pid)
        counts["descriptors"] = len(os.listdir(f"/proc/{self._pid}/fd"))
        counts["threads"] = len(os.listdir(f"/proc/{self._pid}/task"))
        return counts + self._server.counts_of(self._pid) + self._bus_counts()

    def _daemon(self, interface, method, *arguments):
        return self._bus.call_blocking(DAEMON, DAEMON_PATH, interface, method, "s" * len(arguments), arguments)

    def _bus_counts(self):
        counts = Counter()
        for name in self._daemon(DAEMON, "ListNames"):
            if name.startswith(":") and self._owns(name):
                told = self._daemon(STATISTICS, "GetConnectionStats", name)
                counts += Counter({"bus connections": 1, "match rules": int(told["MatchRules"]),
                                   "bus names": int(told["BusNames"])})
        return counts

    def _owns(self, name):
        try:
            return int(self._daemon(DAEMON, "GetConnectionUnixProcessID", name)) == self._pid
        except dbus.DBusException:
            return False


def thirds(values):
    third = len(values) // 3
    return values[:third], values[third:-third], values[-third:]


def growth(values):
    """By how much the middle of the last third is above that of the first."""
    first, _, last = thirds(values)
    return statistics.median(last) - statistics.median(first)


def slope(values):
    """By how much the straight line through them rises from the first to the last."""
    return statistics.linear_regression(range(len(values)), values).slope * (len(values) - 1)


def has_risen(values):
    """Whether each third is above the one before it: what is counted comes back to where it was, and what is made only
    once makes one step."""
    first, second, last = thirds(values)
    return max(first) < min(second) and max(second) < min(last)


def told(name, values):
    first, _, last = thirds(values)
    return (f"{name:24} {statistics.median(first):9.0f} → {statistics.median(last):9.0f}"
            f"   (lowest {min(values)}, highest {max(values)}, line {slope(values):+.0f})")
