"""The windows of a display, as its server tells of them."""

import re
import subprocess
from typing import NamedTuple

LINE = re.compile(r"^(?P<indent> +)(?P<id>0x[0-9a-f]+) (?:\"(?P<name>.*?)\"|\(has no name\)): "
                  r"\((?P<classes>.*?)\) +(?P<width>\d+)x(?P<height>\d+)\+-?\d+\+-?\d+ +\+(?P<x>-?\d+)\+(?P<y>-?\d+)$")
TOP_INDENT = 5

BREAK = "Kestrelfen break"
WARNING = "Kestrelfen warning"
POPOVER = "Kestrelfen popover"
MAIN = "Kestrelfen"
SETTINGS = "Settings"


class Window(NamedTuple):
    id: str
    name: str
    classes: str
    x: int
    y: int
    width: int
    height: int
    is_top: bool

    @property
    def frame(self):
        return self.x, self.y, self.width, self.height

    @property
    def centre(self):
        return self.x + self.width // 2, self.y + self.height // 2


class Windows:
    def __init__(self, environment):
        self._environment = environment

    def run(self, *command):
        """The output of a command, or nothing where it fails: a window may go while it is looked at."""
        answer = subprocess.run(command, env=self._environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                text=True, timeout=20, check=False)
        return answer.stdout if answer.returncode == 0 else ""

    def all(self):
        """From the top to the bottom, each before what it holds."""
        output = ""
        while not output:
            output = self.run("xwininfo", "-root", "-tree")
        return [self._window(match) for match in map(LINE.match, output.splitlines()) if match]

    @staticmethod
    def _window(match):
        numbers = (int(match[key]) for key in ("x", "y", "width", "height"))
        return Window(match["id"], match["name"] or "", match["classes"], *numbers,
                      len(match["indent"]) == TOP_INDENT)

    def named(self, name):
        """Those of that title that can be seen, from the top to the bottom."""
        return [window for window in self.all() if window.name == name and self.is_viewable(window)]

    def is_viewable(self, window):
        return "Map State: IsViewable" in self.run("xwininfo", "-id", window.id)

    def is_unmanaged(self, window):
        return window.is_top and "Override Redirect State: yes" in self.run("xwininfo", "-id", window.id)

    def overlays(self):
        return sorted(self.named(BREAK), key=lambda window: window.frame)

    def card(self):
        return next(iter(self.named(WARNING)), None)

    def popover(self):
        return next(iter(self.named(POPOVER)), None)

    def main_windows(self):
        """The tray's item bears the same name, but is far smaller."""
        return [window for window in self.named(MAIN) if window.width > 200]

    def main_window(self):
        return next(iter(self.main_windows()), None)

    def settings(self):
        return next(iter(self.named(SETTINGS)), None)

    def stacking(self):
        """The numbers of the direct children of the root, from the top to the bottom."""
        return [window.id for window in self.all() if window.is_top]

    def top_of(self, window_id):
        """The direct child of the root that holds that window."""
        top = None
        for window in self.all():
            top = window.id if window.is_top else top
            if int(window.id, 16) == int(window_id, 16):
                return top
        return None

    def focused(self):
        """The number of the window that has the keyboard."""
        return int(self.run("xdotool", "getwindowfocus") or 0)

    def active(self):
        match = re.search(r"0x[0-9a-f]+", self.run("xprop", "-root", "_NET_ACTIVE_WINDOW"))
        return int(match[0], 16) if match else 0

    def find(self, name):
        """The number of the window that a program gave that name."""
        numbers = self.run("xdotool", "search", "--onlyvisible", "--name", f"^{name}$").split()
        return int(numbers[0]) if numbers else 0
