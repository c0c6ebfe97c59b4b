"""The rules that hold for everything that the simulator shows of the history, whatever happened before."""

from timer_rules import hold, moment

TINY = 1e-3


def total(rows, key):
    return sum(row[key] for row in rows)


class HistoryJudge:
    """Follows one run, command by command: what the store may hold, and how much time has passed."""

    def __init__(self):
        self.broken = self.failing = False
        self.has_store = False
        # Whether all that was counted since the launch must have reached the store.
        self.exact = False
        self.now = moment("2026-03-09T08:00:00Z").timestamp()
        self.passed = 0.0

    def judge(self, command, shows):
        words = command.split()
        self.follow(words)
        if "tracker" not in shows:
            return
        hold(shows["tracker"]["todayActiveSeconds"] <= self.passed + TINY, "no second is counted that did not pass")
        if self.failing or not self.has_store:
            for what in ("days", "history", "app-totals", "site-totals", "tasks"):
                hold(not shows[what].get("rows", shows[what].get("days")), "what cannot be read is empty: " + what)
            return
        self.judge_sums(shows)
        self.judge_tasks(shows)
        if self.exact:
            self.judge_today(shows)

    def follow(self, words):
        if words[0] == "store":
            self.broken = words[1] == "broken" if words[1] in ("broken", "ok") else self.broken
            self.failing = words[1] == "failing" if words[1] in ("failing", "working") else self.failing
        if words[0] == "launch":
            self.has_store = not self.broken
            self.exact = self.has_store and not self.failing
        if self.failing or words[0] == "delete-all-history":
            self.exact = False
        self.move(words)

    def move(self, words):
        before = self.now
        if words[0] == "clock":
            self.now = moment(words[1]).timestamp()
        elif words[0] == "sleep":
            self.now += float(words[1])
        elif words[0] == "run":
            step = float(words[2]) if len(words) > 2 else 1.0
            self.now += round(float(words[1]) * 1e6) // round(step * 1e6) * step
        self.passed += max(self.now - before, 0.0)

    def judge_sums(self, shows):
        days, rows = shows["days"]["days"], shows["history"]["rows"]
        kinds = {kind: [row for row in rows if row["kind"] == kind] for kind in ("completed", "skipped", "paused")}
        hold(total(days, "breaksCompleted") == len(kinds["completed"]), "each completed break has its row")
        hold(total(days, "breaksSkipped") == len(kinds["skipped"]), "each skipped break has its row")
        longs = [row for row in kinds["completed"] if row["isLong"]]
        hold(total(days, "longBreaksCompleted") == len(longs), "long breaks are counted from the rows")
        paused = total(kinds["paused"], "seconds")
        hold(abs(total(days, "pausedSeconds") - paused) < TINY, "the paused seconds are those of the pauses")
        apps, sites = (total(shows[what]["rows"], "activeSeconds") for what in ("app-totals", "site-totals"))
        active = total(days, "activeSeconds")
        hold(active <= self.passed + TINY, "no second is stored that did not pass")
        hold(apps <= active + TINY, "the applications' seconds are the days' too")
        hold(sites <= apps + TINY, "the websites' seconds are the browsers' too")
        starts = [day["startOfDay"] for day in days]
        hold(starts == sorted(set(starts), reverse=True), "one row for a day, the newest first")
        begun = [row["startedAt"] for row in rows]
        hold(begun == sorted(begun, reverse=True), "the history has the newest first")

    def judge_tasks(self, shows):
        rows = shows["tasks"]["rows"]
        opened = [row for row in rows if row["completedAt"] is None]
        done = [row["completedAt"] for row in rows if row["completedAt"] is not None]
        hold(rows[:len(opened)] == opened, "the open tasks come first")
        indices = [row["sortIndex"] for row in opened]
        hold(indices == sorted(set(indices)), "the open tasks stand in their order")
        hold(done == sorted(done, reverse=True), "the task that was finished last stands first")
        active = [row["title"] for row in rows if row["active"]]
        hold(len(active) <= 1, "one task at most is active")
        hold(not any(row["active"] and row["completedAt"] for row in rows), "a finished task is not active")
        title = shows["engine"]["activeTaskTitle"]
        hold(title is None or [title] == active, "the engine knows the active task")

    def judge_today(self, shows):
        day, engine, tracker = shows["day"], shows["engine"], shows["tracker"]
        if not day["startOfDay"] == engine["dayStart"] == tracker["dayStart"]:
            return
        hold(day["breaksCompleted"] == engine["breaksCompletedToday"], "the engine's completed breaks are the day's")
        hold(day["breaksSkipped"] == engine["breaksSkippedToday"], "the engine's skipped breaks are the day's")
        counted = day["activeSeconds"] + total(tracker["pending"], "seconds")
        hold(abs(tracker["todayActiveSeconds"] - counted) < TINY, "the tracker's seconds are the day's and the pending")
