"""What stands where in a C++ source file: tokens, brackets, statements, and how far an operand reaches.

It knows no grammar, and trusts clang-format: an operator with a space on both sides is binary, a `<` without one opens
template arguments.
"""

import re
from collections import namedtuple

Token = namedtuple("Token", "kind text start end spaced")

_TOKEN = re.compile(
    r'(?P<blank>\s+|//[^\n]*|/\*.*?\*/)'
    r'|(?P<directive>(?<![^\n])[ \t]*#(?:\\\n|[^\n])*)'
    r'|(?P<text>R"(?P<fence>[^()\\\s]{0,16})\(.*?\)(?P=fence)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\')'
    r"|(?P<number>\.?\d(?:[eEpP][+-]|'?[\w.])*)"
    r'|(?P<name>[A-Za-z_]\w*)'
    r'|(?P<mark><=>|\.\.\.|->|::|\+\+|--|[-+*/%<>=!]=|&&|\|\||.)',
    re.DOTALL)

_RANK = {"*": 5, "/": 5, "%": 5, "+": 4, "-": 4, "<": 3, ">": 3, "<=": 3, ">=": 3, "==": 2, "!=": 2, "&&": 1, "||": 0}
_BEFORE_EXPRESSION = {"return", "(", "[", "{", "}", ",", ";", "?", ":", "=", "+=", "-=", "*=", "/=", "else"}
_AFTER_EXPRESSION = {")", "]", "}", ",", ";", "?", ":"}
_AFTER_ASSIGNMENT = {")", ",", ";"}
_OPEN = {"(": ")", "[": "]", "{": "}"}
_NO_CALL = {"return", "if", "for", "while", "switch", "case", "default", "using", "delete", "throw", "static_assert",
            "else", "do", "break", "continue", "goto", "public", "private", "protected", "template", "friend"}
_ASSIGNMENTS = {"=", "+=", "-=", "*=", "/="}


def _tokens(text):
    """Without comments and directives; `spaced` where blanks stand before and after."""
    found = [match for match in _TOKEN.finditer(text) if match.lastgroup != "directive"]
    tokens = []
    for match in found:
        if match.lastgroup == "blank":
            continue
        around = text[match.start() - 1:match.start()] + text[match.end():match.end() + 1]
        kind = "text" if match.lastgroup == "fence" else match.lastgroup
        tokens.append(Token(kind, match[0], match.start(), match.end(), len(around) == 2 and around.isspace()))
    return tokens


class Structure:
    """Places are indices into `tokens`; `partner` tells each bracket's other one."""

    def __init__(self, text):
        self.tokens = _tokens(text)
        self.partner = {}
        self.inner = []
        self._pair()

    def _pair(self):
        """Finds each bracket's partner, and for each token the kind of the innermost braces around it."""
        opened = []
        for index, token in enumerate(self.tokens):
            if token.text in _OPEN and token.kind == "mark":
                opened.append((index, self._kind_of_braces(index) if token.text == "{" else None))
            elif token.text in _OPEN.values() and token.kind == "mark" and opened:
                self.partner[index] = opened[-1][0]
                self.partner[opened.pop()[0]] = index
            kinds = [kind for _, kind in opened if kind]
            self.inner.append(kinds[-1] if kinds else "namespace")

    def _kind_of_braces(self, index):
        head = []
        while index > 0 and self.tokens[index - 1].text not in (";", "{", "}"):
            index -= 1
            head.append(self.tokens[index].text)
        if "namespace" in head:
            return "namespace"
        return "class" if {"class", "struct", "enum", "union"} & set(head) and "(" not in head else "code"

    def operation(self, index):
        """The tokens from the left operand's first to the right one's last."""
        rank = _RANK.get(self.tokens[index].text, -1)
        first = index
        while True:
            before = self.tokens[first - 1]
            if before.text in (")", "]") or (before.text == "}" and self.tokens[first].text != ";" and
                                             self.tokens[self.partner[first - 1] - 1].kind == "name"):
                first = self.partner[first - 1]
            elif before.text in _BEFORE_EXPRESSION or (before.spaced and _RANK.get(before.text, rank) < rank):
                break
            else:
                first -= 1
        last = index
        while True:
            after = self.tokens[last + 1]
            if after.text in _OPEN:
                last = self.partner[last + 1]
            elif after.text in (_AFTER_EXPRESSION if rank >= 0 else _AFTER_ASSIGNMENT) or (after.spaced and _RANK.get(after.text, rank + 1) <= rank):
                return first, last
            else:
                last += 1

    def operand(self, index):
        """The tokens of a unary operator and of the chain that it is applied to."""
        if self.tokens[index].text != "!" and (self.tokens[index - 1].kind == "name" or
                                                self.tokens[index - 1].text in (")", "]")):
            return self._start_of_chain(index - 1), index
        last = index + 1
        while self.tokens[last].text in ("!", "*", "&"):
            last += 1
        while True:
            last = self.partner[last] if self.tokens[last].text in ("(", "[") else last
            after = self.tokens[last + 1]
            if after.text == "<" and not after.spaced:
                last = self._end_of_arguments(last + 1)
            elif after.text in (".", "->", "::"):
                last += 2
            elif after.text in ("(", "["):
                last += 1
            else:
                return index, last

    def _start_of_chain(self, index):
        while True:
            if self.tokens[index].text in (")", "]"):
                index = self.partner[index] - 1
            elif self.tokens[index - 1].text in (".", "->", "::"):
                index -= 2
            else:
                return index

    def begins_statement(self, index):
        before = self.tokens[index - 1].text
        if before in (";", "{", "}", "else"):
            return True
        if before == ")" and index - 1 in self.partner:
            head = self.partner[index - 1] - 1
            return self.tokens[head].text in ("if", "for", "while", "constexpr")
        return before == ":" and self._is_label(index - 1)

    def _is_label(self, colon):
        while colon > 0 and self.tokens[colon - 1].text not in (";", "{", "}"):
            colon -= 1
            if self.tokens[colon].text in ("case", "default"):
                return True
        return False

    def end_of_statement(self, index):
        """The semicolon, where a chain of calls and members, or an assignment to one, begins at `index`."""
        if self.tokens[index].text in _NO_CALL:
            return None
        while self.tokens[index].text == "*":
            index += 1
        last = None
        while index < len(self.tokens):
            token = self.tokens[index]
            if token.text == ";":
                return index if last == ")" else None
            if token.text in _ASSIGNMENTS and last not in (None, "mark"):
                return self.semicolon_after(index)
            if token.text in ("(", "["):
                index = self.partner[index]
                last = self.tokens[index].text
            elif token.text == "<" and not token.spaced:
                index = self._end_of_arguments(index)
            elif token.kind == "name" and last in (None, "mark"):
                last = "name"
            elif token.text in ("::", ".", "->") and last not in (None, "mark"):
                last = "mark"
            else:
                return None
            index += 1
        return None

    def semicolon_after(self, index):
        while self.tokens[index].text != ";":
            index = self.partner.get(index, index) if self.tokens[index].text in _OPEN else index
            index += 1
        return index

    def _end_of_arguments(self, index):
        depth = 0
        while True:
            depth += {"<": 1, ">": -1}.get(self.tokens[index].text, 0)
            if depth == 0 or self.tokens[index].text == ";":
                return index
            index += 1

    def names(self, first, last):
        """In the chain that begins at `first`, without its arguments."""
        names = set()
        while first < last and self.tokens[first].text not in _ASSIGNMENTS:
            names.add(self.tokens[first].text)
            first = self.partner[first] if self.tokens[first].text in ("(", "[") else first
            first += 1
        return names

    def after_initializer(self, first):
        index = first
        while self.tokens[index].text not in (")", ";"):
            index = self.partner.get(index, index) if self.tokens[index].text in _OPEN else index
            index += 1
        return index + 1 if self.tokens[index].text == ";" else first

    def start_of_condition(self, index):
        while True:
            before = self.tokens[index - 1]
            if before.text in (")", "]", "}"):
                index = self.partner[index - 1]
            elif before.text in ("return", "=", "(", "[", "{", ",", ";", "?", ":", "+=", "-="):
                return index
            else:
                index -= 1

    def bodies_of_bool(self):
        for index, token in enumerate(self.tokens):
            if token.text != "bool":
                continue
            while self.tokens[index + 1].kind == "name" or self.tokens[index + 1].text == "::":
                index += 1
            if self.tokens[index + 1].text != "(":
                continue
            index = self.partner[index + 1] + 1
            while self.tokens[index].text in ("const", "noexcept", "override", "final"):
                index += 1
            if self.tokens[index].text == "{":
                yield index, self.partner[index]

    def outside_brackets(self, first, last):
        outside = []
        while first <= last:
            outside.append(self.tokens[first])
            first = self.partner[first] if self.tokens[first].text in _OPEN else first
            first += 1
        return outside
