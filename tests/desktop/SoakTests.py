"""Breaks in the fast cycle with somebody who does what nobody would foresee, while services and displays go and come.

    SoakTests.py [--minutes 30] [--seed 7]

Of ./test it takes a minute and some. What it finds at rest is printed, with the seed that chose what was done."""

import argparse
import os
import random
import re
import signal
import sys
import time
import unittest
from pathlib import Path

from scaffold import DesktopTest, transitions, until
from scaffold.growth import ENOUGH, OWN, Gauge, growth, has_risen, has_sanitizer, told
from scaffold.person import FIRST, Person
from scaffold.rest import Rest
from scaffold.services import Services

OPTIONS = argparse.Namespace(minutes=1.0, seed=None)
WARM_UP_SHARE = 0.25
LOOKS_AT_MOST = 120
SECONDS_BETWEEN = 3.0
#: What may be logged as an error, once the service was away that it speaks of.
NOTICES = {"could not lock the screen": "login manager"}
PLAIN = re.compile(r"kestrelfen: \w+: (?!error: )")
ACTS_TOLD = 60
LINES_TOLD = 20
#: What is free between what is in use settles in the first minutes; then it differs by half of that from one rest to the
#: next.
SETTLED_AFTER_MINUTES = 10
TOLERATED_KIB = 1024
TOLERATED_UNSETTLED_KIB = 2048


class GrowthTests(unittest.TestCase):
    def test_steady_rise_is_told_from_a_single_step_and_from_noise(self):
        self.assertTrue(has_risen([28, 29, 30, 31, 32, 33]))
        self.assertFalse(has_risen([28, 28, 29, 29, 29, 29]))
        self.assertFalse(has_risen([28, 30, 28, 30, 28, 30]))

    def test_growth_is_that_of_the_middles(self):
        self.assertEqual(growth([100, 900, 110, 150, 150, 150, 210, 200, 40]), 90)


class TransitionsTests(unittest.TestCase):
    def test_each_way_out_of_a_break_is_counted_once(self):
        output = "".join(f"[Kestrelfen] 10:00:00 {line}\n" for line in (
            "work 10 s → break at 10:00 (next break long: false)", "break 5 s → ends 10:00",
            "break ended early", "break complete (today: 1)", "long break 8 s → ends 10:00",
            "break skipped (today: 1 skipped)", "snoozed 1 min (today: 1, this break: 1)", "postponed 5 min (today: 2)",
            "next break skipped (today: 1)", "advance skip refused (quota spent)"))
        self.assertEqual(transitions.tally(output), {"break begun": 2, "break complete": 1, "break skipped": 1,
                                                     "put off": 2, "next break skipped": 1})


class SoakTests(DesktopTest):
    def setUp(self):
        super().setUp()
        self.seed = OPTIONS.seed if OPTIONS.seed is not None else random.randrange(10**6)
        print(f"seed {self.seed}, {OPTIONS.minutes:g} minutes", flush=True)
        self.install("org.example.Film", "org.example.Music")
        self.services = Services(self.desktop)
        self.addCleanup(self.services.close)
        self.worked_in = self.terminal()
        self.program = self.start(FIRST | {"videoAppBundleIDs": ["org.example.Film"]})
        self.services.wait_for_item()
        self.person = Person(self.desktop, self.tree, self.program, self.services, self.seed)
        self.rest = Rest(self, self.person, self.program)
        self.gauge = Gauge(self.desktop, self.program.pid)
        self.addCleanup(self.gauge.close)
        self.looks = []

    def install(self, *applications):
        folder = Path(self.desktop.make_folder("share"))
        self.desktop.environment["XDG_DATA_DIRS"] = f"{folder}:/usr/local/share:/usr/share"
        (folder / "applications").mkdir()
        for application in applications:
            (folder / "applications" / f"{application}.desktop").write_text(
                f"[Desktop Entry]\nType=Application\nName={application}\nExec=true\n", encoding="utf-8")

    def test_it_lives_on_and_holds_no_more_and_every_break_is_recorded(self):
        try:
            self.live()
            self.tell_what_it_holds()
            self.assert_history()
            self.assert_nothing_grows()
            self.assert_quiet_log()
            self.assert_end()
        except BaseException:
            print("\n".join(["the last acts:", *self.person.journal[-ACTS_TOLD:], "the log's end:",
                             *self.program.log.splitlines()[-LINES_TOLD:]]), flush=True)
            raise

    def live(self):
        begin = time.monotonic()
        end = begin + 60 * OPTIONS.minutes
        self.rest.warm_up()
        self.act_until(begin + WARM_UP_SHARE * (end - begin))
        between = max(SECONDS_BETWEEN, (end - time.monotonic()) / LOOKS_AT_MOST)
        while time.monotonic() < end or len(self.looks) < ENOUGH:
            self.act_until(time.monotonic() + between)
            self.look_at_rest()

    def act_until(self, end):
        while time.monotonic() < end:
            self.person.act()
            self.assertTrue(self.program.is_running(), "it has ended")

    def look_at_rest(self):
        self.person.edit(FIRST)
        self.desktop.plug_right()
        self.rest.reach()
        self.looks.append(self.gauge.look())
        self.rest.leave()

    def values(self, name):
        return [counts[name] for counts in self.looks]

    def tell_what_it_holds(self):
        print(f"{len(self.person.journal)} acts, {len(self.looks)} looks at rest")
        for name in sorted(set().union(*self.looks)):
            print(told(name, self.values(name)), flush=True)

    def assert_nothing_grows(self):
        names = sorted(set().union(*self.looks))
        risen = [name for name in names if not name.endswith("KiB") and has_risen(self.values(name))]
        self.assertEqual(risen, [], "grows")
        if not has_sanitizer(self.program.pid):
            tolerated = TOLERATED_KIB if OPTIONS.minutes >= SETTLED_AFTER_MINUTES else TOLERATED_UNSETTLED_KIB
            self.assertLess(growth(self.values(OWN)), tolerated, self.values(OWN))

    def assert_quiet_log(self):
        lines = [line for line in self.program.log.splitlines() if not PLAIN.match(line)]
        notices = {notice for notice, service in NOTICES.items() if service in self.services.were_away}
        self.assertEqual([line for line in lines if not any(notice in line for notice in notices)], [])
        self.assertEqual(self.services.refusals(), [])

    def assert_history(self):
        told_of = transitions.tally(self.program.output)
        wanted = {kind: told_of[kind] for kind in transitions.OUTCOMES}
        self.assertGreater(wanted["break complete"], 0)
        until(lambda: transitions.recorded(self.program) == wanted, f"rows for {wanted}", 5.0)
        self.assertEqual(transitions.counted(self.program), wanted)
        if "day rollover" not in self.program.output:
            self.assert_counters(told_of)
        print(f"told: {dict(sorted(told_of.items()))}; recorded: {transitions.recorded(self.program)}", flush=True)

    def assert_counters(self, told_of):
        """They are those of the day."""
        for name, kind in (("snoozesPerDay.count", "put off"), ("advanceSkipsPerDay.count", "next break skipped")):
            self.assertEqual(self.program.preferences.get(name, 0), told_of[kind], name)

    def assert_end(self):
        """The keyboard is the others' again as well."""
        self.program.signal(signal.SIGTERM)
        self.assertEqual(self.program.exit_status(5.0), 0)
        until(lambda: not self.own_windows(), "no window left", 2.0)
        self.worked_in.take_focus()
        self.hands.press("Escape", "b")
        self.worked_in.receives("\x1bb")

    def own_windows(self):
        return [window for window in self.windows.all() if "kestrelfen" in (window.name + window.classes).lower()]


if __name__ == "__main__":
    parser = argparse.ArgumentParser(add_help=False)
    parser.add_argument("--minutes", type=float, default=float(os.environ.get("KESTRELFEN_SOAK_MINUTES", "1")))
    parser.add_argument("--seed", type=int)
    OPTIONS, left = parser.parse_known_args()
    unittest.main(argv=sys.argv[:1] + left)
