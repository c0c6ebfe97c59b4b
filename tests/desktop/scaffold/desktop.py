"""A desktop of its own: a display with two monitors, a window manager and a session bus."""

import os
import shutil
import subprocess
import tempfile
from pathlib import Path

from scaffold.accessibility import Accessibility
from scaffold.hands import Hands
from scaffold.pictures import shoot
from scaffold.processes import Processes
from scaffold.session_bus import start_session_bus
from scaffold.waiting import until
from scaffold.windows import Windows

WIDTH, HEIGHT = 1920, 1080
LEFT = (0, 0, WIDTH, HEIGHT)
RIGHT = (WIDTH, 0, WIDTH, HEIGHT)

ACCESSIBILITY_LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi-bus-launcher",
                           "/usr/lib/at-spi2-core/at-spi-bus-launcher")
KEPT_VARIABLES = ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")


class Desktop:
    """Everything ends with `end`, which fails if a process is left behind."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="kestrelfen-desktop-")
        self.processes = Processes()
        self.environment = self._first_environment()
        self._is_right_plugged = False
        self.windows = Windows(self.environment)
        self.hands = Hands(self.environment)
        try:
            self._start()
        except BaseException:
            self.end()
            raise

    def _first_environment(self):
        environment = {key: os.environ[key] for key in KEPT_VARIABLES if key in os.environ}
        for variable, name in (("HOME", "home"), ("XDG_RUNTIME_DIR", "run"), ("XDG_DATA_HOME", "data"),
                               ("XDG_CONFIG_HOME", "config")):
            environment[variable] = self.make_folder(name)
        return environment | {"LC_ALL": "C.UTF-8", "TZ": "UTC", "GSETTINGS_BACKEND": "memory"}

    def make_folder(self, name):
        path = Path(self.folder) / name
        path.mkdir(mode=0o700)
        return str(path)

    def _start(self):
        self.environment["DISPLAY"] = self._start_server()
        self.run("xrandr", "--setmonitor", "L", f"{WIDTH}/508x{HEIGHT}/286+0+0", "screen")
        self.plug_right()
        self._start_window_manager()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = start_session_bus(self.processes, self.folder)

    def _start_window_manager(self):
        self._window_manager = self.processes.start(["openbox", "--sm-disable"], env=self.environment)
        until(lambda: "window id" in self.windows.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "openbox")

    def restart_window_manager(self, meanwhile=lambda: None):
        self.processes.end(self._window_manager)
        meanwhile()
        self._start_window_manager()

    def _start_server(self):
        reader, writer = os.pipe()
        self.processes.start(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{2 * WIDTH}x{HEIGHT}x24", "-noreset", "-nolisten",
             "tcp"], env=self.environment, pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader, encoding="ascii") as stream:
            number = stream.readline().strip()
        if not number:
            raise AssertionError("Xvfb did not start")
        return f":{number}"

    def run(self, *command):
        subprocess.run(command, env=self.environment, check=True, timeout=60, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)

    def plug_right(self):
        """Does nothing where it is plugged."""
        if self._is_right_plugged:
            return
        self._is_right_plugged = True
        self.run("xrandr", "--setmonitor", "R", f"{WIDTH}/508x{HEIGHT}/286+{WIDTH}+0", "none")

    def unplug_right(self):
        """Does nothing where it is not plugged."""
        if not self._is_right_plugged:
            return
        self._is_right_plugged = False
        self.run("xrandr", "--delmonitor", "R")

    def start_accessibility(self):
        launcher = next(path for path in ACCESSIBILITY_LAUNCHERS if os.path.exists(path))
        self.processes.start([launcher, "--launch-immediately"], env=self.environment)
        self.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        owner = ["dbus-send", f"--bus={self.environment['DBUS_SESSION_BUS_ADDRESS']}", "--print-reply",
                 "--dest=org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetNameOwner", "string:org.a11y.Bus"]
        until(lambda: self.windows.run(*owner), "the accessibility bus")
        return Accessibility(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def shoot(self, frame):
        return shoot(self.environment, frame)

    def end(self):
        try:
            self.processes.end_all()
        finally:
            shutil.rmtree(self.folder, ignore_errors=True)
