"""What a process and those below it cost, as /proc tells."""

import os
import signal
import time
from collections import Counter
from typing import NamedTuple

MEMORY_ROWS = {"Pss": "pss", "Rss": "rss", "Private_Dirty": "private_dirty"}
SWITCH_ROWS = {"voluntary_ctxt_switches": "voluntary", "nonvoluntary_ctxt_switches": "involuntary"}
KIB_PER_MIB = 1024
NANOSECONDS_PER_SECOND = 1e9
SECONDS_PER_MINUTE = 60


class Footprint(NamedTuple):
    seconds: float
    processes: int
    threads: int
    #: MiB
    pss: float
    rss: float
    private_dirty: float
    #: a second
    voluntary_switches: float
    involuntary_switches: float
    #: seconds of the processor a minute
    processor: float
    #: what these did is missing in the three figures before
    threads_ended: int

    def lines(self):
        return [
            f"PSS            {self.pss:8.1f} MiB",
            f"RSS            {self.rss:8.1f} MiB",
            f"private dirty  {self.private_dirty:8.1f} MiB",
            f"processor      {self.processor:8.3f} s a minute",
            f"switches       {self.voluntary_switches:8.2f} a second voluntary,"
            f" {self.involuntary_switches:.2f} involuntary",
            f"processes      {self.processes:8d}, threads {self.threads}",
            f"over           {self.seconds:8.1f} s"
            + (f" (without {self.threads_ended} threads that ended)" if self.threads_ended else ""),
        ]


def _read(path):
    with open(path, encoding="ascii", errors="replace") as stream:
        return stream.read()


def _listed(path):
    """What a file of the tree says, or nothing where its process or thread has just ended."""
    try:
        return _read(path)
    except (FileNotFoundError, ProcessLookupError):
        return ""


def _rows(text, wanted):
    numbers = Counter()
    for line in text.splitlines():
        name, _, value = line.partition(":")
        if name in wanted:
            numbers[wanted[name]] += int(value.split()[0])
    return numbers


class ProcessTree:
    def __init__(self, pid):
        self._root = pid

    def processes(self):
        """The numbers of all of them."""
        found = [self._root]
        for pid in found:
            for thread in self._threads_of(pid):
                found += map(int, _listed(f"/proc/{pid}/task/{thread}/children").split())
        return found

    @staticmethod
    def _threads_of(pid):
        try:
            return os.listdir(f"/proc/{pid}/task")
        except FileNotFoundError:
            return []

    def _work(self):
        """Switches and nanoseconds of each thread so far."""
        work = {}
        for pid in self.processes():
            for thread in self._threads_of(pid):
                place = f"/proc/{pid}/task/{thread}"
                counts = _rows(_listed(f"{place}/status"), SWITCH_ROWS)
                counts["nanoseconds"] = int((_listed(f"{place}/schedstat").split() or ["0"])[0])
                work[thread] = counts
        return work

    def _memory(self):
        memory = Counter()
        for pid in self.processes():
            memory += _rows(_listed(f"/proc/{pid}/smaps_rollup"), MEMORY_ROWS)
        return memory

    def terminate(self):
        """Asks all of them to end."""
        for pid in self.processes():
            try:
                os.kill(pid, signal.SIGTERM)
            except ProcessLookupError:
                pass

    def measure(self, seconds):
        """Watches for that long; the memory is that of the end."""
        begin, before = time.monotonic(), self._work()
        time.sleep(seconds)
        after, passed = self._work(), time.monotonic() - begin
        total = Counter()
        for thread, counts in after.items():
            total.update(counts)
            total.subtract(before.get(thread, {}))
        memory = self._memory()
        if not memory["rss"]:
            raise ProcessLookupError(f"process {self._root} has ended")
        return Footprint(
            seconds=passed, processes=len(self.processes()), threads=len(after),
            pss=memory["pss"] / KIB_PER_MIB, rss=memory["rss"] / KIB_PER_MIB,
            private_dirty=memory["private_dirty"] / KIB_PER_MIB,
            voluntary_switches=total["voluntary"] / passed, involuntary_switches=total["involuntary"] / passed,
            processor=total["nanoseconds"] / NANOSECONDS_PER_SECOND / passed * SECONDS_PER_MINUTE,
            threads_ended=len(before.keys() - after.keys()))
