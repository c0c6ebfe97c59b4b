"""The keyboard's way through a window, as the accessibility tree tells of it."""

from typing import NamedTuple

import dbus

from scaffold.waiting import until, until_steady

CHECKED, FOCUSED, SELECTED = 1 << 4, 1 << 12, 1 << 23
STEPPER = "spin box"
SWITCH = "check box"
CHOICE = "radio button"
BUTTON = "push button"
TAB = "page tab"
FIELD = "text"
CONTROLS = (STEPPER, SWITCH, CHOICE, BUTTON, TAB, FIELD)
DIALOG = "dialog"
LABEL = "label"
LINE_TOLERANCE = 4
PATIENCE = 5.0


class Control(NamedTuple):
    """One that a person can work, as it was when it was looked at."""

    path: str
    name: str
    role: str
    frame: tuple
    state: int

    @property
    def told(self):
        return self.name, self.role

    @property
    def middle(self):
        return self.frame[1] + self.frame[3] / 2

    @property
    def is_focused(self):
        return bool(self.state & FOCUSED)

    @property
    def is_on(self):
        return bool(self.state & CHECKED)

    @property
    def is_stop(self):
        """Whether Tab stops there: of what excludes each other, only what is chosen."""
        if self.role == CHOICE:
            return self.is_on
        return bool(self.state & SELECTED) if self.role == TAB else True

    def is_within(self, frame):
        x, y, width, height = self.frame
        left, top, wide, high = frame
        return x >= left and y >= top and x + width <= left + wide and y + height <= top + high


def walk_controls(node):
    """The nodes of controls with their roles. What a control or a text holds is a part of it."""
    role = node.role
    if role in CONTROLS:
        yield node, role
    elif role != LABEL:
        for child in node.children():
            yield from walk_controls(child)


def look(node, role):
    return Control(node.path, node.name, role, node.frame, node.state)


def in_reading_order(controls):
    """From the top to the bottom and, on one line, from the left to the right."""
    lines = []
    for control in sorted(controls, key=lambda each: each.middle):
        if lines and control.middle - lines[-1][0].middle <= LINE_TOLERANCE:
            lines[-1].append(control)
        else:
            lines.append([control])
    return [control for line in lines for control in sorted(line, key=lambda each: each.frame[0])]


class Keyboard:
    """Looks at one window of a program while somebody types."""

    def __init__(self, tree, pid, window_name, hands):
        self._tree = tree
        self._pid = pid
        self._window_name = window_name
        self._hands = hands
        self._root = None

    def controls(self):
        """All in the window, or in the sheet over it, seen or not; nothing while the tree changes under the eyes."""
        try:
            found = [look(node, role) for node, role in self._walk()]
        except dbus.DBusException:
            return []
        return [control for control in found if control.frame[2] > 0]

    def read(self):
        """The controls in reading order, once each has its place."""
        return in_reading_order(until_steady(self.controls, f"controls in {self._window_name!r}"))

    def focused(self):
        try:
            return next((look(node, role) for node, role in self._walk() if node.state & FOCUSED), None)
        except dbus.DBusException:
            return None

    def _walk(self):
        window = self._window()
        if not window:
            return iter(())
        parts = window.children()
        sheet = next((part for part in parts if part.role == DIALOG and part.is_showing), None)
        return walk_controls(sheet or window)

    def _window(self):
        if not self._root:
            self._root = self._tree.program(self._pid)
        children = self._root.children() if self._root else []
        return next((node for node in children if node.name == self._window_name), None)

    def control(self, name, role):
        return next((control for control in self.controls() if control.told == (name, role)), None)

    def wait_for(self, name, role):
        """Until the keyboard is there."""
        def found():
            control = self.focused()
            return control if control and control.told == (name, role) else None
        return until(found, f"the keyboard at the {role} {name!r}, it is at {self.focused()}", PATIENCE)

    def press(self, key, start=None):
        """Where the keyboard is after a key that moves it from `start`, by default from where it is."""
        before = start or self.focused()
        self._hands.press(key)

        def moved():
            now = self.focused()
            return now if now and (not before or now.path != before.path) else None
        return until(moved, f"{key} moves the keyboard on from {before}", PATIENCE)

    def go_to(self, name, role, key="Tab"):
        """By that key alone, at most once around."""
        control = self.focused()
        for _ in range(len(self.controls()) + 1):
            if control and control.told == (name, role):
                return control
            control = self.press(key, control)
        raise AssertionError(f"{key} never came to the {role} {name!r}")
