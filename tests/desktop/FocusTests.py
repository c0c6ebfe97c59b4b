"""Whoever types goes on typing: nothing that comes by itself takes the keyboard."""

import threading
import unittest

from scaffold import DesktopTest, until
from scaffold.program import QUICK

TEXT = "the quick brown fox jumps over the lazy dog 0123456789 " * 4


class FocusTests(DesktopTest):
    def setUp(self):
        super().setUp()
        self.worked_in = self.terminal()

    def test_text_typed_across_a_cycle_arrives_whole(self):
        program = self.start(QUICK | {"preBreakWarningLeadSeconds": 1.5, "breakDurationSeconds": 3.0})
        typing = threading.Thread(target=self.hands.type, args=(TEXT, 8.0))
        typing.start()
        self.addCleanup(typing.join)
        seen = set()
        lost = []
        while typing.is_alive():
            seen.add("card" if self.windows.card() else "overlays" if self.windows.overlays() else "nothing")
            if not self.worked_in.has_focus():
                lost.append(self.windows.focused())
        self.worked_in.receives(TEXT)
        self.assertEqual(self.worked_in.typed, TEXT)
        self.assertEqual(lost, [])
        self.assertEqual(seen, {"card", "overlays", "nothing"})
        self.assertGreaterEqual(program.count("break complete"), 1)

    def test_click_on_an_overlay_leaves_the_keyboard_where_it_was(self):
        program = self.start()
        self.wait_for_overlays()
        self.hands.click((300, 1000))
        self.assertTrue(self.worked_in.has_focus())
        self.click_button(program, "Skip This Break")
        self.wait_for_no_overlay()
        self.assert_typing_goes_on()

    def test_click_on_the_card_leaves_the_keyboard_where_it_was(self):
        program = self.start(QUICK | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 60.0})
        card = self.wait_for_card()
        self.hands.click((card.x + 200, card.y + 20))
        self.assertTrue(self.worked_in.has_focus())
        self.click_button(program, "Dismiss")
        self.wait_for_no_card()
        self.assert_typing_goes_on()

    def assert_typing_goes_on(self):
        self.assertTrue(self.worked_in.has_focus())
        self.hands.type("on")
        self.worked_in.receives("on")
        until(self.worked_in.has_focus, "the terminal has the focus")


if __name__ == "__main__":
    unittest.main()
