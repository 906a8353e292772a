#!/usr/bin/env python3
"""Finds sentences in the code of the windows that can be neither translated nor are among the fixed texts.

usage: texts_in_code_test.py ROOT

The walk through the windows sees what it comes across; this sees every message, whether or not anything leads to it.
"""

import pathlib
import re
import sys

LITERAL = r'"(?:[^"\\\n]|\\.)*"'
# A text may be written as several literals one after the other.
TEXT = re.compile(rf"{LITERAL}(?:\s*{LITERAL})*")
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)
TRANSLATED = re.compile(rf"(?:\btr\(|\b(?:translate|QT_TRANSLATE_NOOP)\(\s*{LITERAL},)\s*$")
SENTENCE = re.compile(r"[A-Za-z]{2,}[,:;]? [A-Za-z]{2,}")
STYLE_SHEET = re.compile(r"[{};]")

# Read by nobody as a text of this program, or the same in every language.
OTHERS = {
    "MS Sans Serif": "a font",
    "Lucida Console": "a font",
    "Windows ME": "a system",
    "Windows NT": "a system",
    "© 2026 Tarvel Software": "a notice with the maker's name",
    "Comments on ": "how the subject of a mail begins, fixed",
    "the antenna's gain cannot be computed with": "an error that its catcher words",
    "a compared text is no number": "an error that no data lead to",
    "printing failed": "an error that its catcher words",
}


def unquoted(literals):
    """The text that literals stand for."""
    return "".join(part[1:-1] for part in re.findall(LITERAL, literals)).replace('\\"', '"')


def without_access_marks(text):
    return text.replace("&&", "\0").replace("&", "").replace("\0", "&")


def is_part_of(text, row):
    """Whether a text, in which %1 stands for something else, is a piece of another one."""
    return re.search(".*".join(re.escape(piece) for piece in re.split(r"%\d", text.strip())), row) is not None


def fixed_texts(root):
    """The fixed texts as they stand between their figures and names."""
    table = (root / "tests/app/fixed_texts.h").read_text()
    rows = re.findall(rf"FixedText\{{{LITERAL},\s*({LITERAL}(?:\s*{LITERAL})*)\}}", table)
    return [unquoted(row) for row in rows]


def without_comments(code):
    """The code with its comments blanked out, so that line numbers stay."""
    return re.sub(rf"({LITERAL})|{COMMENT.pattern}", lambda found: found[1] or "\n" * found[0].count("\n"), code,
                  flags=re.DOTALL)


def missed_in(code, fixed):
    """Line and text of each sentence that is neither translated nor fixed."""
    for found in TEXT.finditer(code):
        text = without_access_marks(unquoted(found[0]))
        before = code[:found.start()]
        if not SENTENCE.search(text) or STYLE_SHEET.search(text) or text in OTHERS or TRANSLATED.search(before):
            continue
        if not any(is_part_of(text, row) for row in fixed):
            yield before.count("\n") + 1, text


def main():
    root = pathlib.Path(sys.argv[1])
    fixed = fixed_texts(root)
    files = [file for folder in ("ui", "app") for file in sorted((root / folder).rglob("*"))
             if file.suffix in (".cpp", ".h")]
    missed = [f"{file.relative_to(root)}:{line}: “{text}”" for file in files
              for line, text in missed_in(without_comments(file.read_text()), fixed)]
    print("\n".join(missed))
    print(f"{len(files)} files, {len(fixed)} fixed texts, {len(missed)} texts that cannot be translated")
    return 1 if missed or not files or not fixed else 0


if __name__ == "__main__":
    sys.exit(main())
