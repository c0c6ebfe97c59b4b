"""The rules of the seconds: none is credited twice, none to the day after it, and none that no tick saw pass."""

import datetime
from zoneinfo import ZoneInfo

from timer_rules import hold, moment

UTC = datetime.timezone.utc
EPOCH = datetime.datetime(1970, 1, 1, tzinfo=UTC)
#: A longer gap between two ticks is dropped as a whole.
LONGEST_GAP = 5_000_000
MICROSECOND = datetime.timedelta(microseconds=1)
TINY = 1e-3


def instant(date):
    return (date - EPOCH) // MICROSECOND


def start_of_day(date, zone):
    """The first instant of a local date: midnight, or what stands in its place."""
    before = datetime.datetime.combine(date, datetime.time(), zone).astimezone(UTC) - datetime.timedelta(hours=3)
    low, high = 0, 6 * 3600
    while low < high:
        middle = (low + high) // 2
        if (before + datetime.timedelta(seconds=middle)).astimezone(zone).date() >= date:
            high = middle
        else:
            low = middle + 1
    return instant(before) + low * 1_000_000


def end_of_day(start, zones):
    """Where the day that begins at `start` ends, in whichever of the zones it ends last."""
    ends = [start]
    for zone in map(ZoneInfo, zones):
        local = (EPOCH + start * MICROSECOND).astimezone(zone).date()
        if start_of_day(local, zone) == start:
            ends.append(start_of_day(local + datetime.timedelta(days=1), zone))
    return max(ends)


class Gaps:
    """What lay between one tick and the next, where it may be credited: evenly spaced in each row."""

    def __init__(self):
        self.rows = []

    def add(self, start, step, count):
        if 0 < step <= LONGEST_GAP:
            self.rows.append((start, step, count))

    def seconds(self, start, end):
        """Of the gaps that begin within the two: the tick that finds a new day still ends a gap of the old one."""
        total = 0
        for first, step, count in self.rows:
            lowest = max(0, -((first - start) // step))
            highest = min(count, -((first - end) // step))
            total += max(0, highest - lowest) * step
        return total / 1e6


class SecondsJudge:
    """Follows one run, command by command: the ticks that there were, and the zones of their days."""

    def __init__(self):
        self.now = self.mark = instant(moment("2026-03-09T08:00:00Z"))
        self.zones = ["UTC"]
        self.gaps = Gaps()
        self.credited = None

    def judge(self, command, shows):
        known = len(self.gaps.rows)
        words = command.split()
        self.follow(words)
        if words[0] in ("launch", "quit", "kill", "delete-all-history", "store"):
            self.credited = None
        if "tracker" in shows:
            self.judge_days(shows)
            self.judge_growth(shows, sum(step * count for _, step, count in self.gaps.rows[known:]) / 1e6)

    def follow(self, words):
        if words[0] == "zone":
            self.zones.append(words[1])
        elif words[0] == "clock":
            self.now = instant(moment(words[1]))
        elif words[0] == "sleep":
            self.now += round(float(words[1]) * 1e6)
        elif words[0] == "tick":
            self.tick(0, 1)
        elif words[0] == "run":
            step = round(float(words[2]) * 1e6) if len(words) > 2 else 1_000_000
            self.tick(step, round(float(words[1]) * 1e6) // step)

    def tick(self, step, count):
        if count:
            self.gaps.add(self.mark, self.now + step - self.mark, 1)
            self.gaps.add(self.now + step, step, count - 1)
            self.now += step * count
            self.mark = self.now

    def judge_days(self, shows):
        tracker, days = shows["tracker"], shows["days"]["days"]
        for day in [*days, {"startOfDay": tracker["dayStart"], "activeSeconds": tracker["todayActiveSeconds"]}]:
            start = instant(moment(day["startOfDay"]))
            passed = self.gaps.seconds(start, end_of_day(start, self.zones))
            hold(day["activeSeconds"] <= passed + TINY, "a day is credited its own seconds alone")

    def judge_growth(self, shows, passed):
        """What is stored and what waits for it grow together by no more than the time of the command."""
        pending = sum(row["seconds"] for row in shows["tracker"]["pending"])
        credited = sum(day["activeSeconds"] for day in shows["days"]["days"]) + pending
        before, self.credited = self.credited, credited
        hold(before is None or credited <= before + passed + TINY, "no second is credited twice")
