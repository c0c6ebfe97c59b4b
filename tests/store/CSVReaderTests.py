#!/usr/bin/python3
"""That another program's reader of comma-separated text finds in an export what went into it.

usage: CSVReaderTests.py WRITER     WRITER is the program that records titles and exports them
"""

import csv
import io
import random
import subprocess
import sys
import unittest

WRITER = sys.argv.pop(1)
HEADER = ["started_at", "type", "duration_seconds", "task", "displays"]


def exported(titles):
    """The rows of an export of breaks with these titles, the first title first."""
    text = subprocess.run(
        [WRITER], input=b"".join(title.encode() + b"\0" for title in titles), stdout=subprocess.PIPE, check=True
    ).stdout.decode()
    csv.field_size_limit(1_000_000)
    header, *rows = csv.reader(io.StringIO(text, newline=""), strict=True)
    assert header == HEADER, header
    return rows[::-1]


class Reading(unittest.TestCase):
    def check(self, titles):
        rows = exported(titles)
        self.assertEqual([row[3] for row in rows], titles)
        for second, row in enumerate(rows):
            time = f"2026-03-09T{second // 3600:02}:{second // 60 % 60:02}:{second % 60:02}Z"
            self.assertEqual(row[:3] + row[4:], [time, "Completed", "20", "1"])

    def test_titles_that_need_care(self):
        self.check([
            "Write, then read",
            'Read "it"',
            '"',
            '""',
            '","',
            "two\nlines",
            "two\r\nlines",
            "a\rb",
            "\n",
            ",",
            "kestrel \N{EAGLE} and \N{FAMILY}",
            "\N{REGIONAL INDICATOR SYMBOL LETTER N}\N{REGIONAL INDICATOR SYMBOL LETTER Z}",
            "Paused \N{MIDDLE DOT} idle",
            "semicolon; tab\t; apostrophe '",
            " blanks at both ends ",
            "=1+1",
            "x" * 10_000,
            'a"b,\n\r\N{EAGLE}' * 1_250,
        ])

    def test_random_titles(self):
        source = random.Random(3)
        letters = 'ab ,"\n\r\t\N{EAGLE}\N{MIDDLE DOT}'
        self.check(["".join(source.choices(letters, k=source.randrange(1, 30))) for _ in range(300)])

    def test_no_history(self):
        self.assertEqual(exported([]), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
