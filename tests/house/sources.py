"""The project's source files, as the checks of the house read them."""

import os
import re

# A comment, or something in which what looks like a comment is none.
_TOKEN = re.compile(
    r'(?P<comment>//[^\n]*|/\*.*?\*/)'
    r'|(?P<raw>R"(?P<fence>[^()\\\s]{0,16})\(.*?\)(?P=fence)")'
    r'|(?P<string>"(?:\\.|[^"\\\n])*")'
    r"|(?P<character>(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])*')",
    re.DOTALL)


def _blank(text):
    return re.sub(r"[^\n]", " ", text)


def source_files(root, folders, endings):
    """Every file in these folders of `root` with one of these endings, sorted."""
    found = []
    for folder in folders:
        for place, _, names in os.walk(os.path.join(root, folder)):
            found += [os.path.join(place, name) for name in names if name.endswith(endings)]
    return sorted(found)


class SourceFile:
    """A file in C++, QML or JavaScript. What is blanked out keeps its place, so that lines can be told."""

    def __init__(self, path, root):
        self.path = path
        self._root = root
        with open(path, encoding="utf-8") as stream:
            self._text = stream.read()

    def without_comments(self):
        return _TOKEN.sub(lambda token: _blank(token[0]) if token["comment"] else token[0], self._text)

    def code(self):
        """Without comments and without what stands in quotes."""
        return _TOKEN.sub(lambda token: _blank(token[0]), self._text)

    def line_of(self, position):
        return self._text.count("\n", 0, position) + 1

    def at(self, line, problem):
        return f"{os.path.relpath(self.path, self._root)}:{line}: {problem}"
