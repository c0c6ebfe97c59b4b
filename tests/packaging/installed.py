"""What an installation consists of, whoever makes it."""

import os
import struct
import subprocess
from pathlib import Path

SOURCES = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ["BUILD_FOLDER"])
VERSION = os.environ["VERSION"]
CMAKE = os.environ["CMAKE"]

IDENTIFIER = "app.kestrelfen.Kestrelfen"
ICONS = "share/icons/hicolor"
PROGRAM = "bin/kestrelfen"
ENTRY = f"share/applications/{IDENTIFIER}.desktop"
METAINFO = f"share/metainfo/{IDENTIFIER}.metainfo.xml"
MANUAL = "share/man/man1/kestrelfen.1"
COPYRIGHT = "share/doc/kestrelfen/copyright"

CATALOGUES = {f"share/locale/{language}/LC_MESSAGES/kestrelfen.mo"
              for language in (SOURCES / "po" / "LINGUAS").read_text(encoding="utf-8").split()}

FILES = CATALOGUES | {PROGRAM, ENTRY, METAINFO, MANUAL, COPYRIGHT,
         f"{ICONS}/scalable/apps/{IDENTIFIER}.svg", f"{ICONS}/symbolic/apps/{IDENTIFIER}-symbolic.svg",
         f"{ICONS}/48x48/apps/{IDENTIFIER}.png", f"{ICONS}/256x256/apps/{IDENTIFIER}.png"}


def files_below(folder):
    return {str(path.relative_to(folder)) for path in Path(folder).rglob("*") if not path.is_dir()}


def folders_below(folder):
    return {str(path.relative_to(folder)) for path in Path(folder).rglob("*") if path.is_dir()}


def run(*command, **options):
    return subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          timeout=120, check=True, **options).stdout


def png_size(file):
    return struct.unpack(">II", Path(file).read_bytes()[16:24])
