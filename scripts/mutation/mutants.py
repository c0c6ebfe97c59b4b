"""The mutants of a C++ source file: each is one small change at one place, alone or switched on at run time.

What is taken for code and is none does not compile, and is not counted.
"""

import re
from collections import namedtuple

from structure import Structure

# Of the text from `start` to `end`. `form` is how a switch can stand around the text from `first` to `last`.
Mutant = namedtuple("Mutant", "path line column start end replacement change form first last")

_COMPARISONS = {"<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"], "==": ["!="], "!=": ["=="]}
_BINARY = {**_COMPARISONS, "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"],
           "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="]}
_UNARY = {"++": "--", "--": "++", "!": ""}
_WORDS = {"true": "false", "false": "true"}
_LOGS = {"log", "log_", "logTransition", "Logger"}


class Source:
    """One file, and the places in it that can be changed."""

    def __init__(self, path, text):
        self.path = path
        self._text = text
        self._structure = Structure(text)
        self._tokens = self._structure.tokens
        self._skipped = set()
        self._mutants = []

    def mutants(self):
        calls = self._statements()
        self._skip_assertions()
        for first, last in calls:
            self._change(first, last, ";", "dropped", "statement")
        for index, token in enumerate(self._tokens):
            self._change_token(index, token)
        self._negate_conditions()
        return sorted(set(self._mutants), key=lambda mutant: (mutant.start, mutant.change))

    def _change(self, first, last, replacement, change, form="value", around=None):
        """Of the tokens `first` to `last`; `around` are the first and last token of the expression that it changes."""
        if self._skipped.intersection(range(first, last + 1)):
            return
        outer = around or (first, last)
        start, end = self._tokens[first].start, self._tokens[last].end
        was = " ".join(self._text[start:end].split())
        self._mutants.append(Mutant(
            self.path, self._text.count("\n", 0, start) + 1, start - self._text.rfind("\n", 0, start),
            start, end, replacement,
            f"{was}  {change}" if change in ("dropped", "negated") else f"{was}  ->  {change}",
            form, self._tokens[outer[0]].start, self._tokens[outer[1]].end))

    def _change_token(self, index, token):
        if token.kind == "number":
            self._change(index, index, _successor(token.text), _successor(token.text))
        elif token.kind == "name" and token.text in _WORDS:
            self._change(index, index, _WORDS[token.text], _WORDS[token.text])
        elif token.kind == "mark" and token.spaced and not self._joins_texts(index):
            for other in _BINARY.get(token.text, []):
                self._change(index, index, other, other, around=self._structure.operation(index))
        elif token.kind == "mark" and token.text in _UNARY:
            other = _UNARY[token.text]
            form = "value" if other else "condition"
            self._change(index, index, other, other or "nothing", form, self._structure.operand(index))

    def _joins_texts(self, index):
        neighbours = self._tokens[index - 1:index] + self._tokens[index + 1:index + 2]
        return self._tokens[index].text == "+" and any(token.kind == "text" for token in neighbours)

    def _statements(self):
        """Each call and each assignment that is a statement; those that log are skipped for every mutant."""
        found = []
        for index in range(1, len(self._tokens)):
            if self._structure.inner[index] != "code" or not self._structure.begins_statement(index):
                continue
            end = self._structure.end_of_statement(index)
            if end is None:
                continue
            if self._structure.names(index, end) & _LOGS:
                self._skipped.update(range(index, end + 1))
            else:
                found.append((index, end))
        return found

    def _skip_assertions(self):
        for index, token in enumerate(self._tokens):
            if token.text == "static_assert":
                self._skipped.update(range(index, self._structure.partner[index + 1] + 1))

    def _negate_conditions(self):
        for index, token in enumerate(self._tokens):
            if token.text in ("if", "while") and self._tokens[index + 1].text == "(":
                self._negate(self._structure.after_initializer(index + 2), self._structure.partner[index + 1] - 1)
            elif token.text == "?" and token.kind == "mark":
                self._negate(self._structure.start_of_condition(index), index - 1)
        for first, last in self._structure.bodies_of_bool():
            for index in range(first, last):
                if self._tokens[index].text == "return" and self._tokens[index + 1].text != ";":
                    self._negate(index + 1, self._structure.semicolon_after(index) - 1)

    def _negate(self, first, last):
        """Unless that is what the change of one token does too."""
        outside = self._structure.outside_brackets(first, last)
        texts = [token.text for token in outside]
        if "=" in texts or texts in (["true"], ["false"]):
            return
        comparisons = [token for token in outside if token.text in _COMPARISONS and token.spaced]
        if not {"&&", "||", "?"} & set(texts) and (texts[0] == "!" or len(comparisons) == 1):
            return
        was = self._text[self._tokens[first].start:self._tokens[last].end]
        self._change(first, last, f"!({was})", "negated", "condition")


def _successor(number):
    plain = number.replace("'", "")
    if re.fullmatch(r"\d+", plain):
        return str(int(plain) + 1)
    if re.fullmatch(r"\d+\.\d*", plain):
        return repr(float(plain) + 1)
    return f"({number} + 1)"


def mutants_of(path, text):
    return Source(path, text).mutants()


def _switch(mutant, number, text):
    """What stands before and after the changed text."""
    if mutant.form == "statement":
        return f"if (mutation::on({number})) ; else ", ""
    changed = text[mutant.first:mutant.start] + mutant.replacement + text[mutant.end:mutant.last]
    changed = " ".join(changed.split("\n"))
    if mutant.form == "condition":
        return f"(mutation::on({number}) ? static_cast<bool>({changed}) : static_cast<bool>(", "))"
    return f"(mutation::on({number}) ? ({changed}) : (", "))"


def with_switches(text, mutants):
    """`text`, in which each of the mutants, a map by number, can be switched on at run time. No line is moved."""
    pieces = []
    for number, mutant in mutants.items():
        before, after = _switch(mutant, number, text)
        length = mutant.last - mutant.first
        pieces.append((mutant.first, 1, -length, number, before))
        pieces.append((mutant.last, 0, length, number, after))
    result, place = [], 0
    for position, _, _, _, piece in sorted(pieces):
        result += [text[place:position], piece]
        place = position
    return "".join(result) + text[place:]
