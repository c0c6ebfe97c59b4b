"""Breaks on a Wayland desktop that has no X server: what covers the displays are layers of the compositor."""

import os
import shutil
import signal
import unittest
from pathlib import Path

from scaffold import until
from scaffold.program import QUICK, Program
from scaffold.sway import HEIGHT, LEFT, RIGHT, WIDTH, Sway

LONG = QUICK | {"breakDurationSeconds": 60.0, "appearance": "light"}
WARNED = QUICK | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 60.0, "appearance": "light"}

#: Of the card without its shadow, from the right and the top of the display.
CARD_RIGHT, CARD_TOP, CARD_WIDTH = 28, 20, 400
LINE_HEIGHT = 10
#: Above its writing.
GRIP_Y = CARD_TOP + 8


class Terminal:
    """A window over the whole of a display that writes down each character that it is sent."""

    def __init__(self, sway):
        self._sway = sway
        self._record = Path(sway.folder) / "typed"
        self._record.unlink(missing_ok=True)
        self._process = sway.processes.start(
            ["foot", "--config=/dev/null", "--log-level=none", "--fullscreen", "--app-id=terminal", "sh", "-c",
             'stty raw -echo; exec cat > "$0"', str(self._record)], env=sway.environment)
        until(self._record.exists, "the terminal's recorder")
        until(self.has_focus, "the terminal's focus")

    @property
    def typed(self):
        return self._record.read_text(encoding="utf-8")

    def has_focus(self):
        return self._is_focused(self._sway.ask("-t", "get_tree"))

    def _is_focused(self, node):
        children = node["nodes"] + node["floating_nodes"]
        return node["focused"] and node.get("app_id") == "terminal" or any(map(self._is_focused, children))

    def receives(self, text):
        until(lambda: self.typed.endswith(text), f"the terminal is sent {text!r}, it has {self.typed!r}")

    def end(self):
        self._sway.processes.end(self._process)


class WaylandTest(unittest.TestCase):
    """One compositor for the whole class; programs for each test."""

    @classmethod
    def setUpClass(cls):
        for tool in ("sway", "swaymsg", "grim", "foot", "setpriv"):
            if not shutil.which(tool):
                raise unittest.SkipTest(f"{tool} is not installed")
        cls.sway = Sway()
        cls.addClassCleanup(cls.sway.end)
        cls.hands = cls.sway.hands

    def start(self, preferences=LONG):
        program = Program(self.sway, preferences)
        self.addCleanup(program.end)
        return program

    def is_covered(self, output):
        """The overlay reaches into every corner, and nothing else here is bright."""
        picture = self.sway.shoot(output)
        right, bottom = picture.width - 1, picture.height - 1
        corners = ((0, 0), (right, 0), (0, bottom), (right, bottom))
        return all(min(picture.pixel(*corner)) > 150 for corner in corners)

    def wait_for_overlays(self, *outputs):
        for output in outputs or (LEFT, RIGHT):
            until(lambda each=output: self.is_covered(each), f"{output} is covered", 20.0)

    def wait_for_no_overlay(self, *outputs, seconds=10.0):
        for output in outputs or (LEFT, RIGHT):
            until(lambda each=output: not self.is_covered(each), f"{output} is free", seconds)


class WaylandDisplayTests(WaylandTest):
    def test_display_that_goes_takes_its_overlay_and_one_that_comes_gets_one(self):
        unplug = self.sway.nest()
        program = self.start(LONG | {"breakDurationSeconds": 20.0})
        self.wait_for_overlays("WL-1", "WL-2")
        unplug("WL-2")
        until(lambda: self.sway.outputs() == ["WL-1"], "one display")
        self.wait_for_overlays("WL-1")
        self.sway.command("create_output")
        self.wait_for_overlays("WL-1", "WL-3")
        program.logs("break complete (today: 1)", seconds=30.0)
        self.wait_for_no_overlay("WL-1", "WL-3")


class TerminalTest(WaylandTest):
    """Somebody works in a window over the whole of the left display."""

    def setUp(self):
        self.hands.move_to((60, 60))
        self.terminal = Terminal(self.sway)
        self.addCleanup(self.terminal.end)


class WaylandOverlayTests(TerminalTest):
    def test_overlays_cover_both_displays_and_go_with_the_break(self):
        self.start(LONG | {"breakDurationSeconds": 4.0, "workIntervalSeconds": 4.0})
        self.wait_for_overlays()
        self.wait_for_no_overlay()

    def test_button_is_pressed(self):
        program = self.start(LONG)
        self.wait_for_overlays()
        self.wait_until_settled()
        self.hands.click(self.place_of_first_button())
        program.logs("snoozed 1 min (today: 1, this break: 1)")
        self.wait_for_no_overlay()

    def place_of_first_button(self):
        """The buttons' row is the lowest thing on the overlay; the first is the leftmost with a hairline."""
        picture = self.sway.shoot(LEFT)
        return self.find_ink(picture)

    @staticmethod
    def find_ink(picture):
        """The first dark pixels from the left in the lowest line of writing."""
        for y in range(picture.height - 1, picture.height // 2, -1):
            if any(max(picture.pixel(x, y)) < 90 for x in range(picture.width)):
                line = range(y - LINE_HEIGHT, y)
                left = min(x for each in line for x in range(picture.width) if max(picture.pixel(x, each)) < 90)
                return left + 2, y - LINE_HEIGHT // 2
        raise AssertionError("nothing is written on the overlay")

    def test_two_escapes_skip_and_reach_nobody_else(self):
        program = self.start(LONG | {"doubleEscapeAction": "skip"})
        self.hands.press("Escape", "a")
        self.terminal.receives("\x1ba")
        self.wait_for_overlays()
        self.wait_until_settled()
        self.hands.press("Escape", "Escape")
        program.logs("break skipped (today: 1 skipped)")
        self.wait_for_no_overlay()
        self.hands.press("s")
        self.terminal.receives("s")
        self.assertEqual(self.terminal.typed, "\x1bas")

    def wait_until_settled(self):
        """The first half second of an overlay counts for nothing; one picture takes less."""
        passed = []
        until(lambda: passed.append(self.sway.shoot(LEFT).brightness()) or len(set(passed)) > 2, "two more seconds")

    def test_key_that_was_held_before_is_no_press(self):
        program = self.start(LONG | {"doubleEscapeAction": "skip", "breakDurationSeconds": 5.0})
        self.hands.hold("Escape")
        self.addCleanup(self.hands.let_go, "Escape")
        self.wait_for_overlays()
        self.wait_until_settled()
        self.hands.let_go("Escape")
        self.hands.press("Escape")
        program.logs("break complete (today: 1)")

    def test_keyboard_stays_with_the_program_below_where_escape_does_nothing(self):
        self.start(LONG | {"doubleEscapeAction": "nothing"})
        self.wait_for_overlays()
        self.hands.press("a", "s", "Escape", "d")
        self.terminal.receives("as\x1bd")

    def test_killed_program_leaves_the_desktop_free_at_once(self):
        program = self.start(LONG | {"doubleEscapeAction": "skip"})
        self.wait_for_overlays()
        os.kill(program.pid, signal.SIGKILL)
        self.wait_for_no_overlay(seconds=1.0)
        until(self.terminal.has_focus, "the terminal's focus", 1.0)
        self.hands.press("f")
        self.terminal.receives("f")

    def test_overlay_has_every_pixel_of_a_fine_display(self):
        for scale in ("2", "1.5"):
            with self.subTest(scale=scale):
                self.sway.command(f"output {LEFT} scale {scale}")
                self.addCleanup(self.sway.command, f"output {LEFT} scale 1")
                program = self.start()
                self.wait_for_overlays()
                picture = self.sway.shoot(LEFT)
                self.assertEqual(picture.width, WIDTH)
                self.assertAlmostEqual(picture.height, HEIGHT, delta=1)
                program.end()
                self.wait_for_no_overlay()
                self.sway.command(f"output {LEFT} scale 1")


class WaylandCardTests(TerminalTest):
    def card(self):
        """Where its left and its right edge are on the left display, or nothing."""
        picture = self.sway.shoot(LEFT)
        bright = [x for x in range(picture.width) if min(picture.pixel(x, GRIP_Y)) > 200]
        return (bright[0], bright[-1]) if len(bright) > CARD_WIDTH // 2 else None

    def wait_for_card(self):
        return until(self.card, "the card", 20.0)

    def test_card_lies_above_a_full_screen_window_and_takes_no_key(self):
        self.start(WARNED)
        left, right = self.wait_for_card()
        # The line lies where its corners are still round.
        self.assertAlmostEqual(right, WIDTH - CARD_RIGHT - 1, delta=5)
        self.assertAlmostEqual(right - left, CARD_WIDTH, delta=10)
        self.assertTrue(self.terminal.has_focus())
        self.hands.press("a", "s")
        self.terminal.receives("as")
        self.hands.click((left + 200, GRIP_Y))
        self.hands.press("d")
        self.terminal.receives("d")

    def test_card_is_dragged_by_its_body(self):
        self.start(WARNED)
        left, right = self.wait_for_card()
        grip = (left + 250, GRIP_Y)
        self.hands.drag(grip, (grip[0] - 300, grip[1]))
        places = []
        until(lambda: places.append(self.card()) or places[-1] == (left - 300, right - 300),
              "the card 300 further left", 5.0)

    def test_card_goes_when_it_is_dismissed(self):
        program = self.start(WARNED)
        left, _ = self.wait_for_card()
        # Of the card 76 + 4 + 16 from its top come its buttons, 33 high.
        self.hands.click((left + 18 + 30, CARD_TOP + 96 + 16))
        until(lambda: not self.card(), "no card")
        self.assertEqual(program.count("snoozed"), 0)


if __name__ == "__main__":
    unittest.main()
