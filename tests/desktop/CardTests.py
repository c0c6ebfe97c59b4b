"""The warning card under the mouse."""

import unittest

from scaffold import DesktopTest, until
from scaffold.accessibility import LABEL
from scaffold.desktop import LEFT, RIGHT
from scaffold.program import QUICK

#: The card comes with the first tick and stays.
WARNED = QUICK | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 60.0}


class CardTests(DesktopTest):
    def start_warned(self, **preferences):
        program = self.start(WARNED | preferences)
        return program, self.wait_for_card()

    def assert_in_the_corner_of(self, card, display):
        self.assertEqual((card.x + card.width, card.y), (display[0] + display[2] - 10, display[1] + 10))

    def test_card_comes_to_the_display_with_the_pointer(self):
        for pointer, display in (((300, 300), LEFT), ((3000, 300), RIGHT)):
            with self.subTest(display):
                self.hands.move_to(pointer)
                program, card = self.start_warned()
                self.assert_in_the_corner_of(card, display)
                self.assertTrue(self.windows.is_unmanaged(card))
                program.end()
                self.wait_for_no_card()

    def test_dismiss_takes_the_card_away_and_keeps_the_break(self):
        program = self.start(WARNED | {"workIntervalSeconds": 8.0, "preBreakWarningLeadSeconds": 8.0})
        self.wait_for_card()
        self.click_button(program, "Dismiss")
        self.wait_for_no_card()
        self.wait_for_overlays()
        self.assertEqual(program.count("pre-break warning"), 1)
        self.assertEqual(program.count("snoozed"), 0)

    def test_snooze_of_three_minutes(self):
        program, _ = self.start_warned()
        self.click_button(program, "Snooze 3 minutes")
        program.logs("snoozed 3 min (today: 1, this break: 1)")
        self.wait_for_no_card()

    def test_start_now_begins_the_break(self):
        program, _ = self.start_warned()
        self.click_button(program, "Start Now")
        self.wait_for_overlays()
        program.logs("break 20 s → ends ")
        self.wait_for_no_card()

    def test_card_is_dragged_by_its_body_and_stays_where_it_was_put(self):
        program, card = self.start_warned()
        grip = (card.x + 200, card.y + 20)
        target = (grip[0] - 700, grip[1] + 350)
        self.hands.drag(grip, target)
        put = (card.x - 700, card.y + 350, card.width, card.height)
        self.wait_until_it_is_at(put)
        self.wait_for_the_next_second(program)
        self.assertEqual(self.windows.card().frame, put)
        self.click_button(program, "Dismiss")
        self.wait_for_no_card()

    def wait_for_the_next_second(self, program):
        first = self.title(program)
        until(lambda: self.title(program) not in ("", first), "another second on the card")

    def title(self, program):
        return next((name for name in self.tree.told(program.pid, LABEL) if name.startswith("Break in")), "")

    def test_card_can_be_dragged_to_the_other_display(self):
        self.hands.move_to((300, 300))
        _, card = self.start_warned()
        grip = (card.x + 200, card.y + 20)
        self.hands.drag(grip, (grip[0] + 1200, grip[1] + 100))
        self.wait_until_it_is_at((card.x + 1200, card.y + 100, card.width, card.height))

    def wait_until_it_is_at(self, frame):
        until(lambda: self.windows.card().frame == frame, f"the card at {frame}", 5.0)

    def test_no_card_where_it_is_switched_off(self):
        program = self.start(QUICK | {"warningHUDEnabled": False, "preBreakWarningLeadSeconds": 2.0})
        program.logs("pre-break warning")
        cards = []
        until(lambda: cards.append(self.windows.card()) or self.windows.overlays(), "the overlays")
        self.assertEqual([card for card in cards if card], [])

    def test_card_lies_above_the_window_that_is_worked_in(self):
        terminal = self.terminal("terminal", "-fullscreen")
        _, card = self.start_warned()
        self.assertTrue(self.is_above(card, terminal))
        terminal.take_focus()
        until(lambda: self.is_above(card, terminal), "the card above the terminal")

    def is_above(self, card, terminal):
        stacking = self.windows.stacking()
        return stacking.index(card.id) < stacking.index(self.windows.top_of(hex(terminal.window)))


if __name__ == "__main__":
    unittest.main()
