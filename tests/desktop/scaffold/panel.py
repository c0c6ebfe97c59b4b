"""A panel with a tray of the older kind, which takes the windows of programs in."""

from pathlib import Path

from scaffold.waiting import until

CONFIGURATION = """
rounded = 0
border_width = 0
background_color = #c00000 100
border_color = #c00000 100
panel_items = S
panel_monitor = 1
panel_position = bottom right horizontal
panel_size = 200 40
panel_margin = 0 0
panel_padding = 4 4 4
panel_background_id = 1
panel_dock = 0
panel_layer = top
strut_policy = follow_size
systray_padding = 4 4 4
systray_background_id = 0
systray_icon_size = 24
systray_monitor = 1
"""


class Panel:
    """tint2 at the bottom right of the left monitor, in a red that nothing else has."""

    COLOR = bytes((0xc0, 0, 0))

    def __init__(self, desktop):
        self._desktop = desktop
        configuration = Path(desktop.folder) / "tint2rc"
        configuration.write_text(CONFIGURATION, encoding="utf-8")
        self._process = desktop.processes.start(["tint2", "-c", str(configuration)], env=desktop.environment)
        self.window = until(self._find, "the panel")

    def _find(self):
        return next((window for window in self._desktop.windows.named("tint2") if window.y > 900), None)

    def icon(self):
        """The window of the program's item, once the panel has taken it in."""
        return next((window for window in self._desktop.windows.named("Kestrelfen")
                     if not window.is_top and window.width < 100 and window.y > 900), None)

    def end(self):
        self._desktop.processes.end(self._process)
