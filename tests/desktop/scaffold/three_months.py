#!/usr/bin/python3
"""A believable history of three months that ends a moment ago, as the program itself would have kept it.

    KESTRELFEN=build/bin/kestrelfen tests/desktop/scaffold/three_months.py FILE     a store, and the zone to see it in

It is the same each time but for its dates. It needs `kestrelfen-sim` beside the program.
"""

import datetime
import os
import random
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

DAYS = 90
#: Where the days are counted it is the afternoon now, so that today has a morning behind it.
HOUR_OF_NOW = 16
FARTHEST_EAST = 14
SECONDS_BEFORE_NOW = 60
STEP = 5
#: Long enough that a month has more rows than a table shows, however its weekends fall.
WORKING_HOURS = (8, 11, 12, 12)
INTERVAL, WARNING, SHORT, LONG, LONG_EVERY = 1200, 10, 20, 300, 4
MEMORY = "/dev/shm"

#: Identifier, name, display.
APPS = (("com.apple.dt.Xcode", "Xcode", 1), ("com.apple.Terminal", "Terminal", 2), ("com.google.Chrome", "Chrome", 1),
        ("com.figma.Desktop", "Figma", 1), ("com.apple.mail", "Mail", 2), ("com.apple.Notes", "Notes", 2),
        ("com.spotify.client", "Spotify", 2), ("com.apple.finder", "Finder", 1),
        ("org.example.ledger", "Quarterly Ledger and Invoice Reconciliation Workbench, Professional Edition", 1),
        ("org.example.tide", "Tide Table", 2), ("org.inkscape.Inkscape", "Inkscape", 1))
WEIGHTS = (28, 16, 24, 12, 9, 5, 2, 3, 5, 1, 4)
BROWSER = APPS.index(("com.google.Chrome", "Chrome", 1))
SITES = ("docs.example.org", "mail.example.com", "news.example.net", "issues.example.org", "maps.example.com",
         "a-remarkably-long-name-for-a-place-on-the-net.research.university.example.edu", "video.example.tv")
TITLES = ("Write the report", "Review the schema of the archive", "Answer the letters of the week",
          "Prepare the talk about honest measurements, with the figures of last year beside those of this year and "
          "a summary for those who have no time", "Sort the pictures", "Tidy the build", "Plan the spring",
          "Read the paper on eye strain", "Pay the invoices", "Call the printer", "Draw the icons anew",
          "Draft the budget", "Mend the kitchen tap", "Überprüfung der Übersetzungen", "Back up the laptop",
          "Choose the colours", "Translate the manual", "Weed the inbox")


def zone_of(now):
    """The zone in which it is the afternoon."""
    east = HOUR_OF_NOW - now.hour
    east -= 24 if east > FARTHEST_EAST else 0
    return f"Etc/GMT{-east:+d}", datetime.timedelta(hours=east)


class Diary:
    """Writes the scenario, day after day, and knows how late it is in it."""

    def __init__(self, now):
        self._random = random.Random(1)
        self._end = now - datetime.timedelta(seconds=SECONDS_BEFORE_NOW)
        self.zone, self._east = zone_of(now)
        self._midnight = (now + self._east).replace(hour=0, minute=0, second=0, microsecond=0) - self._east
        self._clock = self._midnight
        self._cadence = 0
        self._tasks = list(reversed(TITLES))
        self._open = []
        self._chores = []
        self._carelessness = 0.0
        self.lines = ["pref hasCompletedOnboarding bool true", "pref enforcementLevel string casual",
                      "pref websiteStats.chrome bool true", f"zone {self.zone}", "displays 2",
                      "browser chrome permission granted"]
        for pid, (bundle, name, display) in enumerate(APPS, 1):
            self.lines.append(f'app start {bundle} "{name}" {pid} {display}')

    def say(self, *lines):
        self.lines += lines

    def run(self, seconds):
        self.say(f"run {seconds} {STEP}")
        self._clock += datetime.timedelta(seconds=seconds)

    def is_over(self, end):
        return self._clock + datetime.timedelta(seconds=INTERVAL + LONG) > end

    def write(self):
        for ago in range(DAYS - 1, -1, -1):
            day = self._midnight - datetime.timedelta(days=ago)
            self._note_chores(ago)
            is_weekend = (day + self._east).weekday() >= 5
            if ago and is_weekend and self._random.random() < 0.8:
                continue
            self._write_day(day, ago, 2 if is_weekend else self._random.choice(WORKING_HOURS))
        return "\n".join(self.lines) + "\n"

    def _write_day(self, day, ago, hours):
        start = day + datetime.timedelta(hours=8, minutes=self._random.randrange(55))
        end = start + datetime.timedelta(hours=hours, minutes=self._random.randrange(60)) if ago else self._end
        self._clock = start
        self._cadence = 0
        self.say(f"clock {start:%Y-%m-%dT%H:%M:%SZ}", "input active", "launch")
        self._carelessness = self._random.choice((0.03, 0.1, 0.35))
        for chore in self._chores:
            chore()
        self._chores.clear()
        while not self.is_over(end):
            self._work()
            self._take_break()
            self._leave(end)
        self.say("quit")

    def _note_chores(self, ago):
        """What is done with the tasks on the next day at work, so that the list is the same whatever the weekday."""
        if ago % 5 == 0:
            self._chores.append(self._add_task)
        if ago % 11 == 3:
            self._chores.append(self._finish_task)
        if ago == DAYS // 2:
            self._chores.append(lambda: self.say("task clear-completed"))

    def _add_task(self):
        title = self._tasks.pop()
        self._open.append(title)
        self.say(f'task add "{title}"', f'task activate "{title}"')

    def _finish_task(self):
        if len(self._open) > 4:
            title = self._open.pop(0)
            self.say(f'task toggle "{title}"', f'task activate "{self._open[-1]}"')

    def _work(self):
        """One interval, up to the warning."""
        left = INTERVAL - WARNING
        while left:
            app = self._random.choices(range(len(APPS)), WEIGHTS)[0]
            seconds = min(left, STEP * self._random.randrange(12, 120))
            self.say(f"front {app + 1}")
            if app == BROWSER:
                self.say(f"browser chrome url https://{self._random.choice(SITES)}/page")
            self.run(seconds)
            left -= seconds

    def _take_break(self):
        length = LONG if self._cadence % LONG_EVERY == LONG_EVERY - 1 else SHORT
        fate = self._random.random()
        if fate < 0.1:
            self.say("do snooze 300")
            self.run(300)
        self.run(WARNING)
        if fate > 1 - self._carelessness:
            self.say("press overlay skip")
        elif length == LONG and fate > 0.5:
            self.run(LONG - 60)
            self.say("press overlay end")
        else:
            self.run(length)
        self._cadence += 1

    def _leave(self, end):
        """Now and then something that pauses the timer."""
        if self.is_over(end - datetime.timedelta(hours=1)):
            return
        kind = self._random.choices(("", "meeting", "manual", "lock", "idle"), (60, 10, 8, 12, 10))[0]
        if kind == "meeting":
            self.say('app start us.zoom.xos "Zoom" 90 1', "front 90", "audio in us.zoom.xos")
            self.run(STEP * self._random.randrange(120, 540))
            self.say("app stop 90", "audio in", "front 1")
            self.run(60)
        elif kind == "manual":
            self.say("do pause")
            self.run(STEP * self._random.randrange(60, 240))
            self.say("do resume")
        elif kind == "lock":
            self.say("signal screenIsLocked")
            self.run(STEP * self._random.randrange(60, 480))
            self.say("signal screenIsUnlocked")
        elif kind == "idle":
            self.say("input away")
            self.run(STEP * self._random.randrange(120, 300))
            self.say("input active")
            self.run(STEP)


def make(store, simulator):
    """Makes a store in that file; the zone in which its last day is today."""
    diary = Diary(datetime.datetime.now(datetime.timezone.utc))
    Path(store).parent.mkdir(parents=True, exist_ok=True)
    # Each of its thousands of writes waits for the disk, if there is one.
    with tempfile.TemporaryDirectory(dir=MEMORY if os.access(MEMORY, os.W_OK) else None) as folder:
        made = Path(folder) / "made.sqlite"
        subprocess.run([simulator, "--store", str(made)], input=diary.write(), text=True, check=True, timeout=120,
                       stdout=subprocess.DEVNULL)
        shutil.copy(made, store)
    return diary.zone


if __name__ == "__main__":
    print(make(sys.argv[1], Path(os.environ["KESTRELFEN"]).with_name("kestrelfen-sim")))
