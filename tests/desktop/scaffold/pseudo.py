"""A language that nobody speaks, so that what is not in it was not translated."""

import re
import shutil
import subprocess
from pathlib import Path

#: One for each letter of English that both of the program's fonts have.
LOOKS = str.maketrans("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ",
                      "áßçđéƒğħíĵķłμñóþφŕšŧúνŵχýžÁΒÇĐÉҒĞĦÍĴĶŁΜÑÓÞΩŔŠŦÚΛŴΧÝŽ")
LANGUAGE = "xx"
ENVIRONMENT = {"LANGUAGE": LANGUAGE, "LC_ALL": "C.UTF-8"}
HEADING = ('msgid ""\nmsgstr ""\n"Content-Type: text/plain; charset=UTF-8\\n"\n'
           '"Plural-Forms: nplurals=2; plural=(n != 1);\\n"\n')
#: What a translated text is made of, of a template's line as well as of what is told.
QUOTED = re.compile(r'"((?:[^"\\]|\\.)*)"')
KEY = re.compile(r"(msg\w+(?:\[\d\])?) ")


def say(original):
    """Each letter has an accent, each third is said twice, and brackets show where it begins and ends."""
    pseudo, letters = "", 0
    for character in original:
        look = character.translate(LOOKS)
        letters += look != character
        pseudo += look * 2 if look != character and letters % 3 == 0 else look
    return f"[{pseudo}]"


def entries(template):
    """(original, its plural or None), as they are written in the template."""
    for block in re.split(r"\n\n+", template.strip()):
        fields, key = {}, None
        for line in block.splitlines():
            if line.startswith("#"):
                continue
            start = KEY.match(line)
            key = start[1] if start else key
            fields[key] = fields.get(key, "") + "".join(QUOTED.findall(line))
        if fields.get("msgid"):
            yield fields["msgid"], fields.get("msgid_plural")


def catalogue(template):
    """In the form of the translators' files."""
    lines = [HEADING]
    for original, plural in entries(template):
        if plural is None:
            lines.append(f'msgid "{original}"\nmsgstr "{say(original)}"\n')
        else:
            lines.append(f'msgid "{original}"\nmsgid_plural "{plural}"\n'
                         f'msgstr[0] "{say(original)}"\nmsgstr[1] "{say(plural)}"\n')
    return "\n".join(lines)


def install(folder, binary, catalogues):
    """The program with catalogues beside it, each a pair of a language and the file to make it from; its executable."""
    copy = Path(folder) / "bin" / Path(binary).name
    copy.parent.mkdir(parents=True)
    shutil.copy(binary, copy)
    for language, text in catalogues.items():
        source = Path(folder) / f"{language}.po"
        source.write_text(text, encoding="utf-8")
        target = Path(folder) / "share" / "locale" / language / "LC_MESSAGES"
        target.mkdir(parents=True)
        subprocess.run(["msgfmt", f"--output-file={target / 'kestrelfen.mo'}", str(source)], check=True,
                       timeout=20)
    return str(copy)
