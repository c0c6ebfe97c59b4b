"""Somebody who does what nobody would foresee, by the numbers of a seed."""

import json
import os
import random
import time

import dbus

from scaffold.keyboard import CONTROLS, FOCUSED
from scaffold.services import Services

QUIT, DELETE = "Quit Kestrelfen", "Delete Everything"
#: They would end what is watched, or the history that is reconciled.
NEVER = (QUIT, DELETE)
FOOTER = ("Screen Time", "App Usage Detail", "Tasks", "Break History", "Settings")
KEYS = ("Escape", "Tab", "shift+Tab", "Up", "Down", "Left", "Right", "Home", "End", "Next", "a", "7", "BackSpace",
        "Super_L", "ctrl+a", "Menu")
PRESSING = ("Return", "space")
LONG_BREAK_SECONDS = 9.0
EMPTY_POINT = (300, 300)
#: What the edits choose from; the first of each is where the run begins.
CHOICES = {
    "enforcementLevel": ("casual", "balanced", "hardcore"), "doubleEscapeAction": ("skip", "snooze", "nothing"),
    "appearance": ("light", "dark", "system"), "warningHUDEnabled": (True, False),
    "showSkipButton": (True, False), "allowEndBreakEarly": (True, False), "soundOnBreakStart": (False, True),
    "longBreakEvery": (4, 2, 3), "historyRetentionDays": (365, 30, 0), "snoozesPerBreak": (-1, 1),
    "snoozesPerDay": (-1,), "advanceSkipsPerDay": (-1,), "resumeAutomatically": (True,), "idleMode": ("off",),
    "lockOnBreakStart": (False,), "dailySummaryEnabled": (False,), "smartPauseVideo": (True, False)}
FIRST = {"debugFastCycle": True} | {key: values[0] for key, values in CHOICES.items()}


class Person:
    """Each thing done is written down, so that the way to a fault can be told."""

    def __init__(self, desktop, tree, program, services: Services, seed):
        self._desktop, self._tree, self._program, self._services = desktop, tree, program, services
        self._hands, self._windows = desktop.hands, desktop.windows
        self._chance = random.Random(seed)
        self._start = time.monotonic()
        self.journal = []
        self._acts = [
            (6, self.wander), (6, self.press_keys), (9, self.click_anywhere), (12, self.use_a_control),
            (6, self.open_popover), (5, self.open_window), (6, self.begin_break), (2, self.drag),
            (2, self.scroll), (2, self.close_a_window), (4, self.change_displays), (4, self.restart_a_service),
            (4, self.edit_preferences), (1, self.play_sound), (1, self.change_color_scheme),
            (5, self.sit_out)]

    def act(self):
        (act,) = self._chance.choices([act for _, act in self._acts], [weight for weight, _ in self._acts])
        act()
        time.sleep(self._chance.choice((0.0, 0.05, 0.2, 0.6)))

    def note(self, text):
        self.journal.append(f"{time.monotonic() - self._start:8.1f} {text}")

    def _point_in(self, window):
        return (window.x + self._chance.randrange(max(1, window.width)),
                window.y + self._chance.randrange(max(1, window.height)))

    def _own_windows(self):
        """Those in which nothing must be kept from a click."""
        windows = self._windows
        return windows.overlays() + windows.main_windows() + [window for window in [windows.card()] if window]

    def wander(self):
        point = self._chance.randrange(3840), self._chance.randrange(1080)
        self.note(f"moves to {point}")
        self._hands.move_to(point)

    def press_keys(self):
        keys = self._chance.choices(KEYS, k=self._chance.randint(1, 4))
        if self._chance.random() < 0.2:
            keys = ["Escape", "Escape"]
        self.note(f"presses {keys}")
        self._hands.press(*keys)
        if self._chance.random() < 0.3:
            self._press_what_has_the_keyboard()

    def _press_what_has_the_keyboard(self):
        names = self._tree.told(self._program.pid)
        if DELETE in names or not names or self._is_forbidden_in_focus():
            return
        key = self._chance.choice(PRESSING)
        self.note(f"presses {key}")
        self._hands.press(key)

    def _is_forbidden_in_focus(self):
        try:
            return any(node.name in NEVER for node in self._tree.nodes(self._program.pid) if node.state & FOCUSED)
        except dbus.DBusException:
            return True

    def click_anywhere(self):
        windows = self._own_windows()
        if not windows:
            return
        window, button = self._chance.choice(windows), self._chance.choice((1, 1, 1, 1, 2, 3))
        point = self._point_in(window)
        self.note(f"clicks at {point} in {window.name!r} with {button}")
        self._hands.click(point, button)

    def use_a_control(self):
        """One that is shown, by its name."""
        try:
            nodes = [node for node in self._tree.nodes(self._program.pid) if node.role in CONTROLS]
            nodes = [node for node in nodes if node.name not in NEVER]
            if not nodes:
                return
            node = self._chance.choice(nodes)
            told, point = node.told, node.centre
        except dbus.DBusException:
            return
        if point[0] >= 0 and point[1] >= 0:
            self.note(f"clicks {told}")
            self._hands.click(point)

    def open_popover(self):
        ways = (self._start_again, self._click_item, self._click_icon)
        self._chance.choices(ways, (2, 2, 1))[0]()

    def _start_again(self):
        self.note("starts it again")
        answer = self._program.second_start()
        if answer != (0, "Kestrelfen runs already; it was asked to show itself.\n"):
            raise AssertionError(f"a second start is answered with {answer}")

    def _click_item(self):
        method = self._chance.choice(("Activate", "ContextMenu", "SecondaryActivate"))
        self.note(f"{method} of the tray's item")
        self._services.activate_item(method)

    def _click_icon(self):
        icon = self._services.panel.icon()
        if icon:
            self.note("clicks the icon in the panel")
            self._hands.click(icon.centre, self._chance.choice((1, 3)))

    def press_in_popover(self, name):
        """Whether there was such a button: a break may come first, or somebody else's click."""
        if not self._windows.popover():
            self._start_again()
        deadline = time.monotonic() + 3.0
        while time.monotonic() < deadline:
            point = self._windows.popover() and self._tree.button(self._program.pid, name)
            if point:
                self.note(f"clicks {name!r} in the popover")
                self._hands.click(point)
                return True
        return False

    def open_window(self):
        self.press_in_popover(self._chance.choice(FOOTER))

    def begin_break(self):
        self.press_in_popover("Break Now")

    def sit_out(self):
        """What is on the display: a break to its end."""
        self.note("sits and looks")
        deadline = time.monotonic() + LONG_BREAK_SECONDS
        while time.monotonic() < deadline and self._windows.overlays():
            time.sleep(0.2)

    def drag(self):
        windows = self._own_windows()
        if windows:
            window = self._chance.choice(windows)
            self.note(f"drags in {window.name!r}")
            self._hands.drag(self._point_in(window), self._point_in(window))

    def scroll(self):
        windows = self._windows.main_windows()
        if windows:
            self.note("scrolls")
            for _ in range(5):
                self._hands.click(windows[0].centre, self._chance.choice((4, 5)))

    def close_a_window(self):
        window = self._chance.choice([*self._windows.main_windows(), self._windows.settings(), None])
        if window:
            self.close_window(window)

    def close_window(self, window):
        """As a person does, so that it takes a window manager."""
        self.note(f"closes {window.name!r}")
        self._windows.run("xdotool", "windowactivate", window.id)
        time.sleep(0.2)
        if self._windows.active() == int(window.id, 16):
            self._hands.press("alt+F4")

    def change_displays(self):
        for _ in range(self._chance.choice((1, 1, 2, 5))):
            unplugs = self._chance.random() < 0.5
            self.note("unplugs the right display" if unplugs else "plugs the right display in")
            (self._desktop.unplug_right if unplugs else self._desktop.plug_right)()

    def restart_a_service(self):
        name = self._chance.choice(list(self._services.restarts))
        self.note(f"restarts {name}")
        self._services.restart(name, lambda: time.sleep(self._chance.choice((0.0, 0.3, 1.0))))

    def edit_preferences(self):
        key = self._chance.choice(list(CHOICES))
        self.edit({key: self._chance.choice(CHOICES[key])})

    def edit(self, changes):
        """By hand, once nothing was written between reading and writing."""
        file = self._program.preference_file
        new = file.with_name("edited.json")
        self.note(f"edits {changes}")
        while True:
            before = os.stat(file)
            preferences = self._program.preferences
            new.write_text(json.dumps(preferences | changes, indent=2), encoding="utf-8")
            if os.stat(file) == before:
                os.replace(new, file)
                return

    def play_sound(self):
        application = self._chance.choice(("org.example.Film", "org.example.Music"))
        self.note(f"plays {application}")
        self._services.play_for(application, lambda: time.sleep(self._chance.choice((0.2, 1.0, 6.0))))

    def change_color_scheme(self):
        self.note("changes the color scheme")
        self._services.color_scheme(self._chance.choice((0, 1, 2)))
