"""A whole cycle of ten seconds of work and five of a break, as it looks and as it is told."""

import re
import threading
import time
import unittest

from scaffold import DesktopTest, until
from scaffold.desktop import LEFT, RIGHT
from scaffold.panel import Panel
from scaffold.program import Program
from scaffold.terminal import Terminal

FAST = {"debugFastCycle": True, "idleMode": "off", "enforcementLevel": "casual"}
FULL_SCREEN_COLOR = bytes((0, 0xc0, 0))


class CycleTests(DesktopTest):
    """The class watches one cycle; each test judges a side of it."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.panel = Panel(cls.desktop)
        cls.terminal_in_front = Terminal(cls.desktop, "full-screen", "-fullscreen", "-bg", "#00c000", "-fg", "#00c000")
        cls.hands.move_to((2500, 700))
        cls.program = Program(cls.desktop, FAST)
        cls.addClassCleanup(cls.program.end)
        cls.watch()

    @classmethod
    def watch(cls):
        cls.card = until(cls.windows.card, "the warning card", 20.0)
        cls.warning_told = cls.tree.told(cls.program.pid)
        until(lambda: len(cls.windows.overlays()) == 2, "two overlays")
        cls.overlays = cls.windows.overlays()
        cls.labels = []
        cls.sample_labels(until_label="0:04")
        cls.break_told = cls.tree.told(cls.program.pid)
        # Beside the sampling, which would come too late for the next label.
        looking = threading.Thread(target=cls.look_at_the_break)
        looking.start()
        cls.sample_labels()
        looking.join()
        cls.program.logs("break complete (today: 1)")
        until(lambda: not cls.windows.overlays(), "no overlay", 3.0)
        cls.picture_after = cls.desktop.shoot(LEFT)

    @classmethod
    def look_at_the_break(cls):
        cls.card_during_break = cls.windows.card()
        cls.stacking = cls.windows.stacking()
        cls.are_unmanaged = [cls.windows.is_unmanaged(window) for window in cls.overlays]
        cls.picture = cls.desktop.shoot(LEFT)

    @classmethod
    def sample_labels(cls, until_label=None):
        """Notes when each label of the countdown was first told, until that one or the end of the break."""
        deadline = time.monotonic() + 15.0
        while time.monotonic() < deadline and not cls.program.count("break complete"):
            if cls.labels and cls.labels[-1][0] == until_label:
                return
            # The two overlays may be looked at just before and after a change: one is enough.
            for label in cls.tree.countdowns(cls.program.pid)[:1]:
                if not cls.labels or cls.labels[-1][0] != label:
                    cls.labels.append((label, time.monotonic()))
            time.sleep(0.02)
        cls.end_of_labels = time.monotonic()

    def test_card_is_ten_pixels_inside_the_top_right_corner_of_the_display_with_the_pointer(self):
        self.assertEqual((self.card.x + self.card.width, self.card.y), (1920 + 1920 - 10, 10))
        self.assertEqual(self.card.width, 400)

    def test_card_tells_the_seconds_and_its_buttons(self):
        self.assertTrue({"Break in 3 seconds", "Break in 2 seconds"} & set(self.warning_told), self.warning_told)
        for name in ("Dismiss", "Snooze 1 minute", "Snooze 3 minutes", "Snooze 5 minutes", "Start Now"):
            self.assertIn(name, self.warning_told)

    def test_card_gives_way_to_the_overlays(self):
        self.assertIsNone(self.card_during_break)

    def test_overlays_cover_each_display_exactly_and_no_window_manager_handles_them(self):
        self.assertEqual([window.frame for window in self.overlays], [LEFT, RIGHT])
        self.assertEqual(self.are_unmanaged, [True, True])

    def test_overlays_are_above_the_full_screen_program_and_the_panel(self):
        overlays = [self.stacking.index(window.id) for window in self.overlays]
        below = [self.stacking.index(self.windows.top_of(hex(window)))
                 for window in (self.terminal_in_front.window, int(self.panel.window.id, 16))]
        self.assertLess(max(overlays), min(below))

    def test_nothing_of_the_full_screen_program_and_the_panel_is_seen_during_the_break(self):
        for color in (FULL_SCREEN_COLOR, Panel.COLOR):
            self.assertEqual(self.picture.share_of(color), 0)
        self.assertGreater(self.picture_after.share_of(FULL_SCREEN_COLOR), 0.5)

    def test_each_overlay_tells_its_texts_and_its_buttons(self):
        self.assertIn("Look 20 feet away", self.break_told)
        for name in ("Blink slowly. Roll your shoulders. Nothing is being counted as screen time.",
                     "Skip This Break", "Snooze 1 minute", "Snooze 3 minutes", "Snooze 5 minutes",
                     "covering 2 displays · esc does nothing"):
            self.assertEqual(self.break_told.count(name), 2, self.break_told)

    def test_each_second_of_the_countdown_is_told_once_for_about_a_second(self):
        self.assertEqual([label for label, _ in self.labels], ["0:05", "0:04", "0:03", "0:02", "0:01"])
        times = [seen for _, seen in self.labels] + [self.end_of_labels]
        lengths = [after - before for before, after in zip(times, times[1:])]
        for length in lengths:
            self.assertTrue(0.4 < length < 1.6, lengths)

    def test_log_and_standard_output_tell_the_transitions(self):
        for line in ("work 10 s → break at ", "pre-break warning (0:03 to break)", "break 5 s → ends ",
                     "break complete (today: 1)"):
            self.assertIn(f"kestrelfen: BreakEngine: {line}", self.program.log)
            self.assertRegex(self.program.output, r"(?m)^\[Kestrelfen\] \d\d:\d\d:\d\d " + re.escape(line))


if __name__ == "__main__":
    unittest.main()
