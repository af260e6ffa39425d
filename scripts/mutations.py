"""One-line faults that can be planted in a C++ source: where each fits, and what it makes.

The source is read as text. Comments, literals and lines of the preprocessor are blanked out first,
so that a fault is only planted in code. What doesn't compile in the end is the builder's to find.
"""

import re
from dataclasses import dataclass

OPENING = {"(": ")", "{": "}", "[": "]"}
TOKENS = re.compile(
    r"//[^\n]*|/\*.*?\*/"  # comments
    r'|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"'  # raw strings
    r'|"(?:\\.|[^"\\\n])*"'  # strings
    r"|(?<![0-9A-Za-z_])'(?:\\.|[^'\\\n])+'"  # characters, but no separators of digits
    r"|^[ \t]*#(?:\\\n|[^\n])*",  # the preprocessor
    re.S | re.M)
DECLARED = re.compile(r"(?:const|constexpr|static|auto|using|typename|typedef|friend|namespace"
                      r"|class|struct|enum|template|public|private|protected|case|default)\b")
JUMP = re.compile(r"(?:return|continue|break)\s*;\Z")
# A call, an assignment or a step of a counter: two words in front would declare something.
ACTION = re.compile(r"(?:\+\+|--|\*)?[A-Za-z_][\w:]*"
                    r"(?:(?:\.|->)[A-Za-z_]\w*|\[[^;{}]*?\]|\([^;{}]*?\))*"
                    r"\s*(?:\([^;]*\)|(?:[-+*/|&]?=(?!=)|<<)[^;]*|\+\+|--)?\s*;\Z", re.S)


@dataclass(frozen=True)
class Mutant:
    """A fault: `old`, which begins at `start` of the text, becomes `new`."""

    operator: str
    start: int
    old: str
    new: str

    def apply(self, text):
        """The text with the fault in it."""
        end = self.start + len(self.old)
        assert text[self.start:end] == self.old
        return text[:self.start] + self.new + text[end:]

    def line(self, text):
        """The number of the line it begins in, from 1."""
        return text.count("\n", 0, self.start) + 1


def blank(text):
    """The text with comments, literals and the preprocessor as blanks: the same length and lines.
    Of a literal the quotes stay, so that an expression keeps its shape."""

    def blanks(match):
        found = match.group()
        inside = re.sub(r"[^\n]", " ", found)
        return f'"{inside[1:-1]}"' if found[-1:] in "\"'" and found[0] not in "/#" else inside

    return TOKENS.sub(blanks, text)


def closing(code, start):
    """Where the bracket at `start` is closed; None where it isn't."""
    stack = []
    for i in range(start, len(code)):
        if code[i] in OPENING:
            stack.append(OPENING[code[i]])
        elif stack and code[i] == stack[-1]:
            stack.pop()
            if not stack:
                return i
    return None


@dataclass(frozen=True)
class Statement:
    start: int
    end: int  # behind the semicolon
    head: str  # the character that the statement stands behind: one of ";{})" or "" or a word


def statements(code):
    """Every statement that ends with a semicolon, the innermost ones only."""
    found = []
    start = 0
    depth = 0  # of round and square brackets
    for i, char in enumerate(code):
        if char in "([":
            depth += 1
        elif char in ")]":
            depth = max(0, depth - 1)
        elif char in "{}":
            start, depth = i + 1, 0
        elif char == ";" and depth == 0:
            found.append(trimmed(code, start, i + 1))
            start = i + 1
    return found


def trimmed(code, start, end):
    """The statement without blanks around it, and without an `if (...)`, `else` before it."""
    head = "".join(code[:start].split()[-1:])[-1:]
    while True:
        start += len(code[start:end]) - len(code[start:end].lstrip())
        word = re.match(r"(?:if(?: constexpr)?|while|for|else|do)\b\s*", code[start:end])
        if word is None:
            return Statement(start, end, head)
        start += word.end()
        head = ")"
        if code[start:start + 1] == "(" and not word.group().startswith(("else", "do")):
            close = closing(code, start)
            if close is None or close >= end:
                return Statement(end, end, head)
            start = close + 1


def is_action(text):
    return bool(JUMP.match(text) or (not DECLARED.match(text) and ACTION.match(text)))


def are_neighbours(code, first, second):
    """Whether two statements that act, and don't jump, stand on lines of their own in one block."""
    between = code[first.end:second.start]
    if between.strip() or "\n" not in between or ")" in (first.head, second.head):
        return False
    one, two = code[first.start:first.end], code[second.start:second.end]
    return one != two and all(is_action(s) and not JUMP.match(s) for s in (one, two))


def conditions(text, code):
    """`if (X)` and `while (X)` become `if (!(X))`."""
    for match in re.finditer(r"\b(?:if|while)\s*\(", code):
        start = match.end() - 1
        end = closing(code, start)
        if end is None:
            continue
        inside = code[start + 1:end]
        if ";" in inside or re.search(r"(?<![=!<>])=(?!=)", inside):
            continue  # it declares something
        condition = text[start + 1:end]
        yield Mutant("negate condition", start + 1, condition, f"!({condition})")


def replacements(operator, pattern, table):
    """An operator that puts another word in the place of each that the pattern finds in code."""

    def find(text, code):
        for match in re.finditer(pattern, code):
            old = text[match.start():match.end()]
            new = table(old) if callable(table) else table[old]
            yield Mutant(operator, match.start(), old, new)

    return find


def one_more(number):
    """The literal, one larger; what follows the digits stays."""
    digits = re.match(r"\d+", number).group()
    return str(int(digits) + 1) + number[len(digits):]


def dropped_statements(text, code):
    """A statement is left out."""
    for statement in statements(code):
        if is_action(code[statement.start:statement.end]):
            yield Mutant("drop statement", statement.start, text[statement.start:statement.end],
                         "{}")


def swapped_statements(text, code):
    """Two neighbours that act trade places."""
    found = statements(code)
    for first, second in zip(found, found[1:]):
        if not are_neighbours(code, first, second):
            continue
        old = text[first.start:second.end]
        new = (text[second.start:second.end] + text[first.end:second.start]
               + text[first.start:first.end])
        yield Mutant("swap statements", first.start, old, new)


COMPARED = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
OPERATORS = (
    conditions,
    replacements("drop negation", r"(?<![\w)\]])!(?=[\w(])", {"!": ""}),
    # Blanks around them tell operators from brackets of templates and from references.
    replacements("compare otherwise", r"(?<= )(?:[<>]=?|[=!]=)(?= )", COMPARED),
    replacements("and for or", r"(?<= )(?:&&|\|\|)(?= )", {"&&": "||", "||": "&&"}),
    replacements("plus for minus", r'(?<=[\w)\]] )[-+](?= [\w(*])', {"+": "-", "-": "+"}),
    replacements("times for divided", r'(?<=[\w)\]] )[*/](?= [\w(])', {"*": "/", "/": "*"}),
    replacements("step otherwise", r"\+\+|--|(?<= )[-+]=(?= )",
                 {"++": "--", "--": "++", "+=": "-=", "-=": "+="}),
    replacements("one more", r"(?<![\w.'])\d+(?:\.\d+)?[a-zA-Z]*(?![\w.'])", one_more),
    replacements("true for false", r"\b(?:true|false)\b", {"true": "false", "false": "true"}),
    dropped_statements,
    swapped_statements,
)


def mutants_of(text):
    """All faults that fit the source, in the order of their places."""
    code = blank(text)
    lines = code.split("\n")
    found = []
    for operator in OPERATORS:
        for mutant in operator(text, code):
            line = lines[mutant.line(text) - 1]
            if "template <" not in line and "static_assert" not in line:
                found.append(mutant)
    return sorted(found, key=lambda mutant: (mutant.start, mutant.operator))
