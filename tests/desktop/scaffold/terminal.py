"""A terminal that writes down each character that it is sent, an Escape as well."""

from pathlib import Path

from scaffold.waiting import until


class Terminal:
    def __init__(self, desktop, name="terminal", *options):
        self._desktop = desktop
        self._record = Path(desktop.folder) / f"{name}.typed"
        self._record.unlink(missing_ok=True)
        self._process = desktop.processes.start(
            ["xterm", "-T", name, "-geometry", "60x12+200+500", *options, "-e", "sh", "-c",
             'stty raw -echo; exec cat > "$0"', str(self._record)], env=desktop.environment)
        self.window = until(lambda: desktop.windows.find(name), "the terminal's window")
        until(self._record.exists, "the terminal's recorder")
        self.take_focus()

    @property
    def typed(self):
        return self._record.read_text(encoding="utf-8")

    def take_focus(self):
        self._desktop.hands.activate(self.window)
        until(self.has_focus, "the terminal has the focus")

    def has_focus(self):
        windows = self._desktop.windows
        return windows.active() == self.window and windows.focused() == self.window

    def receives(self, text):
        until(lambda: self.typed.endswith(text), f"the terminal is sent {text!r}, it has {self.typed!r}")

    def end(self):
        self._desktop.processes.end(self._process)
