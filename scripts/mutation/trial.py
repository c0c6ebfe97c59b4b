"""Trying the mutants of some files. Most are compiled together, each with a switch of its own; what cannot stand with
a switch, as a constant, or is not noticed so, is compiled alone."""

import os
import re
import sys
import tempfile

from build import ROOT, TestProgram
from mutants import with_switches

ATTEMPTS = 8


class Trial:
    def __init__(self, build, mutants, targets, folder):
        self._build = build
        self._mutants = dict(enumerate(mutants))
        self._folder = folder
        self._programs = [TestProgram(build, target) for target in targets]
        self._texts = {path: _text(os.path.join(ROOT, path)) for path in {each.path for each in mutants}}
        self._switched = dict(self._mutants)
        self._switch = os.path.join(folder, "switch.o")

    def prepare(self):
        """Builds the tests with all switches, and measures them with every switch off."""
        self._build.compile_switch(self._switch)
        objects = self._compile_switched()
        for index, program in enumerate(self._programs):
            if not program.link(objects + [self._switch], self._path_of(index)):
                sys.exit("the tests with switches do not link")
            if not program.measure(self._path_of(index), self._folder):
                sys.exit("the tests fail on the unchanged code")

    def outcome(self, number):
        """ "killed", "survived" or "uncompiled"."""
        with tempfile.TemporaryDirectory(dir=self._folder) as folder:
            if number in self._switched and any(program.notices(self._path_of(index), folder, number)
                                                for index, program in enumerate(self._programs)
                                                if program.reaches(number)):
                return "killed"
            if self._is_sure(number):
                return "survived"
            return self._outcome_alone(self._mutants[number], folder)

    def _is_sure(self, number):
        """A switch is blind to what the compiler evaluates; a statement is never that where a test reaches it."""
        return number in self._switched and self._mutants[number].form == "statement" and \
            any(program.reaches(number) for program in self._programs)

    def _path_of(self, index):
        return os.path.join(self._folder, f"tests{index}")

    def _outcome_alone(self, mutant, folder):
        text = self._texts[mutant.path]
        _write(os.path.join(folder, mutant.path), text[:mutant.start] + mutant.replacement + text[mutant.end:])
        objects = []
        for unit in self._build.units_with(mutant.path):
            objects.append(os.path.join(folder, f"{len(objects)}.o"))
            if self._build.compile(unit, folder, objects[-1]):
                return "uncompiled"
        for program in self._programs:
            if not program.link(objects + [self._switch], os.path.join(folder, "tests")):
                return "uncompiled"
            if program.notices(os.path.join(folder, "tests"), folder):
                return "killed"
        return "survived"

    def _compile_switched(self):
        units = sorted({unit for path in self._texts for unit in self._build.units_with(path)})
        done = {}
        for _ in range(ATTEMPTS):
            for path in self._texts:
                self._write_switched(path, done)
            complaints = ""
            for unit in units:
                if unit not in done:
                    result = os.path.join(self._folder, unit.replace("/", "_") + ".o")
                    complaint = self._build.compile(unit, self._folder, result)
                    complaints += complaint
                    done.update({} if complaint else {unit: result})
            if not complaints:
                return list(done.values())
            self._give_up_switches(complaints)
        sys.exit("the code with switches does not compile:\n" + complaints)

    def _write_switched(self, path, done):
        mutants = {number: each for number, each in self._switched.items() if each.path == path}
        copy, text = os.path.join(self._folder, path), with_switches(self._texts[path], mutants)
        if not os.path.exists(copy) or _text(copy) != text:
            _write(copy, text)
            for unit in self._build.units_with(path):
                done.pop(unit, None)

    def _give_up_switches(self, complaints):
        """On the lines that do not compile."""
        lines = {}
        for path, line in re.findall(re.escape(self._folder) + r"/(src/[^:\s]+):(\d+)", complaints):
            lines.setdefault(path, set()).add(int(line))
        for number, mutant in list(self._switched.items()):
            last = mutant.line + self._texts[mutant.path].count("\n", mutant.start, mutant.last)
            if lines.get(mutant.path, set()).intersection(range(mutant.line, last + 1)):
                del self._switched[number]


def _text(path):
    with open(path, encoding="utf-8") as stream:
        return stream.read()


def _write(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as stream:
        stream.write(text)
