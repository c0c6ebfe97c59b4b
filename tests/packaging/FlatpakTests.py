"""What the sandbox is allowed is what the program asks for, no less and no more."""

import json
import re
import shutil
import tempfile
import unittest

from installed import IDENTIFIER, SOURCES, run

MANIFEST = SOURCES / "packaging" / "flatpak" / f"{IDENTIFIER}.yml"
BUS_NAME = re.compile(r'"(org\.(?:a11y|cinnamon|freedesktop|gnome|kde|mate|xfce)\.[\w.]+)"')

#: Interfaces, groups of settings and objects on connections that are spoken to by other names.
NO_SERVICES = {"org.a11y.Status", "org.a11y.atspi.Accessible", "org.a11y.atspi.Collection", "org.a11y.atspi.Document",
               "org.a11y.atspi.Registry", "org.freedesktop.Application", "org.freedesktop.DBus.Error.AccessDenied",
               "org.freedesktop.DBus.Local", "org.freedesktop.DBus.Properties", "org.freedesktop.appearance",
               "org.freedesktop.login1.Manager", "org.freedesktop.login1.Session", "org.gnome.desktop.a11y.interface",
               "org.gnome.desktop.interface", "org.kde.StatusNotifierItem", "org.kde.kdeglobals.KDE"}

#: Open to every sandbox.
ALWAYS_ALLOWED = {"org.freedesktop.DBus"}
PORTALS = "org.freedesktop.portal."

#: A permission would not help: a sandbox is given an accessibility bus with nobody else on it.
NEVER_ALLOWED = {"org.a11y.Bus"}

SYSTEM_SERVICES = {"org.freedesktop.login1"}


def names_in_the_sources():
    text = "\n".join(path.read_text(encoding="utf-8") for path in (SOURCES / "src" / "platform" / "linux").glob("*.?pp"))
    return set(BUS_NAME.findall(text))


class FlatpakTests(unittest.TestCase):
    def setUp(self):
        self.text = MANIFEST.read_text(encoding="utf-8")

    def allowed(self, permission):
        return set(re.findall(rf"^  - --{permission}=(\S+)$", self.text, re.MULTILINE))

    def test_exactly_the_services_that_the_program_speaks_to_are_allowed(self):
        spoken_to = {name for name in names_in_the_sources() if not name.startswith(PORTALS)}
        spoken_to -= NO_SERVICES | ALWAYS_ALLOWED | NEVER_ALLOWED
        self.assertEqual(self.allowed("talk-name"), spoken_to - SYSTEM_SERVICES)
        self.assertEqual(self.allowed("system-talk-name"), SYSTEM_SERVICES)

    def test_lists_of_exceptions_hold_nothing_that_has_gone(self):
        self.assertEqual((NO_SERVICES | ALWAYS_ALLOWED | NEVER_ALLOWED | SYSTEM_SERVICES) - names_in_the_sources(), set())

    def test_nothing_else_is_allowed(self):
        self.assertEqual(self.allowed("socket"), {"x11", "wayland", "pulseaudio"})
        self.assertEqual(self.allowed("share"), {"ipc"})
        kinds = set(re.findall(r"^  - --([\w-]+)=", self.text, re.MULTILINE))
        self.assertEqual(kinds, {"socket", "share", "talk-name", "system-talk-name"})

    def test_options_of_the_build_are_options_of_the_project(self):
        project = (SOURCES / "CMakeLists.txt").read_text(encoding="utf-8")
        options = re.findall(r"-D(KESTRELFEN_\w+)=", self.text)
        self.assertNotEqual(options, [])
        for option in options:
            self.assertIn(f"option({option} ", project)

    @unittest.skipUnless(shutil.which("flatpak-builder"), "needs flatpak-builder")
    def test_manifest_is_understood(self):
        folder = tempfile.mkdtemp(prefix="kestrelfen-flatpak-")
        self.addCleanup(shutil.rmtree, folder)
        manifest = json.loads(run("flatpak-builder", "--show-manifest", MANIFEST, cwd=folder))
        self.assertEqual((manifest["id"], manifest["command"]), (IDENTIFIER, "kestrelfen"))
        self.assertEqual(manifest["modules"][-1]["name"], "kestrelfen")


if __name__ == "__main__":
    unittest.main()
