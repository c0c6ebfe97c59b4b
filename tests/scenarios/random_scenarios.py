"""Runs random scenarios through the simulator and holds the rules of the timer and of the history against all that it
shows.

    random_scenarios.py SIMULATOR                 the usual seeds
    random_scenarios.py SIMULATOR SEED            one of them, printing its scenario
    random_scenarios.py SIMULATOR --count N       so many, for a long run
"""

import json
import os
import random
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

from history_rules import HistoryJudge
from second_rules import SecondsJudge
from timer_rules import Broken, Judge

SEEDS = range(300)
COMMANDS = 60
SIGNALS = ("willSleep didWake screensDidSleep screensDidWake sessionDidResignActive sessionDidBecomeActive "
           "screenIsLocked screenIsUnlocked").split()
ZONES = ("UTC Europe/Berlin America/New_York Asia/Kathmandu Pacific/Auckland Africa/Cairo America/St_Johns "
         "Pacific/Apia America/Havana Australia/Lord_Howe Asia/Beirut Pacific/Kiritimati").split()
CLOCKS = ("2026-03-09T23:59:55Z 2026-03-10T00:00:10Z 2026-03-09T08:00:00Z 2026-03-29T00:59:50Z "
          "2026-10-25T00:59:50.5Z 2026-03-08T06:59:59.999Z 2027-01-01T04:59:59Z 2026-03-09T07:00:00Z "
          # Where a midnight is skipped or lived twice, and where the clocks move by half an hour.
          "2026-03-08T04:59:50Z 2026-11-01T03:59:50Z 2026-03-28T21:59:50Z 2026-04-23T21:59:50Z "
          "2026-10-29T20:59:50Z 2026-04-04T14:59:50Z 2026-10-03T15:29:50Z 2026-03-09T22:59:57Z").split()
PREFERENCES = [
    ("workIntervalSeconds", "double", (60, 300, 900.5, 1200)),
    ("breakDurationSeconds", "double", (5, 20, 60, 59.9)),
    ("longBreakDurationSeconds", "double", (65, 300)),
    ("longBreakEvery", "int", (1, 2, 3, 4, 0, -3)),
    ("preBreakWarningLeadSeconds", "double", (0, 10, 55, 2000)),
    ("snoozeDurationSeconds", "double", (60, 300)),
    ("allowEndBreakEarly", "bool", ("true", "false")),
    ("lockOnBreakStart", "bool", ("true", "false")),
    ("showSkipButton", "bool", ("true", "false")),
    ("enforcementLevel", "string", ("casual", "balanced", "hardcore", "unheard")),
    ("doubleEscapeAction", "string", ("nothing", "snooze", "skip")),
    ("idleMode", "string", ("off", "automatic", "custom")),
    ("idleThresholdSeconds", "double", (15, 60, 600)),
    ("pauseOnScreenLock", "bool", ("true", "false")),
    ("pauseOnSystemSleep", "bool", ("true", "false")),
    ("resumeAutomatically", "bool", ("true", "false")),
    ("warningHUDEnabled", "bool", ("true", "false")),
    ("soundOnBreakStart", "bool", ("true", "false")),
    ("debugFastCycle", "bool", ("true", "false")),
    ("smartPauseMeetings", "bool", ("true", "false")),
    ("smartPauseFocusApps", "bool", ("true", "false")),
    ("focusAppBundleIDs", "strings", ("", "org.editor", "org.editor org.mail")),
    ("websiteStats.safari", "bool", ("true", "true", "false")),
    ("dailySummaryHour", "int", (0, 9, 18)),
    ("historyRetentionDays", "int", (0, 30, 45, 365)),
]
BUNDLES = "com.apple.Safari com.apple.Safari org.editor org.mail us.zoom.xos com.apple.screencaptureui -".split()
READINGS = ["engine", "overlay", "warning", "status-item", "tracker", "smart-pause", "day", "days 2000-01-01",
            "history 2000-01-01 100000", "app-totals 2000-01-01", "site-totals 2000-01-01", "tasks", "prefs"]
CHOICES = ("enforcementLevel casual", "enforcementLevel hardcore", "idleMode automatic", "idleMode custom",
           "resumeAutomatically true", "pauseOnScreenLock true", "smartPauseFocusApps true", "allowEndBreakEarly true",
           "doubleEscapeAction skip", "historyRetentionDays 30", "historyRetentionDays 0", "warningHUDEnabled true")
STEPS = ("workIntervalSeconds", "breakDurationSeconds", "longBreakDurationSeconds", "longBreakEvery",
         "preBreakWarningLeadSeconds", "idleThresholdSeconds")
TITLES = ("Read", "Write", "Call")
QUOTAS = {"snoozesPerDay": (-1, 0, 1, 3), "snoozesPerBreak": (-1, 0, 1, 2), "advanceSkipsPerDay": (-1, 0, 1, 2)}


class Scenario:
    """One random scenario: its lines, and behind each command the readings to judge it by."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.launched = False
        self.processes = []
        self.lines = ["events on"]
        self.commands = []
        self.limits = {key: self.random.choice(limits) for key, limits in QUOTAS.items()}
        for key, limit in self.limits.items():
            self.lines.append(f"pref {key} int {limit}")
        for _ in range(4):
            self.lines.append(self.preference())
        if self.random.random() < 0.9:
            self.lines.append("pref hasCompletedOnboarding bool true")
        self.add("launch")
        while len(self.commands) < COMMANDS:
            chance = self.random.random()
            for command in self.episode() if chance < 0.12 else self.work() if chance < 0.2 else [self.command()]:
                self.add(command)

    def add(self, command):
        self.launched = command == "launch" or (self.launched and command not in ("quit", "kill"))
        self.commands.append(command)
        self.lines += [command] + ["show " + reading for reading in (READINGS if self.launched else ["prefs"])]

    def preference(self):
        key, kind, values = self.random.choice(PREFERENCES)
        return f"pref {key} {kind} {self.random.choice(values)}"

    def command(self):
        pick = self.random.choice
        if not self.launched:
            simple = pick(("launch", "launch", "launch", "run 30", "sleep 3600"))
            return pick((lambda: simple, lambda: simple, self.world, self.sense, self.disk, self.preference))()
        kinds = [self.passing] * 8 + [self.operation] * 6 + [self.press] * 5 + [self.world] * 4
        kinds += [self.sense] * 6 + [self.window] * 4 + [self.task] * 4 + [self.disk, self.preference, self.end]
        return pick(kinds)()

    def episode(self):
        """What a person does to meet a warning or a break, and to get out of it."""
        pick = self.random.choice
        if not self.launched:
            return [self.command()]
        if self.random.random() < 0.5:
            return ["input active", "do resume", "do postpone 12", f"run {pick((2, 3, 11))}",
                    pick(("press warning dismiss", "press warning start", f"press warning snooze {pick((1, 3, 5))}"))]
        away = pick((["escape", "escape"], ["press overlay skip"], [f"press overlay snooze {pick((1, 3, 5))}"],
                     ["run 230", "press overlay end"], ["run 48", "press overlay end"], ["do pause", "do resume"]))
        return ["input active", "do begin-break", f"run {pick((0, 4, 6))}"] + away

    def work(self):
        """What a person does at work: uses an application or a browser, is called, or watches something."""
        pick = self.random.choice
        if not self.launched:
            return [self.command()]
        process = max(self.processes, default=0) + 1
        bundle = pick(("com.apple.Safari", "com.apple.Safari", "org.editor", "org.mail"))
        browse = ["pref websiteStats.safari bool true", "browser safari permission granted",
                  f"browser safari url {pick(('http://a.org', 'https://www.b.org/c'))}"]
        kind = pick("in us.zoom.xos,in com.hnc.Discord,out org.videolan.vlc".split(","))
        call = ["audio " + kind, "run 6", "audio " + kind.split()[0], f"run {pick((5, 26))}"]
        task = [f"task add {pick(TITLES)}", f"task activate {pick(TITLES)}"]
        actions = pick((browse, call, task, [])) + [f"run {pick((5, 35, 61))}"]
        if pick((True, False)):
            self.processes.append(process)
            actions = [f"app start {bundle} Name {process} {pick((1, 1, 2))}", f"front {process}"] + actions
        return ["input active", "do resume"] + actions

    def passing(self):
        pick = self.random.choice
        return pick(("tick", f"sleep {pick((0.25, 0.99, 1, 17, 4000))}", f"clock {pick(CLOCKS)}",
                     f"run {pick((1, 3, 10, 60))}", f"run {pick((1, 3, 10, 60))}", f"run {pick((300, 900, 1300))}",
                     f"run {pick((0.3, 10, 61))} {pick((0.1, 0.5, 7))}"))

    def operation(self):
        pick = self.random.choice
        name = pick(("pause", "resume", "skip-break", "skip-next", "dismiss-warning", "begin-break", "begin-break",
                     "pause-for", "snooze", "postpone"))
        timed = name in ("pause-for", "snooze", "postpone")
        return f"do {name} {pick((-5, 0, 0.5, 12, 60, 300))}" if timed else f"do {name}"

    def press(self):
        pick = self.random.choice
        return pick(("escape", "escape", "press overlay end", "press overlay skip", "press warning dismiss",
                     "press warning start", f"press overlay snooze {pick((1, 3, 5))}",
                     f"press warning snooze {pick((1, 3, 5))}", "finish-onboarding"))

    def world(self):
        pick = self.random.choice
        return pick(("input active", "input away", f"input age {pick((0, 14.9, 60, 61, 900))}",
                     f"displays {pick((0, 1, 1, 2, 3))}", f"signal {pick(SIGNALS)}", f"signal {pick(SIGNALS)}",
                     f"zone {pick(ZONES)}", f"program {pick(('active', 'inactive'))}",
                     f"lock {pick(('ok', 'missing', 'failing no'))}"))

    def sense(self):
        pick = self.random.choice
        return pick((self.application, self.application, self.front, self.front, self.browser, self.sound))()

    def application(self):
        pick = self.random.choice
        action = self.random.random()
        if action < 0.5 or not self.processes:
            process = max(self.processes, default=0) + 1
            self.processes.append(process)
            return f"app start {pick(BUNDLES)} {pick(('-', 'Name', 'Other'))} {process} {pick((0, 1, 1, 2))}"
        process = pick(self.processes)
        if action < 0.8:
            return f"app move {process} {pick((0, 1, 2, 3))}"
        self.processes.remove(process)
        return f"app stop {process}"

    def front(self):
        return f"front {self.random.choice(self.processes + ['none'])}"

    def browser(self):
        pick = self.random.choice
        return pick((f"browser safari url {pick(('http://a.org', 'https://www.b.org/c', 'error', 'about:blank'))}",
                     f"browser safari permission {pick(('granted', 'granted', 'denied', 'notDetermined', 'notRunning'))}"))

    def sound(self):
        pick = self.random.choice
        return pick(("audio unsupported", f"audio in {pick(('', '', 'us.zoom.xos', 'org.other'))}",
                     f"audio out {pick(('', '', 'org.videolan.vlc', 'org.other'))}",
                     f"display {pick(('awake', 'awake', 'asleep'))}"))

    def window(self):
        """What a person does in the windows, as far as it leaves the quotas as they are."""
        pick = self.random.choice
        return pick((f"press popover {pick((1, 2, 3))}", f"press dashboard {pick((1, 2, 3))}",
                     f"hover {pick(('none', '2026-03-09', '2026-03-08'))}",
                     f"choose usageSource {pick(('apps', 'websites'))}",
                     f"category {pick(('org.editor', 'com.apple.Safari'))} {pick(('work', 'other', 'reset'))}",
                     f"website {pick(('safari', 'chrome'))} {pick(('true', 'false'))}",
                     f"apps focusApps {pick(('add org.editor', 'remove org.editor', 'restore'))}",
                     f"choose {pick(CHOICES)}", f"step {pick(STEPS)} {pick(('up', 'down'))}",
                     f"go {pick(('tasks', 'breaks', 'settings', 'usageDetail'))}",
                     f"close {pick(('main', 'settings'))}",
                     f"tab {pick(('tasks', 'breaks', 'screenTime'))}", f"pane {pick(('timing', 'about'))}"))

    def task(self):
        pick = self.random.choice
        return pick((f"task add {pick(TITLES)}", f"task activate {pick(TITLES)}", f"task activate {pick(TITLES)}",
                     f"task toggle {pick(TITLES)}", f"task delete {pick(TITLES)}", "task clear-completed"))

    def disk(self):
        return self.random.choice(("store failing", "store working", "store working", "store broken", "store ok",
                                   "store ok", "delete-all-history" if self.launched else "store ok"))

    def end(self):
        return self.random.choice(("quit", "kill"))

    def text(self):
        return "\n".join(self.lines) + "\n"


def outcome_of_each_command(output):
    """The events and notes of each command, with the readings that follow it; the last of them are the preferences."""
    events, shows = [], {}
    for line in output.splitlines():
        entry = json.loads(line)
        if "show" not in entry:
            events.append(entry)
            continue
        shows[entry["show"]] = entry
        if entry["show"] == "prefs":
            yield events, shows
            events, shows = [], {}


def failure_of(simulator, seed):
    scenario = Scenario(seed)
    run = subprocess.run([simulator], input=scenario.text(), capture_output=True, encoding="utf-8", timeout=120)
    if run.returncode != 0 or run.stderr:
        return f"seed {seed}: exit status {run.returncode}: {run.stderr.strip()}"
    judge = Judge(scenario.limits)
    history, seconds = HistoryJudge(), SecondsJudge()
    outcomes = list(outcome_of_each_command(run.stdout))
    if len(outcomes) != len(scenario.commands):
        return f"seed {seed}: {len(scenario.commands)} commands, but {len(outcomes)} outcomes"
    for number, (command, outcome) in enumerate(zip(scenario.commands, outcomes), start=1):
        try:
            judge.judge(command, *outcome)
            history.judge(command, outcome[1])
            seconds.judge(command, outcome[1])
        except Broken as rule:
            return f"seed {seed}, command {number}, {command}: not so: {rule}\n{json.dumps(outcome[1])}"
    return None


def chosen_seeds(choice):
    if not choice:
        return SEEDS
    if choice[0] == "--count":
        return range(int(choice[1]))
    print(Scenario(int(choice[0])).text(), end="")
    return [int(choice[0])]


def main(simulator, *choice):
    seeds = chosen_seeds(choice)
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        failures = [failure for failure in pool.map(lambda each: failure_of(simulator, each), seeds) if failure]
    for failure in failures[:5]:
        print(failure, file=sys.stderr)
    print(f"{len(seeds)} scenarios, {len(failures)} failures", file=sys.stderr)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
