"""The rules that hold for everything that the simulator shows of the timer, whatever happened before."""

import datetime
import math

SYMBOLS = {"working": "eye", "preBreakWarning": "eye.trianglebadge.exclamationmark", "onBreak": "eye.slash",
           "paused": "pause.circle", "idle": "eye"}


class Broken(Exception):
    """A rule that does not hold."""


def hold(condition, rule):
    if not condition:
        raise Broken(rule)


def moment(text):
    return datetime.datetime.fromisoformat(text.replace("Z", "+00:00"))


def clock_text(seconds):
    total = math.ceil(seconds)
    return f"{min(total // 60, 99):02}:{total % 60:02}"


def left_until(date, now):
    return max((moment(date) - moment(now)).total_seconds(), 0.0)


class Judge:
    """Follows one run, command by command."""

    def __init__(self, limits):
        self.limits = limits
        self.displays = 1
        self.windows = 0
        self.card = False
        # Whether the windows of a break may be missing, because there was no display to put one on.
        self.excused = False

    def judge(self, command, events, shows):
        words = command.split()
        if words[0] == "displays":
            self.displays = int(words[1])
        self.excused = self.excused or self.displays == 0
        for event in events:
            if event.get("event") == "windows":
                self.follow_windows(event)
        if words[0] in ("kill", "quit"):
            hold(words[0] == "kill" or not (self.windows or self.card), "quitting leaves no window")
            self.windows, self.card, self.excused = 0, False, self.displays == 0
        if "engine" in shows:
            self.judge_engine(shows["engine"], shows["prefs"]["values"])
            self.judge_views(shows)

    def follow_windows(self, event):
        call, count = event["call"], event["count"]
        if call in ("showWarning", "hideWarning"):
            hold(self.card == (call == "hideWarning"), "one card at most comes and goes")
            self.card = call == "showWarning"
            return
        hold((self.windows > 0) == (call == "tearDownBreakWindows"), "windows come and go in turn")
        hold(count == (self.displays if call == "buildBreakWindows" else 0), "one window for each display")
        self.windows = count

    def judge_engine(self, engine, values):
        state = engine["state"]
        hold(state in SYMBOLS, "a known state")
        hold((engine["endsAt"] is not None) == (state in ("working", "onBreak")), "only two states end")
        hold((engine["reason"] is not None) == (state == "paused"), "only a pause has a reason")
        if state == "working":
            hold(engine["nextBreakAt"] == engine["endsAt"], "work ends at the next break")
        if state == "onBreak":
            hold(engine["nextBreakAt"] is None, "no next break is known in a break")
        if state == "preBreakWarning":
            hold(engine["nextBreakAt"] is not None, "a warning warns of a break")
        self.judge_lengths(engine)
        self.judge_gates(engine)
        self.judge_quotas(engine, values)

    def judge_lengths(self, engine):
        state, now = engine["state"], engine["now"]
        for key in ("breaksCompletedToday", "breaksSkippedToday", "currentPhaseTotal", "snoozesOnCurrentBreak",
                    "timeUntilNextBreak", "breakRemaining"):
            hold(engine[key] >= 0, key + " is not negative")
        hold(0 <= engine["phaseProgress"] <= 1, "progress lies within 0 and 1")
        every = abs(engine["config"]["longBreakEvery"])
        hold(1 <= engine["cyclePosition"] <= every, "the position lies within the cycle")
        hold(engine["isNextBreakLong"] == (engine["cyclePosition"] == every), "the last of a cycle is long")
        if state in ("working", "preBreakWarning"):
            left = left_until(engine["nextBreakAt"], now)
            hold(abs(engine["timeUntilNextBreak"] - left) < 0.0021, "the time left is a difference of dates")
        if state == "onBreak":
            left = left_until(engine["endsAt"], now)
            hold(abs(engine["breakRemaining"] - left) < 0.0021, "the rest of a break is a difference of dates")
        shown = max(engine["timeUntilNextBreak"], engine["breakRemaining"])
        hold(engine["menuBarText"] == ("--:--" if state == "idle" else clock_text(shown)), "the text is the time left")

    def judge_gates(self, engine):
        state = engine["state"]
        coming, breaking = state in ("working", "preBreakWarning"), state == "onBreak"
        hold(coming or not engine["canPostpone"], "a postpone needs a break that comes")
        hold(coming or not engine["canSkipNextBreak"], "an advance skip needs a break that comes")
        hold(breaking or state == "preBreakWarning" or not engine["canSnooze"], "a snooze needs a break at hand")
        hold(breaking or not engine["canSkipCurrentBreak"], "a skip needs a break")
        hold(breaking or not engine["canEndBreakEarly"], "an early end needs a break")

    def judge_quotas(self, engine, values):
        limit = self.limits["snoozesPerBreak"]
        hold(limit < 0 or engine["snoozesOnCurrentBreak"] <= limit, "the quota of a break is kept")
        for key in ("snoozesPerDay", "advanceSkipsPerDay"):
            used = values.get(key + ".count", 0)
            hold(used >= 0, "a counter is not negative")
            hold(self.limits[key] < 0 or used <= self.limits[key], f"the quota {key} is kept")

    def judge_views(self, shows):
        state, overlay, warning = shows["engine"]["state"], shows["overlay"], shows["warning"]
        hold(overlay["visible"] == (overlay["count"] > 0), "an overlay that is up has windows")
        hold(overlay["count"] == self.windows, "the events tell of every window")
        hold(warning["visible"] == self.card, "the events tell of the card")
        hold(not warning["visible"] or state == "preBreakWarning", "the card belongs to the warning")
        hold(not overlay["visible"] or state == "onBreak", "the overlay belongs to the break")
        hold(overlay["count"] in (0, self.displays), "the overlay covers every display")
        if state != "onBreak":
            self.excused = self.displays == 0
        hold(overlay["visible"] or state != "onBreak" or self.excused, "a break covers the displays")
        for view in (overlay, warning):
            keys = set(view) - {"show", "visible", "count"}
            hold(view["visible"] or all(view[key] is None for key in keys), "a view that is not up shows nothing")
        status = shows["status-item"]
        hold(status["symbol"] == SYMBOLS[state], "the symbol stands for the state")
        hold(status["text"] == shows["engine"]["menuBarText"], "the status item shows the time left")
