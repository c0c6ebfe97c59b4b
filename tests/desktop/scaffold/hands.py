"""The mouse and the keyboard."""

import subprocess


class Hands:
    def __init__(self, environment):
        self._environment = environment

    def _do(self, *arguments):
        subprocess.run(["xdotool", *map(str, arguments)], env=self._environment, check=True, timeout=60)

    def press(self, *keys):
        self._do("key", *keys)

    def type(self, text, seconds=0.0):
        """Over that time, if one is given, at an even pace."""
        # The tool waits for half of the delay.
        self._do("type", "--delay", round(2000 * seconds / len(text)), text)

    def move_to(self, point):
        self._do("mousemove", *point)

    def nudge(self):
        self._do("mousemove_relative", 7, 5)

    def click(self, point, button=1):
        self._do("mousemove", *point, "click", button)

    def drag(self, start, end, steps=10):
        path = []
        for step in range(1, steps + 1):
            path += ["mousemove", *(a + (b - a) * step // steps for a, b in zip(start, end))]
        self._do("mousemove", *start, "mousedown", 1, *path, "mouseup", 1)

    def hold(self):
        """The button, where the pointer is."""
        self._do("mousedown", 1)

    def let_go(self):
        self._do("mouseup", 1)

    def hold_key(self, key):
        self._do("keydown", key)

    def let_go_key(self, key):
        self._do("keyup", key)

    def activate(self, window):
        self._do("windowactivate", "--sync", window)
