"""A sound server with a null sink and a null source, and programs that play and record for real."""

import os
import signal
from pathlib import Path

from scaffold.waiting import until


class Sound:
    """Programs find it by the desktop's environment."""

    def __init__(self, desktop):
        self._desktop = desktop
        folder = Path(desktop.make_folder("sound"))
        self._socket = folder / "socket"
        desktop.environment |= {"PULSE_SERVER": f"unix:{self._socket}", "PULSE_COOKIE": str(folder / "cookie"),
                                "PULSE_RUNTIME_PATH": str(folder / "runtime"),
                                "PULSE_STATE_PATH": str(folder / "state")}
        self.start()

    def start(self):
        self._socket.unlink(missing_ok=True)
        self._server = self._desktop.processes.start(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--log-level=error",
             "-L", "module-null-sink sink_name=speakers", "-L", "module-null-source source_name=microphone",
             "-L", f"module-native-protocol-unix auth-anonymous=1 socket={self._socket}"],
            env=self._desktop.environment)
        until(self._socket.exists, "the sound server")

    def kill(self):
        os.kill(self._server.pid, signal.SIGKILL)
        self._desktop.processes.end(self._server)

    def _client(self, program, *options):
        return self._desktop.processes.start(
            [program, "--raw", *options, "/dev/zero" if program == "pacat" else "/dev/null"],
            env=self._desktop.environment)

    def play(self, application):
        """A program of that application id plays silence, which is playing all the same."""
        return self._client("pacat", f"--property=application.id={application}", "--device=speakers")

    def record(self, application):
        return self._client("parec", f"--property=application.id={application}", "--device=microphone")

    def stop(self, process):
        self._desktop.processes.end(process)
