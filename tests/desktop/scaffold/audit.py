"""What a window tells of itself, judged as somebody would who cannot see it."""

import re
from itertools import pairwise, takewhile
from typing import NamedTuple

import dbus

from scaffold.accessibility import ACCESSIBLE, LABEL, PROPERTIES, SHOWING, Node
from scaffold.keyboard import (BUTTON, CHECKED, CHOICE, DIALOG, FIELD, FOCUSED, LINE_TOLERANCE, SELECTED, STEPPER,
                               SWITCH, TAB)

ACTION = "org.a11y.atspi.Action"
ACTIVE, FOCUSABLE = 1 << 1, 1 << 11
MENU, ENTRY, POPUP = "button menu", "menu item", "popup menu"
HEADING, COLUMN_HEADER, ITEM, LIST, PANEL = "heading", "column header", "list item", "list", "panel"
ALERT, CHART = "alert message", "chart"
CONTROLS = (BUTTON, SWITCH, CHOICE, STEPPER, TAB, FIELD, MENU, ENTRY)
#: What groups others or is read. There are no pictures among them: all that a symbol says is said in words.
OTHERS = (ITEM, HEADING, COLUMN_HEADER, LIST, PANEL, LABEL, DIALOG, ALERT, CHART, POPUP, "frame", "progress bar",
          "page tab list", "separator")
NAMELESS = ("separator",)
DAY = re.compile(r"\w+ \d+ \w+ · ")


class Told(NamedTuple):
    """One object, as it was when it was looked at. `place` is the names and roles of what holds it, and `sight` the
    part of the display that those leave it."""

    node: Node
    name: str
    role: str
    description: str
    frame: tuple
    state: int
    place: tuple
    sight: tuple

    @property
    def middle(self):
        return self.frame[1] + self.frame[3] / 2

    @property
    def can_be_gone_to(self):
        return bool(self.state & FOCUSABLE)

    @property
    def is_on(self):
        return bool(self.state & (CHECKED | SELECTED))

    @property
    def is_part_of_stepper(self):
        return any(role == STEPPER for _, role in self.place)

    @property
    def is_stop(self):
        """Whether Tab stops there: of what excludes each other, only at what is chosen. Qt says of every text that it
        could be gone to, but of those only the days of a chart can."""
        if self.role == LABEL:
            return bool(DAY.match(self.name)) and self.place[-1][1] == CHART
        return self.can_be_gone_to and (self.is_on or self.role not in (CHOICE, TAB))

    @property
    def is_in_sight(self):
        left, top, right, bottom = self.sight
        x, y, width, height = self.frame
        return width > 0 and height > 0 and x < right and y < bottom and x + width > left and y + height > top

    def act(self):
        """As a screen reader presses it."""
        names = [str(name) for name, *_ in self.node._call(ACTION, "GetActions")]
        self.node._call(ACTION, "DoAction", "i", names.index("Press"))

    def __str__(self):
        within = " in ".join(f"{role} {name!r}" for name, role in reversed(self.place))
        return f"{self.role} {self.name!r} at {self.frame} in {within}"


def look_at(node, place, sight):
    description = str(node._call(PROPERTIES, "Get", "ss", ACCESSIBLE, "Description"))
    return Told(node, node.name, node.role, description, node.frame, node.state, place, sight)


def walk(node, place=(), sight=None):
    """All that shows, in the order of the tree. What does not show holds nothing that does."""
    x, y, width, height = node.frame
    told = look_at(node, place, sight or (x, y, x + width, y + height))
    if not told.state & SHOWING:
        return
    yield told
    if told.role == LIST:
        sight = (x, y, x + width, y + height)
    for child in node.children():
        yield from walk(child, (*place, (told.name, told.role)), sight or told.sight)


def window_of(tree, pid, name):
    """Of several of that name, the one with the keyboard."""
    root = tree.program(pid)
    found = [node for node in root.children() if node.name == name and node.is_showing]
    return max(found, key=lambda node: node.state & ACTIVE)


def surface(tree, pid, name):
    """What is told of a window or, while one is over it, of its topmost sheet or menu; nothing while it changes."""
    try:
        told = list(walk(window_of(tree, pid, name)))
    except (dbus.DBusException, AttributeError, ValueError):
        return []
    top = max((index for index, each in enumerate(told) if each.role in (DIALOG, POPUP)), default=0)
    depth = len(told[top].place)
    return told[top:top + 1] + list(takewhile(lambda each: len(each.place) > depth, told[top + 1:]))


def without_name(all_told):
    return [each for each in all_told if not each.name.strip() and each.role not in NAMELESS]


def of_unknown_role(all_told):
    return [each for each in all_told if each.role not in CONTROLS + OTHERS]


def twins(all_told):
    """What can be used and cannot be told apart by anything that is said of it or of what holds it."""
    seen = {}
    for each in all_told:
        if each.role in CONTROLS:
            seen.setdefault((each.name, each.role, each.description, each.place), []).append(each)
    return [each for same in seen.values() if len(same) > 1 for each in same]


def out_of_sight(all_told):
    """What says that it shows, but is of no size or outside of its window. Qt counts what a list has scrolled away as
    showing, so that does not count here."""
    return [each for each in all_told if not each.is_in_sight and (ITEM not in [role for _, role in each.place])
            and each.role != ITEM]


def silent_about_being_unavailable(all_told):
    """Controls that Tab leaves out without a word on why."""
    return [each for each in all_told if each.role in CONTROLS and not each.can_be_gone_to
            and not each.is_part_of_stepper and not each.description]


def wrongly_chosen(all_told):
    """Groups of which other than one is chosen."""
    groups = {}
    for each in all_told:
        if each.role in (CHOICE, TAB):
            groups.setdefault((each.place, each.role), []).append(each)
    return [each for same in groups.values() if sum(other.is_on for other in same) != 1 for each in same]


def follows(before, after):
    """Whether the eye goes on to it: along the line, further down, or to the next column."""
    down = after.middle - before.middle
    is_along = abs(down) <= LINE_TOLERANCE and after.frame[0] > before.frame[0]
    return is_along or down > LINE_TOLERANCE or after.frame[0] >= before.frame[0] + before.frame[2]


def out_of_order(all_told):
    """Stops that the tree has elsewhere than the eye. A list is not read before its rows."""
    seen = [each for each in stops(all_told) if each.is_in_sight and each.role != LIST]
    return [after for before, after in pairwise(seen) if not follows(before, after)]


RULES = {
    "without a name": without_name,
    "of an unknown role": of_unknown_role,
    "not to be told apart": twins,
    "told but out of sight": out_of_sight,
    "not available and silent about it": silent_about_being_unavailable,
    "in a group with other than one chosen": wrongly_chosen,
    "elsewhere than it is read": out_of_order,
}


def findings(all_told):
    """Everything that is wrong, in words."""
    return [f"{what}: {each}" for what, rule in RULES.items() for each in rule(all_told)]


def stops(all_told):
    """Where Tab goes, in the order of the tree."""
    return [each for each in all_told if each.is_stop]


def headings(all_told):
    return [each.name for each in all_told if each.role == HEADING]


def focused(all_told):
    """Which of those has the keyboard now."""
    return next((each for each in all_told if each.node.state & FOCUSED), None)
