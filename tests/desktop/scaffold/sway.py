"""A Wayland desktop of its own: a compositor with two displays that nobody sees, a session bus, and no X server."""

import json
import os
import re
import shutil
import subprocess
import tempfile
from pathlib import Path

from scaffold.accessibility import Accessibility
from scaffold.desktop import ACCESSIBILITY_LAUNCHERS, KEPT_VARIABLES
from scaffold.pictures import Picture
from scaffold.processes import Processes
from scaffold.session_bus import start_session_bus
from scaffold.waiting import until
from scaffold.wayland_hands import WaylandHands

NOBODY = 65534
WIDTH, HEIGHT = 1280, 800
LEFT, RIGHT = "HEADLESS-1", "HEADLESS-2"

PLAIN = "xwayland disable\ndefault_border none\n"
CONFIGURATION = PLAIN + f"""
output {LEFT} mode {WIDTH}x{HEIGHT} position 0 0
output {RIGHT} mode {WIDTH}x{HEIGHT} position {WIDTH} 0
workspace left output {LEFT}
workspace right output {RIGHT}
"""

WITHOUT_HARDWARE = {"WLR_BACKENDS": "headless", "WLR_HEADLESS_OUTPUTS": "2", "WLR_RENDERER": "pixman",
                    "WLR_LIBINPUT_NO_DEVICES": "1"}
WITHIN_ANOTHER = {"WLR_BACKENDS": "wayland", "WLR_WL_OUTPUTS": "2", "WLR_RENDERER": "pixman"}


def as_anybody():
    """The compositor refuses the superuser."""
    if os.geteuid() != 0:
        return []
    return ["setpriv", "--pdeathsig=TERM", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]


class Sway:
    """Everything ends with `end`, which fails if a process is left behind."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="kestrelfen-sway-")
        self.processes = Processes()
        self.environment = self._first_environment()
        self.hands = None
        try:
            self._start()
        except BaseException:
            self.end()
            raise

    def _first_environment(self):
        environment = {key: os.environ[key] for key in KEPT_VARIABLES if key in os.environ}
        for variable, name in (("HOME", "home"), ("XDG_DATA_HOME", "data"), ("XDG_CONFIG_HOME", "config")):
            environment[variable] = self.make_folder(name)
        return environment | {"LC_ALL": "C.UTF-8", "TZ": "UTC", "GSETTINGS_BACKEND": "memory",
                              "XDG_SESSION_TYPE": "wayland"}

    def make_folder(self, name):
        path = Path(self.folder) / name
        path.mkdir(mode=0o700)
        return str(path)

    def _start(self):
        run = Path(self.make_folder("run"))
        if os.geteuid() == 0:
            os.chmod(self.folder, 0o711)
            os.chown(run, NOBODY, NOBODY)
        self.environment["XDG_RUNTIME_DIR"] = str(run)
        self._start_compositor("commands", CONFIGURATION, WITHOUT_HARDWARE)
        self.command("workspace left")
        self.hands = WaylandHands(self.environment["WAYLAND_DISPLAY"], 2 * WIDTH, HEIGHT)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = start_session_bus(self.processes, self.folder)

    def _start_compositor(self, name, text, variables):
        run = Path(self.environment["XDG_RUNTIME_DIR"])
        configuration = run / f"{name}.conf"
        configuration.write_text(text, encoding="utf-8")
        os.chmod(configuration, 0o644)
        self.environment["SWAYSOCK"] = str(run / name)
        before = set(run.glob("wayland-?"))
        self.processes.start([*as_anybody(), "sway", "-c", str(configuration)], env=self.environment | variables)
        until((run / name).exists, "sway")
        made = until(lambda: set(run.glob("wayland-?")) - before, "the compositor's socket")
        until(lambda: self.ask("-t", "get_version"), "the compositor's answer")
        self.environment["WAYLAND_DISPLAY"] = str(made.pop())

    def nest(self):
        """From now on all is done on another compositor, whose displays are windows of the first: only such can go.
        What it answers lets one of its displays go."""
        outer = dict(self.environment)
        self._start_compositor("inner-commands", PLAIN, WITHIN_ANOTHER)
        until(lambda: len(self.outputs()) == 2, "both displays")

        def unplug(output):
            subprocess.run(["swaymsg", f'[title=".*{output}$"] kill'], env=outer, check=True, timeout=20,
                           stdout=subprocess.DEVNULL)
        return unplug

    def start_accessibility(self):
        launcher = next(path for path in ACCESSIBILITY_LAUNCHERS if os.path.exists(path))
        self.processes.start([launcher, "--launch-immediately"], env=self.environment)
        self.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        owner = ["dbus-send", f"--bus={self.environment['DBUS_SESSION_BUS_ADDRESS']}", "--print-reply",
                 "--dest=org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetNameOwner", "string:org.a11y.Bus"]
        until(lambda: subprocess.run(owner, env=self.environment, capture_output=True, check=False).returncode == 0,
              "the accessibility bus")
        return Accessibility(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def ask(self, *words):
        answer = subprocess.run(["swaymsg", "--raw", *words], env=self.environment, capture_output=True, check=False,
                                timeout=20)
        return json.loads(answer.stdout or "null")

    def command(self, *words):
        answers = self.ask("-t", "command", *words)
        if not answers or not all(answer["success"] for answer in answers):
            raise AssertionError(f"{words}: {answers}")

    def outputs(self):
        """The names of the displays that are on."""
        return [output["name"] for output in self.ask("-t", "get_outputs") if output["active"]]

    def shoot(self, output):
        """The physical pixels of one display."""
        shot = subprocess.run(["grim", "-t", "ppm", "-o", output, "-"], env=self.environment, stdout=subprocess.PIPE,
                              check=True, timeout=60).stdout
        header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", shot)
        return Picture(int(header[1]), int(header[2]), shot[header.end():])

    def end(self):
        try:
            if self.hands:
                self.hands.end()
            self.processes.end_all()
        finally:
            shutil.rmtree(self.folder, ignore_errors=True)
