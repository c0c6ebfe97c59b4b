"""All services of a desktop, each of which may go and come back."""

from scaffold.login_manager import LoginManager
from scaffold.panel import Panel
from scaffold.portal import Portal
from scaffold.session_bus import Service
from scaffold.sound import Sound
from scaffold.waiting import until


class Services:
    """Until they end with their desktop."""

    def __init__(self, desktop):
        self._desktop = desktop
        #: The names of those that were away at some time.
        self.were_away = set()
        self.panel = Panel(desktop)
        self._sound = Sound(desktop)
        self._login = LoginManager(desktop)
        self._portal = Portal(desktop)
        self._start_notifications()
        self._start_tray()
        self.restarts = {
            "notifications": self._restart_notifications, "tray": self._restart_tray, "panel": self._restart_panel,
            "sound": self._restart_sound, "login manager": self._restart_login, "portal": self._restart_portal,
            "window manager": desktop.restart_window_manager}

    def _start_notifications(self):
        self._notifications = Service(self._desktop, "notification_recorder.py")
        until(lambda: self._notifications.told, "the notification daemon")

    def _start_tray(self):
        self._tray = Service(self._desktop, "tray_host.py")
        until(lambda: {"event": "ready"} in self._tray.told, "the tray")

    def restart(self, name, meanwhile):
        """What happens meanwhile, happens without that service."""
        self.were_away.add(name)
        self.restarts[name](meanwhile)

    def _restart_notifications(self, meanwhile):
        self._notifications.end()
        meanwhile()
        self._start_notifications()

    def _restart_tray(self, meanwhile):
        self._tray.end()
        meanwhile()
        self._start_tray()

    def _restart_panel(self, meanwhile):
        self.panel.end()
        meanwhile()
        self.panel = Panel(self._desktop)

    def _restart_sound(self, meanwhile):
        self._sound.kill()
        meanwhile()
        self._sound.start()

    def _restart_login(self, meanwhile):
        self._login.stop()
        meanwhile()
        self._login.start()

    def _restart_portal(self, meanwhile):
        self._portal.end()
        meanwhile()
        self._portal = Portal(self._desktop)

    def play_for(self, application, meanwhile):
        player = self._sound.play(application)
        meanwhile()
        self._sound.stop(player)

    def wait_for_item(self):
        until(lambda: any(told.get("event") == "registered" for told in self._tray.told), "the item in the tray")

    def activate_item(self, method):
        """The answer comes in its own time; it is an error where the program does not answer."""
        if any(told.get("event") == "registered" for told in self._tray.told):
            self._tray.say(do="call", method=method, arguments=[1800, 12])

    def refusals(self):
        return [told for told in self._tray.told if "error" in told]

    def color_scheme(self, value):
        self._portal.color_scheme(value)

    def close(self):
        self._portal.end()
        self._login.close()
