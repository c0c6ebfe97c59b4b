"""The .deb that cpack makes."""

import gzip
import shutil
import tempfile
import unittest
from pathlib import Path

from installed import BUILD, CMAKE, FILES, MANUAL, VERSION, files_below, run

TOOLS = ("dpkg-deb", "dpkg-shlibdeps")
CHANGES = "share/doc/kestrelfen/changelog.gz"


@unittest.skipUnless(all(shutil.which(tool) for tool in TOOLS), f"needs {' and '.join(TOOLS)}")
class DebianPackageTests(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(prefix="kestrelfen-deb-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        run(Path(CMAKE).with_name("cpack"), "--config", BUILD / "CPackConfig.cmake", "-G", "DEB", "-B", cls.folder)
        packages = list(cls.folder.glob("*.deb"))
        assert len(packages) == 1, packages
        cls.package = packages[0]
        cls.unpacked = cls.folder / "unpacked"
        run("dpkg-deb", "--extract", cls.package, cls.unpacked)

    def field(self, name):
        return run("dpkg-deb", "--field", self.package, name).strip()

    def test_it_is_named_after_its_version_and_machine(self):
        architecture = run("dpkg", "--print-architecture").strip()
        self.assertEqual(self.package.name, f"kestrelfen_{VERSION}_{architecture}.deb")
        self.assertEqual((self.field("Package"), self.field("Version"), self.field("Architecture")),
                         ("kestrelfen", VERSION, architecture))

    def test_it_holds_an_installation_with_compressed_documents(self):
        expected = FILES - {MANUAL} | {f"{MANUAL}.gz", CHANGES}
        self.assertEqual(files_below(self.unpacked), {f"usr/{name}" for name in expected})

    def test_it_needs_what_the_program_is_linked_against_and_what_it_loads(self):
        needed = {line.split()[0] for line in self.field("Depends").split(", ")}
        for package in ("libqt6quick6", "libqt6dbus6", "libpulse0", "libsqlite3-0", "libwayland-client0", "libxcb1",
                        "qml6-module-qtquick", "fonts-inter", "fonts-jetbrains-mono", "tzdata"):
            self.assertIn(package, needed)
        self.assertEqual({name for name in needed if name.endswith("-dev")}, set())

    def test_no_script_of_its_own_runs(self):
        control = self.folder / "control"
        run("dpkg-deb", "--control", self.package, control)
        self.assertEqual(files_below(control), {"control", "md5sums"})

    def test_changes_begin_with_this_version(self):
        with gzip.open(self.unpacked / "usr" / CHANGES, "rt", encoding="utf-8") as changes:
            self.assertTrue(changes.readline().startswith(f"kestrelfen ({VERSION}) "))

    def test_maintainer_and_section_are_named(self):
        self.assertEqual(self.field("Maintainer"), "Kestrelfen developers <developers@kestrelfen.invalid>")
        self.assertEqual(self.field("Section"), "utils")
        self.assertGreater(int(self.field("Installed-Size")), 1000)


if __name__ == "__main__":
    unittest.main()
