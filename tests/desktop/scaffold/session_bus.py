"""A session bus without any service of its own, and helpers that speak on it."""

import json
import subprocess
import sys
from pathlib import Path

CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir={folder}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

HELPERS = Path(__file__).resolve().parents[2] / "platform" / "linux"


def start_session_bus(processes, folder):
    """The address of the bus."""
    configuration = Path(folder) / "bus.conf"
    configuration.write_text(CONFIGURATION.format(folder=folder), encoding="utf-8")
    process = processes.start(["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address"],
                              stdout=subprocess.PIPE, text=True)
    address = process.stdout.readline().strip()
    if not address:
        raise AssertionError("dbus-daemon did not start")
    return address


class Service:
    """A helper on the session bus that tells what it is asked in lines of JSON."""

    def __init__(self, desktop, script):
        self._processes = desktop.processes
        self._told = Path(desktop.folder) / f"{script}.told"
        with open(self._told, "w", encoding="utf-8") as output:
            self._process = desktop.processes.start([sys.executable, "-B", str(HELPERS / script)],
                                                    env=desktop.environment, stdin=subprocess.PIPE, stdout=output,
                                                    text=True)

    @property
    def told(self):
        """Every whole line until now."""
        text = self._told.read_text(encoding="utf-8")
        return [json.loads(line) for line in text[:text.rfind("\n") + 1].splitlines()]

    def say(self, **command):
        self._process.stdin.write(json.dumps(command) + "\n")
        self._process.stdin.flush()

    def end(self):
        self._processes.end(self._process)
