"""Finds what can be changed in a C++ source: operators and constants, one at a time."""

import dataclasses
import re

# Formatted sources have blanks around binary operators, which tells them from templates, pointers and references.
BINARY = {
    "==": "!=", "!=": "==", "<=": "<", ">=": ">", "<": "<=", ">": ">=", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=",
}
OTHER = {"++": "--", "--": "++", "!": "", "true": "false", "false": "true"}

NOT_CODE = re.compile(r"""
    //[^\n]*                          # comment
  | /\*.*?\*/
  | ^[ ]*\#[^\n]*                     # directive
  | ^[ ]*(?:static_assert|template|using|namespace)\b[^;{]*
  | \[\[[^\]]*\]\]                    # attribute
  | "(?:\\.|[^"\\\n])*"               # text
  | '(?:\\.|[^'\\\n])+'
""", re.VERBOSE | re.MULTILINE | re.DOTALL)

TOKEN = re.compile(r"""
    (?<=[ ])(?P<binary>==|!=|<=|>=|&&|\|\||\+=|-=|\*=|/=|[-+*/%<>])(?=[ \n])
  | (?P<other>\+\+|--|!(?=[\w(:])|\btrue\b|\bfalse\b)
  | (?<![\w.])(?P<number>0[xX][0-9a-fA-F']+|(?:\d[\d']*\.?\d*|\.\d+)(?:[eE][-+]?\d+)?)(?P<suffix>[fFuUlLzZ]*)(?!\w)
""", re.VERBOSE)


@dataclasses.dataclass(frozen=True)
class Mutant:
    """One change: the text from begin to end becomes another."""

    file: str
    begin: int
    end: int
    original: str
    changed: str
    line: int
    line_text: str

    def __str__(self):
        return f"{self.file}:{self.line}: {self.original!r} -> {self.changed!r} in: {self.line_text}"


def blanked(source):
    """The source with everything that is no code turned into blanks, at its old places."""
    return NOT_CODE.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), source)


def next_number(text):
    """The number with its last digit changed by one; the exponent stays."""
    place = max(index for index, digit in enumerate(mantissa_of(text)) if digit in "0123456789abcdefABCDEF")
    digit = text[place]
    changed = {"9": "8", "f": "e", "F": "E"}.get(digit) or chr(ord(digit) + 1)
    if not changed.isalnum() or changed in "gG":
        changed = "0"
    return text[:place] + changed + text[place + 1:]


def mantissa_of(text):
    return text if text[:2] in ("0x", "0X") else re.split("[eE]", text)[0]


def mutants_of(file, source):
    """All mutants of a source, in its order."""
    code = blanked(source)
    lines = source.split("\n")
    for match in TOKEN.finditer(code):
        kind = match.lastgroup if match.lastgroup != "suffix" else "number"
        original = match[kind]
        changed = {"binary": BINARY.get, "other": OTHER.get, "number": next_number}[kind](original)
        line = source.count("\n", 0, match.start(kind)) + 1
        yield Mutant(file, match.start(kind), match.end(kind), original, changed, line, lines[line - 1].strip())
