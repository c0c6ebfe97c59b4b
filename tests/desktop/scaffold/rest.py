"""Bringing a program to rest: paused by its person, with no window of its own and all given back that it can give."""

import itertools
import time

from scaffold import transitions
from scaffold.person import EMPTY_POINT, FOOTER
from scaffold.waiting import until

PATIENCE = 60.0
SETTLING_SECONDS = 1.0
AT_ONCE = 3.0
PAUSED = "paused (manual"


class Rest:
    def __init__(self, case, person, program):
        self._case, self._person, self._program = case, person, program
        self._windows, self._hands = case.windows, case.hands
        self._ways_out = itertools.cycle(("Break Now", "Resume"))

    def is_reached(self):
        return self._is_paused() and not self._shown()

    def _is_paused(self):
        return transitions.state(self._program.output).startswith(PAUSED)

    def _shown(self):
        windows = self._windows
        shown = [*windows.overlays(), windows.popover(), windows.card(), *windows.main_windows(), windows.settings()]
        return [window for window in shown if window]

    def reach(self):
        """With the last window that closes, memory is given back."""
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            if self._pause() and self._close_all() and self._open_and_close():
                time.sleep(SETTLING_SECONDS)
                if self.is_reached():
                    return
        raise AssertionError(f"it does not come to rest: {self._shown()}, {transitions.state(self._program.output)}")

    def leave(self):
        self._person.press_in_popover(next(self._ways_out))

    def _pause(self):
        if self._is_paused():
            return True
        if transitions.state(self._program.output).startswith("paused"):
            self._person.press_in_popover("Resume")
        self._person.press_in_popover("Pause")
        return self._soon(self._is_paused)

    def _open_and_close(self):
        return (self._person.press_in_popover("Settings") and self._soon(self._windows.settings)
                and self._close_all())

    def _close_all(self):
        if self._windows.popover():
            self._hands.press("Escape")
            self._hands.click(EMPTY_POINT)
        for window in [*self._windows.main_windows(), self._windows.settings()]:
            if window:
                self._person.close_window(window)
        return self._soon(lambda: not self._shown())

    @staticmethod
    def _soon(condition):
        try:
            return until(condition, "it", AT_ONCE)
        except AssertionError:
            return False

    def warm_up(self):
        """Each window once, and a break: what is made only once is there afterwards."""
        for name in FOOTER:
            window = self._windows.settings if name == "Settings" else self._windows.main_windows
            # A break that begins closes the popover.
            until(lambda item=name: self._person.press_in_popover(item), name)
            until(window, name)
        self._person.begin_break()
        self._case.wait_for_overlays()
        self._case.desktop.unplug_right()
        self._case.desktop.plug_right()
        self._program.logs("break complete")
        self.reach()
        self.leave()
