"""Each rule that random scenarios are judged by can fail: it finds what was forged in a day that is right.

    rules_test.py SIMULATOR
"""

import ast
import copy
import re
import subprocess
import sys
from pathlib import Path

from history_rules import HistoryJudge
from random_scenarios import READINGS, outcome_of_each_command
from second_rules import SecondsJudge
from timer_rules import Broken, Judge

HERE = Path(__file__).parent
LIMITS = {"snoozesPerDay": 1, "snoozesPerBreak": 1, "advanceSkipsPerDay": 1}
PREPARED = ["pref hasCompletedOnboarding bool true", *(f"pref {key} int 1" for key in LIMITS), "events on",
            "pref websiteStats.safari bool true", "browser safari permission granted",
            "browser safari url https://example.org", "app start com.apple.Safari Safari 1 1", "front 1"]
DAY = ["launch", "task add Read", "task add Write", "task add Call", "task add Draw", "task toggle Call", "run 1",
       "task toggle Draw", "task activate Write", "run 100", "do begin-break", "displays 2", "run 20", "do pause",
       "run 10", "do resume", "run 1191", "run 9", "run 5", "press overlay skip", "run 40", "store failing",
       "store working", "quit"]


def lived(simulator):
    lines = list(PREPARED)
    for command in DAY:
        lines += [command] + ["show " + reading for reading in (READINGS if command != "quit" else ["prefs"])]
    run = subprocess.run([simulator], input="\n".join(lines) + "\n", capture_output=True, encoding="utf-8", check=True)
    return list(zip(DAY, outcome_of_each_command(run.stdout)))


def verdict(outcomes):
    """The rule that does not hold, or null."""
    judges = Judge(LIMITS), HistoryJudge(), SecondsJudge()
    try:
        for command, (events, shows) in outcomes:
            judges[0].judge(command, events, shows)
            judges[1].judge(command, shows)
            judges[2].judge(command, shows)
    except Broken as rule:
        return str(rule)
    return None


def at(command, *path, value):
    """A forgery: after that command, the value at that path of the readings, or what a function makes of it."""
    def forge(outcomes):
        place = outcomes[DAY.index(command)][1][1]
        for step in path[:-1]:
            place = place[step]
        place[path[-1]] = value(place[path[-1]]) if callable(value) else value
    return forge


def event(command, call, key, value):
    def forge(outcomes):
        for each in outcomes[DAY.index(command)][1][0]:
            if each.get("call") == call:
                each[key] = value
    return forge


def both(*forgeries):
    return lambda outcomes: [forge(outcomes) for forge in forgeries]


def more(value):
    return value + 1


WORK, BREAK, WARNED, PAUSED, SKIPPED, LAST = ("run 100", "do begin-break", "run 1191", "run 10", "press overlay skip",
                                              "run 40")
FORGERIES = [
    at(WORK, "engine", "state", value="asleep"),
    at(WORK, "engine", "endsAt", value=None),
    at(WORK, "engine", "reason", value="manual"),
    at(WORK, "engine", "nextBreakAt", value="2026-03-09T08:20:01.000Z"),
    at(BREAK, "engine", "nextBreakAt", value="2026-03-09T08:20:01.000Z"),
    at(WARNED, "engine", "nextBreakAt", value=None),
    at(WORK, "engine", "snoozesOnCurrentBreak", value=-1),
    at(WORK, "engine", "phaseProgress", value=1.01),
    at(WORK, "engine", "cyclePosition", value=0),
    at(WORK, "engine", "isNextBreakLong", value=True),
    at(WORK, "engine", "timeUntilNextBreak", value=more),
    at(BREAK, "engine", "breakRemaining", value=more),
    at(WORK, "engine", "menuBarText", value="00:00"),
    at(PAUSED, "engine", "canPostpone", value=True),
    at(PAUSED, "engine", "canSkipNextBreak", value=True),
    at(PAUSED, "engine", "canSnooze", value=True),
    at(WORK, "engine", "canSkipCurrentBreak", value=True),
    at(WORK, "engine", "canEndBreakEarly", value=True),
    at(BREAK, "engine", "snoozesOnCurrentBreak", value=2),
    at(WORK, "prefs", "values", value=lambda values: {**values, "snoozesPerDay.count": -1}),
    at(WORK, "prefs", "values", value=lambda values: {**values, "snoozesPerDay.count": 2}),
    at(WORK, "overlay", "visible", value=True),
    at(BREAK, "overlay", "count", value=2),
    at(WARNED, "warning", "visible", value=False),
    both(at(BREAK, "warning", "visible", value=True), event(BREAK, "buildBreakWindows", "call", "showWarning"),
         at(BREAK, "overlay", "visible", value=False), at(BREAK, "overlay", "count", value=0)),
    both(event("run 20", "tearDownBreakWindows", "event", "none"), at("run 20", "overlay", "visible", value=True),
         at("run 20", "overlay", "count", value=2)),
    both(event(BREAK, "buildBreakWindows", "event", "none"), at(BREAK, "overlay", "visible", value=False),
         at(BREAK, "overlay", "count", value=0)),
    event(BREAK, "buildBreakWindows", "count", 2),
    event(BREAK, "buildBreakWindows", "call", "tearDownBreakWindows"),
    event(WARNED, "showWarning", "call", "hideWarning"),
    at(WORK, "overlay", "title", value="Look away"),
    at(WORK, "status-item", "symbol", value="eye.slash"),
    at(WORK, "status-item", "text", value="00:01"),
    at(WORK, "tracker", "todayActiveSeconds", value=102),
    at("store failing", "tasks", "rows", value=[{"title": "Read"}]),
    at(LAST, "days", "days", 0, "breaksCompleted", value=more),
    at(LAST, "days", "days", 0, "breaksSkipped", value=more),
    at(LAST, "days", "days", 0, "longBreaksCompleted", value=more),
    at(LAST, "days", "days", 0, "pausedSeconds", value=more),
    at(LAST, "days", "days", 0, "activeSeconds", value=1e6),
    at(LAST, "app-totals", "rows", 0, "activeSeconds", value=1e6),
    at(LAST, "site-totals", "rows", 0, "activeSeconds", value=1e6),
    at(LAST, "days", "days", value=lambda days: [*days, {**days[0], "breaksCompleted": 0, "breaksSkipped": 0,
                                                         "longBreaksCompleted": 0, "pausedSeconds": 0,
                                                         "activeSeconds": 0}]),
    at(LAST, "history", "rows", value=lambda rows: rows[::-1]),
    at(WORK, "tasks", "rows", value=lambda rows: rows[::-1]),
    at(WORK, "tasks", "rows", 1, "sortIndex", value=-1),
    at(WORK, "tasks", "rows", value=lambda rows: [*rows[:-2], rows[-1], rows[-2]]),
    both(at(WORK, "tasks", "rows", 0, "active", value=True), at(WORK, "tasks", "rows", 1, "active", value=True)),
    both(at(WORK, "tasks", "rows", 0, "active", value=False), at(WORK, "tasks", "rows", 1, "active", value=False),
         at(WORK, "tasks", "rows", 2, "active", value=True)),
    at(WORK, "engine", "activeTaskTitle", value="Read"),
    at(LAST, "engine", "breaksCompletedToday", value=more),
    at(LAST, "engine", "breaksSkippedToday", value=more),
    at(LAST, "tracker", "todayActiveSeconds", value=lambda seconds: seconds - 1),
    both(lambda outcomes: outcomes[DAY.index("displays 2")][1][0].clear(),
         at("displays 2", "overlay", "count", value=1)),
    lambda outcomes: outcomes[DAY.index("quit")][1][0].append({"event": "windows", "call": "buildBreakWindows",
                                                               "count": 2}),
    # Another day's seconds.
    at(WORK, "days", "days", 0, "startOfDay", value="2026-03-08T00:00:00.000Z"),
    # What has been stored, and waits as well.
    both(at(LAST, "tracker", "pending", value=lambda rows: [*rows, {"seconds": 60.0}]),
         at(LAST, "tracker", "dayStart", value="2026-03-10T00:00:00.000Z"),
         at(LAST, "tracker", "todayActiveSeconds", value=0.0)),
    at(LAST, "tracker", "pending", value=lambda rows: [*rows, {"seconds": 30.0}]),
]


def rules():
    """Every rule that a judge holds, as the source has it; a star stands for what is filled in."""
    for name in ("timer_rules.py", "history_rules.py", "second_rules.py"):
        for node in ast.walk(ast.parse((HERE / name).read_text(encoding="utf-8"))):
            if isinstance(node, ast.Call) and getattr(node.func, "id", "") == "hold":
                yield pattern_of(node.args[1])


def pattern_of(node):
    if isinstance(node, ast.Constant):
        return re.escape(node.value)
    if isinstance(node, ast.JoinedStr):
        return "".join(pattern_of(part) for part in node.values)
    if isinstance(node, ast.BinOp):
        return pattern_of(node.left) + pattern_of(node.right)
    return ".*"


def main(simulator):
    outcomes = lived(simulator)
    found = verdict(outcomes)
    wrong = [f"the day itself breaks a rule: {found}"] if found else []
    broken = set()
    for number, forge in enumerate(FORGERIES, start=1):
        forged = copy.deepcopy(outcomes)
        forge(forged)
        broken.add(verdict(forged))
        if verdict(forged) is None:
            wrong.append(f"forgery {number} is not found")
    for rule in rules():
        if not any(re.fullmatch(rule, each) for each in broken if each):
            wrong.append(f"no forgery breaks the rule: {rule}")
    print("\n".join(wrong), file=sys.stderr)
    print(f"{len(FORGERIES)} forgeries, {len(wrong)} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
