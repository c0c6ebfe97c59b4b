"""`cmake --install` and the target `uninstall`, in a folder of the test's own."""

import configparser
import os
import shutil
import stat
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

from installed import (BUILD, CMAKE, ENTRY, FILES, ICONS, IDENTIFIER, MANUAL, METAINFO, PROGRAM, VERSION, files_below,
                       folders_below, png_size, run)

PREFIX = "/opt/eye breaks"
NOWHERE = {"PATH": os.environ["PATH"]}


class Installation(unittest.TestCase):
    """The build folder's note of what was installed belongs to the person: it is put back."""

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="kestrelfen-install-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.environment = os.environ | {"DESTDIR": str(self.folder)}
        self.manifest = BUILD / "install_manifest.txt"
        self.addCleanup(self.put_manifest_back, self.manifest.read_bytes() if self.manifest.exists() else None)
        run(CMAKE, "--install", BUILD, "--strip", "--prefix", PREFIX, env=self.environment)
        self.prefix = Path(f"{self.folder}{PREFIX}")

    def put_manifest_back(self, content):
        self.manifest.unlink(missing_ok=True)
        if content is not None:
            self.manifest.write_bytes(content)

    def require(self, tool):
        if not shutil.which(tool):
            self.skipTest(f"{tool} is not installed")

    def entry(self):
        parser = configparser.RawConfigParser(interpolation=None, delimiters="=")
        parser.optionxform = str
        parser.read(self.prefix / ENTRY, encoding="utf-8")
        return dict(parser["Desktop Entry"])


class InstallTests(Installation):
    def test_exactly_these_files_are_put_in_place(self):
        self.assertEqual(files_below(self.folder), {f"{PREFIX[1:]}/{name}" for name in FILES})

    def test_nothing_starts_the_program_by_itself(self):
        told = [name for name in files_below(self.folder) if "autostart" in name or "systemd" in name]
        self.assertEqual(told, [])

    def test_everybody_may_read_them_and_only_the_program_runs(self):
        for name in FILES:
            mode = stat.S_IMODE((self.prefix / name).stat().st_mode)
            self.assertEqual(oct(mode), oct(0o755 if name == PROGRAM else 0o644), name)

    def test_program_is_stripped_and_needs_no_build_folder(self):
        sections = run("readelf", "--sections", "--dynamic", "--wide", self.prefix / PROGRAM)
        self.assertNotIn(".symtab", sections)
        self.assertNotIn("RUNPATH", sections)
        self.assertNotIn("RPATH", sections)

    def test_program_tells_its_version_and_its_usage_without_a_display(self):
        told = run(self.prefix / PROGRAM, "--version", env=NOWHERE)
        self.assertRegex(told, rf"^Kestrelfen {VERSION} \(build \d+\)\n$")
        self.assertIn("Usage: kestrelfen", run(self.prefix / PROGRAM, "--help", env=NOWHERE))

    def test_usage_that_cannot_be_written_is_a_failure(self):
        with open("/dev/full", "w", encoding="utf-8") as full:
            answer = subprocess.run([self.prefix / PROGRAM, "--help"], env=NOWHERE, stdout=full, check=False)
        self.assertEqual(answer.returncode, 1)

    def test_program_without_a_display_says_so(self):
        answer = subprocess.run([self.prefix / PROGRAM], env=NOWHERE, stderr=subprocess.PIPE, text=True, check=False,
                                timeout=60)
        self.assertEqual(answer.returncode, 1)
        self.assertIn("DISPLAY is not set", answer.stderr)

    def test_entry_names_the_program_and_its_icon(self):
        entry = self.entry()
        self.assertEqual((entry["Exec"], entry["TryExec"]), ("kestrelfen", "kestrelfen"))
        self.assertEqual(entry["Icon"], IDENTIFIER)
        self.assertEqual(entry["Terminal"], "false")

    def test_entry_is_valid(self):
        self.require("desktop-file-validate")
        self.assertEqual(run("desktop-file-validate", self.prefix / ENTRY), "")

    def test_metainfo_is_valid(self):
        self.require("appstreamcli")
        self.assertIn("successful", run("appstreamcli", "validate", "--no-net", self.prefix / METAINFO))

    def test_metainfo_speaks_of_this_release_and_of_the_entry(self):
        metainfo = xml.parse(self.prefix / METAINFO).getroot()
        self.assertEqual(metainfo.find("releases/release").get("version"), VERSION)
        self.assertEqual(metainfo.findtext("id"), IDENTIFIER)
        self.assertEqual(metainfo.findtext("launchable"), Path(ENTRY).name)
        self.assertEqual(metainfo.findtext("summary"), self.entry()["Comment"])
        self.assertEqual(metainfo.findtext("provides/binary"), Path(PROGRAM).name)

    def test_icons_have_the_size_of_their_folder(self):
        for size in (48, 256):
            self.assertEqual(png_size(self.prefix / ICONS / f"{size}x{size}/apps/{IDENTIFIER}.png"), (size, size))

    def test_symbolic_icon_has_fills_only(self):
        icon = xml.parse(self.prefix / ICONS / f"symbolic/apps/{IDENTIFIER}-symbolic.svg").getroot()
        drawn = [shape for shape in icon.iter() if shape is not icon]
        self.assertEqual({shape.tag.rpartition("}")[2] for shape in drawn}, {"path"})
        self.assertEqual({name for shape in drawn for name in shape.keys()}, {"fill", "d"})

    def test_manual_is_without_faults_and_names_every_option(self):
        self.require("man")
        page = self.prefix / MANUAL
        told = subprocess.run(["man", "--warnings", "--local-file", page], stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, text=True, check=True, env=os.environ | {"MANWIDTH": "80"})
        self.assertIn("NAME\n       kestrelfen - ", told.stdout)
        self.assertEqual(told.stderr, "")
        text = page.read_text(encoding="utf-8").replace("\\-", "-")
        for option in ("-h", "--help", "-v", "--version"):
            self.assertIn(option, text)


class UninstallTests(Installation):
    def uninstall(self):
        return subprocess.run([CMAKE, "--build", BUILD, "--target", "uninstall"], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, timeout=120)

    def test_no_file_and_no_folder_of_its_own_stays(self):
        answer = self.uninstall()
        self.assertEqual(answer.returncode, 0, answer.stdout)
        self.assertEqual(files_below(self.folder), set())
        self.assertEqual(folders_below(self.prefix), {"bin", "share", "share/man"})

    def test_what_others_have_put_there_stays(self):
        others = [self.prefix / "share/applications/other.desktop", self.prefix / "bin/other",
                  self.prefix / "share/man/man1/.other"]
        for file in others:
            file.touch()
        self.uninstall()
        self.assertEqual(files_below(self.prefix), {str(file.relative_to(self.prefix)) for file in others})

    def test_what_has_gone_already_is_no_fault(self):
        (self.prefix / ENTRY).unlink()
        self.assertEqual(self.uninstall().returncode, 0)
        self.assertEqual(files_below(self.folder), set())

    def test_a_second_time_it_says_that_there_is_nothing(self):
        self.uninstall()
        answer = self.uninstall()
        self.assertNotEqual(answer.returncode, 0)
        self.assertIn("Nothing was installed", answer.stdout)


if __name__ == "__main__":
    unittest.main()
