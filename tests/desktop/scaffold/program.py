"""The program under test."""

import json
import os
import signal
import sqlite3
import subprocess
import tempfile
from pathlib import Path

from scaffold.waiting import until

BINARY = os.environ.get("KESTRELFEN", "")

#: Beneath whatever a test chooses.
BASIS = {"hasCompletedOnboarding": True, "dailySummaryEnabled": False}

#: Breaks that come soon, and nothing that pauses them.
QUICK = {"idleMode": "off", "enforcementLevel": "casual", "workIntervalSeconds": 2.0,
         "preBreakWarningLeadSeconds": 0.5, "breakDurationSeconds": 20.0}


class Program:
    """One run, with preferences and folders of its own, or those in `home`, that of an earlier run. A variable of
    `environment` that is None is left out. `wrapper` is a command that becomes the program at last, with its own
    process number; `binary` is another executable than KESTRELFEN's."""

    def __init__(self, desktop, preferences, environment=None, home=None, wrapper=(),
                 binary=BINARY):
        if not os.access(binary, os.X_OK):
            raise AssertionError("KESTRELFEN does not name the program to test")
        self._desktop = desktop
        self._binary = binary
        folder = home or Path(tempfile.mkdtemp(prefix="run-", dir=desktop.folder))
        self.home = folder
        self.store_file = folder / "data" / "kestrelfen" / "Kestrelfen.sqlite"
        self.preference_file = folder / "config" / "kestrelfen" / "preferences.json"
        self.write_preferences(preferences)
        folders = {"XDG_CONFIG_HOME": str(folder / "config"), "XDG_DATA_HOME": str(folder / "data")}
        chosen = desktop.environment | folders | (environment or {})
        self._environment = {key: value for key, value in chosen.items() if value is not None}
        self._log_file = folder / "standard-error"
        self._output_file = folder / "standard-output"
        with open(self._log_file, "wb") as log, open(self._output_file, "wb") as output:
            self._process = desktop.processes.start([*wrapper, binary], env=self._environment, stdout=output, stderr=log)
        self.pid = self._process.pid

    def write_preferences(self, preferences):
        """By hand: text as it is, anything else as JSON. Unless it says otherwise, the welcome of the first run is over,
        and no summary of the day is posted, which would depend on the hour of the test."""
        self.preference_file.parent.mkdir(parents=True, exist_ok=True)
        text = preferences if isinstance(preferences, str) else json.dumps(
            BASIS | preferences, indent=2)
        self.preference_file.write_text(text, encoding="utf-8")

    @property
    def preferences(self):
        return json.loads(self.preference_file.read_text(encoding="utf-8"))

    @property
    def log(self):
        return self._log_file.read_text(encoding="utf-8")

    @property
    def output(self):
        return self._output_file.read_text(encoding="utf-8")

    def rows(self, question, **values):
        """What the history's file answers, read beside the program."""
        connection = sqlite3.connect(f"file:{self.store_file}?mode=ro", uri=True, timeout=5)
        try:
            return connection.execute(question, values).fetchall()
        finally:
            connection.close()

    def count(self, text):
        return self.log.count(text)

    def logs(self, text, times=1, seconds=20.0):
        """Waits until the log has that text as often as that."""
        try:
            until(lambda: self.count(text) >= times or self._process.poll() is not None, text, seconds)
        except AssertionError:
            pass
        if self.count(text) < times:
            raise AssertionError(f"not logged {times} times: {text!r}\nthe log is:\n{self.log}")

    def second_start(self):
        """Starts it again beside this run; its exit status and what it prints."""
        answer = subprocess.run([self._binary], env=self._environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                text=True, timeout=20, check=False)
        return answer.returncode, answer.stdout

    def signal(self, number):
        os.kill(self.pid, number)

    def exit_status(self, seconds):
        """Waits for its end."""
        try:
            return self._process.wait(seconds)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"it did not end within {seconds:g} s; its log is:\n{self.log}") from None

    def is_running(self):
        return self._process.poll() is None

    def end(self):
        if self.is_running():
            self.signal(signal.SIGTERM)
        self._desktop.processes.end(self._process)
