#!/usr/bin/python3
"""Pictures of everything that the program shows, for judging by eye.

    KESTRELFEN=build/bin/kestrelfen tests/desktop/screenshots.py FOLDER [--compositor COMMAND]

Each is taken light and dark, at scale 1 and 2, without and, if there is one (xcompmgr or picom), with a compositor.
"""

import argparse
import itertools
import shutil
import sys
import tempfile
import time
from pathlib import Path

from scaffold import Desktop, three_months, until, until_steady
from scaffold.desktop import LEFT
from scaffold.program import BINARY, QUICK, Program

MARGIN = 24
LONG_WORK = {"workIntervalSeconds": 754.0}
SIZES = {"smallest": (900, 560), "usual": (1040, 660), "large": (1900, 1040)}


class Studio:
    """One desktop, and the choices that hold for the pictures taken now."""

    def __init__(self, folder):
        self.folder = folder
        self.desktop = Desktop()
        self.tree = self.desktop.start_accessibility()
        self.appearance = "light"
        self.scale = 1
        self.suffix = ""

    def start_compositor(self, command):
        """It has a window of its own name from when it begins to blend."""
        self.desktop.processes.start([command], env=self.desktop.environment)
        name = Path(command).name
        until(lambda: any(window.name == name for window in self.desktop.windows.all()), "the compositor")

    def start(self, home=None, zone="UTC", **preferences):
        self.desktop.hands.move_to((960, 900))
        return Program(self.desktop, QUICK | preferences | {"appearance": self.appearance},
                       environment={"QT_SCALE_FACTOR": str(self.scale), "TZ": zone}, home=home)

    def shoot(self, name, frame):
        """With a margin, as far as the left display goes."""
        left, top = max(frame[0] - MARGIN, 0), max(frame[1] - MARGIN, 0)
        right = min(frame[0] + frame[2] + MARGIN, LEFT[2])
        bottom = min(frame[1] + frame[3] + MARGIN, LEFT[3])
        path = self.folder / f"{name}-{self.appearance}-{self.scale}x{self.suffix}.png"
        self.desktop.run("import", "-silent", "-window", "root", "-crop",
                         f"{right - left}x{bottom - top}+{left}+{top}", "+repage", str(path))
        print(path)

    def resize(self, window, size):
        """To a size in the pixels of the program, from the display's corner on."""
        width, height = (str(self.scale * number) for number in size)
        self.desktop.run("xdotool", "windowmove", window.id, "0", "0", "windowsize", "--sync", window.id, width, height)

    def shoot_window(self, name, window):
        """Alone, when it has settled and the pointer is away from what reacts to it."""
        self.desktop.hands.move_to((2 * LEFT[2] - 1, LEFT[3] - 1))
        time.sleep(1.0)
        path = self.folder / f"{name}-{self.appearance}-{self.scale}x{self.suffix}.png"
        self.desktop.run("import", "-silent", "-window", window.id, str(path))
        print(path)

    def wait_until_told(self, program, name):
        until(lambda: name in self.tree.told(program.pid), name, 40.0)

    def open_popover(self, program):
        program.logs("StatusItem", seconds=5.0)
        program.second_start()
        return until(self.desktop.windows.popover, "the popover")

    def click(self, program, name, role="push button"):
        point = until_steady(lambda: self.tree.control(program.pid, name, role), name)
        # The tree counts in the pixels of the program, not in those of the display.
        self.desktop.hands.click(tuple(self.scale * number for number in point))

    def end(self):
        self.tree.close()
        self.desktop.end()


def overlay_short(studio):
    program = studio.start(doubleEscapeAction="skip", enforcementLevel="balanced")
    studio.wait_until_told(program, "0:16")
    studio.shoot("overlay-short-waiting", LEFT)
    studio.wait_until_told(program, "0:14")
    studio.shoot("overlay-short", LEFT)
    program.end()


def overlay_long(studio):
    program = studio.start(workIntervalSeconds=1.0, breakDurationSeconds=1.0, longBreakDurationSeconds=240.0,
                           preBreakWarningLeadSeconds=0.1)
    studio.wait_until_told(program, "3:58")
    studio.shoot("overlay-long", LEFT)
    program.end()


def warning_card(studio):
    program = studio.start(workIntervalSeconds=11.0, preBreakWarningLeadSeconds=10.0)
    studio.wait_until_told(program, "Break in 7 seconds")
    studio.shoot("warning-card", until(studio.desktop.windows.card, "the card").frame)
    program.end()


def popover_working_and_paused(studio):
    program = studio.start(**LONG_WORK)
    popover = studio.open_popover(program)
    studio.wait_until_told(program, "Pause")
    studio.shoot("popover-working", popover.frame)
    studio.click(program, "Pause")
    studio.wait_until_told(program, "Resume")
    studio.shoot("popover-paused", popover.frame)
    program.end()


def popover_on_break(studio):
    program = studio.start(breakDurationSeconds=90.0, **LONG_WORK)
    studio.open_popover(program)
    studio.click(program, "Break Now")
    studio.wait_until_told(program, "1:28")
    popover = studio.open_popover(program)
    for overlay in studio.desktop.windows.overlays():
        studio.desktop.run("xdotool", "windowunmap", overlay.id)
    studio.shoot("popover-on-break", popover.frame)
    program.end()


def main_window(studio):
    """Over three months of history, in the sizes from the smallest to all of a display."""
    home = Path(tempfile.mkdtemp(prefix="run-", dir=studio.desktop.folder))
    zone = three_months.make(home / "data" / "kestrelfen" / "Kestrelfen.sqlite",
                             Path(BINARY).with_name("kestrelfen-sim"))
    program = studio.start(home=home, zone=zone, **LONG_WORK)
    studio.open_popover(program)
    studio.click(program, "Screen Time")
    window = until(studio.desktop.windows.main_window, "the main window")
    for name, size in SIZES.items():
        studio.resize(window, size)
        for tab in ("Screen Time", "Breaks", "Tasks"):
            studio.click(program, tab, "radio button")
            studio.shoot_window(f"main-{tab.replace(' ', '-').lower()}-{name}", window)
        studio.click(program, "Screen Time", "radio button")
        studio.click(program, "See All")
        studio.shoot_window(f"main-usage-{name}", window)
        studio.click(program, "Done")
    program.end()


SCENES = (overlay_short, overlay_long, warning_card, popover_working_and_paused, popover_on_break, main_window)


def shoot_all(studio, suffix):
    studio.suffix = suffix
    for studio.appearance, studio.scale, scene in itertools.product(("light", "dark"), (1, 2), SCENES):
        scene(studio)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=Path)
    parser.add_argument("--compositor", default=shutil.which("xcompmgr") or shutil.which("picom"))
    choice = parser.parse_args()
    choice.folder.mkdir(parents=True, exist_ok=True)
    studio = Studio(choice.folder)
    try:
        studio.desktop.run("xsetroot", "-solid", "#8aa0a8")
        shoot_all(studio, "")
        if not choice.compositor:
            print("no compositor here: install xcompmgr for the rest", file=sys.stderr)
            return
        studio.start_compositor(choice.compositor)
        shoot_all(studio, "-composited")
    finally:
        studio.end()


if __name__ == "__main__":
    main()
