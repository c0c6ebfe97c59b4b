"""The base of the tests of a desktop."""

import time
import unittest

from scaffold.accessibility import BUTTON
from scaffold.desktop import LEFT, RIGHT, Desktop
from scaffold.program import QUICK, Program
from scaffold.terminal import Terminal
from scaffold.waiting import until, until_steady


class DesktopTest(unittest.TestCase):
    """One desktop for the whole class; programs and terminals for each test."""

    desktop = None
    tree = None

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.end)
        cls.windows = cls.desktop.windows
        cls.hands = cls.desktop.hands
        cls.tree = cls.desktop.start_accessibility()
        cls.addClassCleanup(cls.tree.close)

    def setUp(self):
        self.hands.move_to((960, 900))

    def start(self, preferences=QUICK, **options):
        program = Program(self.desktop, preferences, **options)
        self.addCleanup(program.end)
        return program

    def terminal(self, name="terminal", *options):
        terminal = Terminal(self.desktop, name, *options)
        self.addCleanup(terminal.end)
        return terminal

    def wait_for_overlays(self, *frames):
        """Until exactly those frames are covered: without any, those of both displays."""
        wanted = list(frames or (LEFT, RIGHT))
        return until(lambda: self._overlays_over(wanted), f"overlays over {wanted}", 20.0)

    def _overlays_over(self, frames):
        overlays = self.windows.overlays()
        return overlays if [window.frame for window in overlays] == frames else None

    def wait_until_escape_counts(self):
        """A new overlay is deaf for half a second, so that nobody ends a break by typing on."""
        time.sleep(0.7)

    def wait_for_no_overlay(self):
        until(lambda: not self.windows.overlays(), "no overlay", 10.0)

    def wait_for_card(self):
        return until(self.windows.card, "the warning card", 20.0)

    def wait_for_no_card(self):
        until(lambda: not self.windows.card(), "no warning card", 10.0)

    def wait_for_popover(self):
        return until_steady(self.windows.popover, "the popover", 10.0)

    def wait_for_no_popover(self):
        until(lambda: not self.windows.popover(), "no popover", 10.0)

    def place_of(self, program, name, role=BUTTON):
        return until_steady(lambda: self.tree.control(program.pid, name, role), f"the {role} {name!r}")

    def click_control(self, program, name, role, button=1):
        self.hands.click(self.place_of(program, name, role), button)

    def click_button(self, program, name, button=1):
        self.click_control(program, name, BUTTON, button)

    def wait_until_told(self, program, name, seconds=15.0):
        until(lambda: name in self.tree.told(program.pid), f"the tree tells {name!r}", seconds)

    def countdown(self, program):
        """What it shows now, or nothing."""
        return next(iter(self.tree.countdowns(program.pid)), None)
