"""How the unchanged program is compiled and its tests are linked and run."""

import json
import os
import re
import resource
import shlex
import shutil
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
SWITCH = os.path.join(os.path.dirname(os.path.realpath(__file__)), "Switch")

QUICK_TESTS = 40
LONGEST_FILTER = 100_000
MEMORY_LIMIT = 4 << 30


def run_quietly(command, folder, **how):
    return subprocess.run(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, check=False, **how).returncode


class Build:
    """A build folder with Ninja."""

    def __init__(self, folder, targets, jobs):
        self.folder = os.path.abspath(folder)
        if not os.path.exists(os.path.join(self.folder, "build.ninja")):
            self._run("cmake", "-S", ROOT, "-B", self.folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                      "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DKESTRELFEN_DESKTOP=OFF", "-DKESTRELFEN_BENCH=OFF",
                      *(["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold"] if shutil.which("mold") else []))
        self._run("ninja", "--quiet", "-j", str(jobs), "-C", self.folder, *targets)
        with open(os.path.join(self.folder, "compile_commands.json"), encoding="utf-8") as stream:
            self._commands = {os.path.relpath(each["file"], ROOT): shlex.split(each["command"])
                              for each in json.load(stream)}

    def _run(self, *command):
        if subprocess.run(command, stdin=subprocess.DEVNULL, stdout=sys.stderr, check=False).returncode:
            sys.exit(f"{command[0]} failed")

    def compile(self, unit, changed, result):
        """What the compiler complains of. The files in the folder `changed` stand in for the project's own.

        The library's assertions make it certain that to read what is not there is noticed.
        """
        model = unit if unit in self._commands else self._neighbour(unit)
        words = [word for word in self._commands[model] if os.path.basename(word) != "ccache"]
        copy = os.path.join(changed, unit)
        source = copy if os.path.exists(copy) else os.path.join(ROOT, unit)
        command = words[:1] + ["-I" + os.path.join(changed, "src")] + words[1:words.index("-o")] + \
            ["-w", "-g0", "-D_GLIBCXX_ASSERTIONS", "-include", SWITCH + ".hpp", *_how_to_compile(source), "-o", result]
        done = subprocess.run(command, cwd=self.folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              stderr=subprocess.PIPE, check=False, text=True, errors="replace")
        return (done.stderr or "failed") if done.returncode else ""

    def compile_switch(self, result):
        compiler = next(word for word in next(iter(self._commands.values())) if os.path.basename(word) != "ccache")
        if run_quietly([compiler, "-std=c++20", "-O1", "-c", SWITCH + ".cpp", "-o", result], self.folder):
            sys.exit("the switch does not compile")

    def link_command(self, target):
        """Without the program's name."""
        lines = subprocess.run(["ninja", "-C", self.folder, "-t", "commands", target], text=True, check=True,
                               stdout=subprocess.PIPE).stdout.splitlines()
        words = [word for word in shlex.split(lines[-1]) if word not in (":", "&&")]
        place = words.index("-o")
        return words[:place] + words[place + 2:]

    def units_with(self, path):
        """What must be compiled when `path` changes: itself, and what includes it in its room."""
        return [path] + sorted(unit for unit in self._commands
                               if os.path.dirname(unit) == os.path.dirname(path) and path in self._included(unit))

    def _neighbour(self, header):
        return next(unit for unit in self._commands if os.path.dirname(unit) == os.path.dirname(header))

    def _included(self, path, seen=None):
        seen = set() if seen is None else seen
        with open(os.path.join(ROOT, path), encoding="utf-8") as stream:
            for name in re.findall(r'^#include "([^"]+)"', stream.read(), re.MULTILINE):
                header = os.path.join("src", name)
                if header not in seen and os.path.exists(os.path.join(ROOT, header)):
                    seen.add(header)
                    self._included(header, seen)
        return seen


def _limit(seconds):
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def _how_to_compile(source):
    """A header is compiled too: what no source of its room calls, the tests may."""
    return ["-c", source] if source.endswith(".cpp") else ["-fkeep-inline-functions", "-x", "c++", "-c", source]


class TestProgram:
    """One program of tests: which of them reach a mutant, and how long each takes."""

    def __init__(self, build, target):
        self._build = build
        self._link = build.link_command(target)
        self._took = {}
        self._reaching = {}

    def link(self, objects, program):
        place = next(index for index, word in enumerate(self._link) if word.endswith(".o"))
        return not run_quietly(self._link[:place] + objects + self._link[place:] + ["-o", program], self._build.folder)

    def measure(self, program, folder):
        """False where a test fails."""
        times, reached = os.path.join(folder, "times.json"), os.path.join(folder, "reached")
        done = subprocess.run([program, f"--gtest_output=json:{times}", "--gtest_brief=1"], cwd=folder, check=False,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              env=_environment(folder, REACHED=reached))
        if done.returncode:
            sys.stderr.buffer.write(done.stdout)
            return False
        with open(times, encoding="utf-8") as stream:
            suites = json.load(stream)["testsuites"]
        self._took = {f"{suite['name']}.{test['name']}": float(test["time"].rstrip("s"))
                      for suite in suites for test in suite["testsuite"]}
        with open(reached, encoding="utf-8") as stream:
            for test, *numbers in map(str.split, stream):
                for number in numbers:
                    self._reaching.setdefault(int(number), []).append(test)
        return True

    def reaches(self, number):
        return number in self._reaching

    def notices(self, program, folder, number=None):
        """Whether a test fails, crashes or does not end. First the tests that reach the mutant of this number."""
        tests = sorted(self._reaching.get(number, []), key=self._took.get)
        parts = [tests[:QUICK_TESTS], tests[QUICK_TESTS:]]
        filters = [(":".join(part), part) for part in parts if part]
        filters = [each for each in filters if len(each[0]) < LONGEST_FILTER] + [("*", list(self._took))]
        return any(self._fails(program, folder, number, *each) for each in filters)

    def _fails(self, program, folder, number, tests, names):
        allowed = int(5 + 5 * sum(self._took[name] for name in names))
        command = [program, "--gtest_fail_fast", "--gtest_brief=1", f"--gtest_filter={tests}"]
        try:
            return run_quietly(command, folder, env=_environment(folder, MUTANT=str(number)), timeout=10 * allowed,
                               preexec_fn=lambda: _limit(allowed)) != 0
        except subprocess.TimeoutExpired:
            return True


def _environment(folder, **more):
    return {**os.environ, "TMPDIR": folder, "QT_QPA_PLATFORM": "offscreen", **more}
