"""What the program tells of its breaks on standard output in the fast cycle."""

import re
from collections import Counter

LINE = re.compile(r"^\[Kestrelfen\] \d\d:\d\d:\d\d (.*)$", re.MULTILINE)
KINDS = {
    "break complete": re.compile(r"break complete \(today: \d+\)"),
    "break skipped": re.compile(r"break skipped \(today: \d+ skipped\)"),
    "put off": re.compile(r"(snoozed|postponed) .* \(today: \d+"),
    "next break skipped": re.compile(r"next break skipped \(today: \d+\)"),
    "break begun": re.compile(r"(long )?break [^→]* → ends "),
    "paused": re.compile(r"paused \(\w+, "),
}
STATE = re.compile(r"work |resumed |snoozed |postponed |pre-break warning |(long )?break [^→]* → ends |paused \(")
OUTCOMES = {"break complete": "completed", "break skipped": "skipped"}


def lines_of(output):
    return LINE.findall(output)


def tally(output):
    """How often each kind was told."""
    return Counter(kind for line in lines_of(output) for kind, pattern in KINDS.items() if pattern.match(line))


def state(output):
    """The last line that says what the engine does."""
    return next((line for line in reversed(lines_of(output)) if STATE.match(line)), "")


def recorded(program):
    """The rows of each outcome, under the names of what was told."""
    rows = dict(program.rows("SELECT outcomeRawValue, count(*) FROM BreakRecord GROUP BY outcomeRawValue"))
    return {kind: rows.pop(outcome, 0) for kind, outcome in OUTCOMES.items()} | rows


def counted(program):
    """What the days say of themselves."""
    [(completed, skipped)] = program.rows("SELECT sum(breaksCompleted), sum(breaksSkipped) FROM DayRecord")
    return {"break complete": completed or 0, "break skipped": skipped or 0}
