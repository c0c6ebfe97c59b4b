"""Starting programs and leaving none of them behind, nor any that they have started."""

import ctypes
import os
import signal
import subprocess
import time

from scaffold.waiting import LOOK_EVERY

SET_PARENT_DEATH_SIGNAL = 1
SET_CHILD_SUBREAPER = 36
END_PATIENCE = 5.0

library = ctypes.CDLL(None)


def adopt_orphans():
    """Makes this process the parent of what its children leave behind, so that it can be found."""
    library.prctl(SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def die_with_the_test():
    library.prctl(SET_PARENT_DEATH_SIGNAL, signal.SIGTERM, 0, 0, 0)


def children():
    with open(f"/proc/self/task/{os.getpid()}/children", encoding="ascii") as stream:
        return [int(number) for number in stream.read().split()]


def command_of(pid):
    try:
        with open(f"/proc/{pid}/cmdline", "rb") as stream:
            return stream.read().replace(b"\0", b" ").decode(errors="replace").strip()
    except OSError:
        return "?"


def has_ended(pid):
    """Takes the status of an adopted process that has ended."""
    try:
        return os.waitpid(pid, os.WNOHANG)[0] == pid
    except ChildProcessError:
        return True


class Processes:
    """The processes of one desktop, which are ended in the reverse order of their start."""

    def __init__(self):
        adopt_orphans()
        self._foreign = set(children())
        self._started = []

    def start(self, command, **options):
        options.setdefault("stdin", subprocess.DEVNULL)
        options.setdefault("stdout", subprocess.DEVNULL)
        options.setdefault("stderr", subprocess.DEVNULL)
        process = subprocess.Popen(command, preexec_fn=die_with_the_test, **options)
        self._started.append(process)
        return process

    def end(self, process):
        """Ends one of them, the hard way if it does not go by itself."""
        if process.poll() is None:
            process.terminate()
            try:
                process.wait(END_PATIENCE)
            except subprocess.TimeoutExpired:
                process.kill()
        process.wait()
        for stream in (process.stdin, process.stdout, process.stderr):
            if stream:
                stream.close()
        if process in self._started:
            self._started.remove(process)

    def end_all(self):
        """Ends them all, and fails if something that they started does not end with them."""
        for process in reversed(self._started[:]):
            self.end(process)
        left = self._wait_for_orphans()
        names = [command_of(pid) for pid in left]
        for pid in left:
            os.kill(pid, signal.SIGKILL)
            os.waitpid(pid, 0)
        if names:
            raise AssertionError(f"left behind: {names}")

    def _wait_for_orphans(self):
        deadline = time.monotonic() + END_PATIENCE
        while True:
            left = [pid for pid in children() if pid not in self._foreign and not has_ended(pid)]
            if not left or time.monotonic() > deadline:
                return left
            time.sleep(LOOK_EVERY)
