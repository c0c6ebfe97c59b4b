"""The base of the tests of what screen readers are told."""

from scaffold.audit import findings, focused, headings, stops, surface
from scaffold.main_window import LONG, MainWindowTest
from scaffold.waiting import until


class AuditTest(MainWindowTest):
    def begin(self, preferences=LONG, **options):
        self.program = self.start(preferences, **options)

    def open_popover(self):
        self.program.logs("work ")
        self.program.second_start()
        popover = self.wait_for_popover()
        until(lambda: self.windows.active() == int(popover.id, 16), "the popover has the keyboard")

    def look(self, window):
        return surface(self.tree, self.program.pid, window)

    def settled(self, window):
        """What is told of it, twice the same."""
        def twice():
            first = self.look(window)
            return first if first and self.keys(first) == self.keys(self.look(window)) else None
        return until(twice, f"{window!r} is at rest")

    @staticmethod
    def keys(told):
        return [(each.node.path, each.role, each.frame, each.is_stop) for each in told]

    def audit(self, window, has_headings, keyboard=True):
        """That nothing is wrong with what shows of a window now; what is told of it."""
        told = self.settled(window)
        self.assert_sound(told)
        self.assertEqual(headings(told), has_headings)
        if keyboard:
            self.assert_tab_stops_everywhere(window)
        return told

    def assert_sound(self, told):
        self.assertEqual("\n".join(findings(told)), "")

    def assert_tab_stops_everywhere(self, window):
        """In the order of the tree, and nowhere else; back the other way."""
        expected = stops(self.look(window))
        self.assertTrue(expected, "nothing for the keyboard")
        self.go_to(expected[0], "Tab", expected)
        for stop in [*expected[1:], expected[0]]:
            self.press("Tab", stop, expected)
        for stop in expected[::-1]:
            self.press("shift+Tab", stop, expected)

    def go_to(self, stop, key, all_stops):
        for _ in range(len(all_stops) + 1):
            now = focused(all_stops)
            if now and now.node.path == stop.node.path:
                return
            self.hands.press(key)
            until(lambda: focused(all_stops) not in (None, now), f"{key} leads on from {now}", 3.0)
        self.fail(f"{key} never leads to {stop}")

    def press(self, key, stop, all_stops):
        self.hands.press(key)
        until(lambda: (focused(all_stops) or stop).node.path == stop.node.path and focused(all_stops),
              f"{key} leads to {stop}; it led to {focused(all_stops)}", 3.0)

    def find(self, window, name, role):
        return until(lambda: next((each for each in self.look(window) if (each.name, each.role) == (name, role)), None),
                     f"the {role} {name!r}")
