"""The base of the tests of the main window, over the history of three months."""

import datetime
import shutil
import tempfile
from pathlib import Path

import dbus

from scaffold import three_months
from scaffold.case import DesktopTest
from scaffold.program import BINARY, QUICK
from scaffold.waiting import until, until_steady

LONG = QUICK | {"workIntervalSeconds": 3000.0}
ITEM, BUTTON, PILL, LABEL = "list item", "push button", "radio button", "label"
MICROSECONDS = 1_000_000
SECONDS_A_DAY = 86400
#: What is live may be as far ahead of what is stored as one writing is from the next, and some.
UNTIL_STORED = 45.0
SHOWN_AT_MOST = 500
KINDS = {"manual": "manual", "systemSleep": "sleep", "screenLocked": "lock", "displaySleep": "display",
         "userIdle": "idle", "meeting": "call", "videoPlayback": "video", "screenSharing": "sharing",
         "focusApp": "focus"}
HISTORY = """SELECT startedAt, outcomeRawValue, isLong, actualSeconds, creditedTaskTitle, displayCount
               FROM BreakRecord WHERE startedAt >= :since
             UNION ALL SELECT startedAt, kindRawValue, NULL, seconds, NULL, NULL FROM PauseRecord
               WHERE startedAt >= :since ORDER BY startedAt DESC"""


def active_time(seconds):
    """As the program writes it."""
    whole = round(seconds)
    if whole >= 3600:
        return f"{whole // 3600} h {whole % 3600 // 60:02d} m"
    return f"{whole // 60} m" if whole >= 60 else f"{whole} s"


def plural(count, noun):
    return f"{count} {noun}" + ("" if count == 1 else "s")


class MainWindowTest(DesktopTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls._made = Path(cls.desktop.folder) / "three-months.sqlite"
        cls.zone = three_months.make(cls._made, Path(BINARY).with_name("kestrelfen-sim"))
        # The sign of such a zone's name is that of POSIX.
        cls.east = datetime.timezone(-datetime.timedelta(hours=int(cls.zone.removeprefix("Etc/GMT"))))

    def open(self, tab, **preferences):
        """The program with its main window at that tab, with a store of its own."""
        home = Path(tempfile.mkdtemp(prefix="run-", dir=self.desktop.folder))
        store = home / "data" / "kestrelfen" / "Kestrelfen.sqlite"
        store.parent.mkdir(parents=True)
        shutil.copy(self._made, store)
        self.program = self.start(LONG | preferences, environment={"TZ": self.zone}, home=home)
        self.program.logs("work ")
        self.program.second_start()
        self.wait_for_popover()
        self.click_button(self.program, tab)
        self.wait_for_no_popover()
        return until_steady(self.windows.main_window, "the main window")

    def click(self, name, role=BUTTON, button=1):
        self.click_control(self.program, name, role, button)

    def told(self, role=None):
        return self.tree.told(self.program.pid, role)

    def rows(self):
        """What the rows of a list tell, from the top to the bottom."""
        try:
            nodes = [node for node in self.tree.nodes(self.program.pid) if node.role == ITEM]
            return [node.name for node in sorted(nodes, key=lambda node: node.centre[1])]
        except dbus.DBusException:
            return []

    def wait_for(self, name, seconds=15.0):
        self.wait_until_told(self.program, name, seconds)

    def wait_for_no(self, name):
        until(lambda: name not in (self.told() or [name]), f"no {name!r}")

    def one(self, question, **values):
        [(answer,)] = self.program.rows(question, **values)
        return answer

    def since(self, days_ago):
        """The midnight of so many days ago, in the store's count."""
        return self.one("SELECT max(startOfDay) FROM DayRecord") - days_ago * SECONDS_A_DAY * MICROSECONDS

    def history(self, days_ago):
        """What the rows of the table are to say, the newest first."""
        rows = self.program.rows(HISTORY, since=self.since(days_ago))[:SHOWN_AT_MOST]
        return [self._sentence(*row) for row in rows]

    def _sentence(self, started_at, kind, is_long, seconds, task, displays):
        started = f"{datetime.datetime.fromtimestamp(started_at / MICROSECONDS, self.east):%H:%M}"
        length = f"{int(seconds) // 60}:{int(seconds) % 60:02d}"
        if is_long is None:
            return f"{started}, Paused · {KINDS[kind]}, {length}, not counted as screen time"
        if kind == "skipped":
            columns = [started, "Skipped"]
        else:
            columns = [started, "Long break" if is_long else "Completed", length]
        return ", ".join(columns + ([task] if task else []) + [plural(displays, "screen")])
