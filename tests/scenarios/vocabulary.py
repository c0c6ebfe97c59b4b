"""Every word of the scenario language is used by a scenario that would end otherwise were the word broken.

    vocabulary.py SIMULATOR WORDS FOLDER

WORDS prints every form that a line can have; FOLDER holds the scenarios, and in its folder "shown" those whose whole
output is written at their top. A command counts as used by a scenario that ends otherwise without the lines that have
it; a reading, by an expectation of something other than null for each of its keys; an event, by one such expectation.
"""

import json
import subprocess
import sys
from pathlib import Path

EXPECTING = ("expect", "expect-event")
#: What no command of the language can set.
ALWAYS_NULL = ("rows.0.dueOn",)


def words_of(line):
    """The words of a line that is well formed."""
    words, rest = [], line.strip(" \t\n")
    if rest.startswith("#"):
        return words
    while rest:
        if rest.startswith('"'):
            end = 1
            while rest[end] != '"':
                end += 2 if rest[end] == "\\" else 1
            words.append(rest[1:end].replace('\\"', '"').replace("\\n", "\n").replace("\\\\", "\\"))
            rest = rest[end + 1:]
        else:
            word = rest.split(maxsplit=1)[0]
            words.append(word)
            rest = rest[len(word):]
        rest = rest.lstrip(" \t")
    return words


def has_form(words, form):
    """Whether a line's words begin with that form; a star stands for any word."""
    return len(words) >= len(form) and all(wanted in ("*", word) for word, wanted in zip(words, form))


class Scenario:
    """One scenario, and how it ends."""

    def __init__(self, simulator, path, tells):
        self.simulator = simulator
        self.tells = tells
        self.lines = path.read_text(encoding="utf-8").splitlines()
        self.words = [words_of(line) for line in self.lines]
        self.end = self.end_of(self.lines)

    def end_of(self, lines):
        run = subprocess.run([self.simulator], input="\n".join(lines) + "\n", capture_output=True, encoding="utf-8",
                             timeout=60, check=False)
        return (run.returncode, run.stdout) if self.tells else run.returncode

    def depends_on(self, form):
        places = {place for place, words in enumerate(self.words) if has_form(words, form)}
        if not places:
            return False
        return self.end_of(["" if place in places else line for place, line in enumerate(self.lines)]) != self.end


def keys_within(value, path):
    """The paths of all keys, with a star for the numbers of a list."""
    if isinstance(value, list):
        return set().union(*(keys_within(each, path + ".*") for each in value))
    if isinstance(value, dict):
        return set().union(*(keys_within(each, f"{path}.{key}") for key, each in value.items()))
    return {path}


def readings_shown(scenarios):
    """Each reading's keys, as the scenarios print them."""
    keys = {}
    for scenario in scenarios:
        if scenario.tells:
            for line in scenario.end[1].splitlines():
                shown = json.loads(line)
                name = shown.pop("show", None)
                # The keys of the preferences are the user's own.
                shown = {"values": 0} if name == "prefs" else shown
                for key, value in shown.items() if name else ():
                    keys.setdefault(name, set()).update(keys_within(value, key))
    return keys


def path_fits(path, key):
    """Whether an expectation of `path` is one of that key, or of the whole that holds it."""
    parts, wanted = path.split("."), key.split(".")
    return all(word == part or (word == "*" and part.isdigit()) for part, word in zip(parts, wanted))


def uncovered(forms, scenarios):
    lines = [words for scenario in scenarios for words in scenario.words if words]
    held = [words for words in lines if words[0] in EXPECTING and (words[-1] != "null" or words[-2] in ALWAYS_NULL)]
    for form in forms:
        if form[0] in EXPECTING:
            if not any(has_form(words, form) for words in held):
                yield "nothing expects " + " ".join(form)
        elif not any(scenario.depends_on(form) for scenario in scenarios):
            yield "no scenario depends on " + " ".join(form)
    shown = readings_shown(scenarios)
    for name in sorted({form[1] for form in forms if form[0] == "show"}):
        for key in sorted(shown.get(name, ["anything"])):
            if not any(words[1] == name and path_fits(words[-2], key) for words in held):
                yield f"nothing expects {key} of {name}"


def self_test():
    """Says what the rules above would miss; nothing, as long as they can fail."""
    if words_of('pref a  "b \\"c\\\\" # ') != ["pref", "a", 'b "c\\', "#"] or words_of(" # a") != []:
        yield "the words of a line are not told"
    if has_form(["do", "pause"], ["do", "resume"]) or not has_form(["step", "a", "up"], ["step", "*", "up"]):
        yield "forms are not told apart"
    if keys_within([{"a": [1], "b": 2}], "rows") != {"rows.*.a.*", "rows.*.b"}:
        yield "keys are not found"
    if path_fits("rows.0.a", "rows.*.b") or not path_fits("rows.0.b", "rows.*.b") or not path_fits("rows", "rows.*.b"):
        yield "paths are not told apart"
    if len(list(uncovered([["sing"], ["show", "song"], ["expect", "song"]], []))) != 4:
        yield "what is not covered is not found"


def main(simulator, words, folder):
    listed = subprocess.run([words], capture_output=True, encoding="utf-8", check=True).stdout.splitlines()
    forms = [words_of(line) for line in listed]
    scenarios = [Scenario(simulator, path, tells) for tells, pattern in ((False, "*.scn"), (True, "shown/*.scn"))
                 for path in sorted(Path(folder).glob(pattern))]
    missing = list(self_test()) + list(uncovered(forms, scenarios))
    if len(forms) < 2 or not scenarios:
        missing.append("there is nothing to compare")
    print("\n".join(missing), file=sys.stderr)
    print(f"{len(forms)} forms, {len(scenarios)} scenarios, {len(missing)} missing")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
