"""Lines into statements: a statement with its clauses, each with the place where it stands."""
import re
from contextlib import contextmanager
from dataclasses import dataclass, field


@dataclass(frozen=True)
class Place:
    file: str
    line: int

    def __str__(self):
        return f"{self.file}:{self.line}"


class Mistake(Exception):
    """The description is wrong. Whoever finds out need not know where: the next `at` around it does."""

    def __init__(self, text, place=None):
        super().__init__(text)
        self.place = place

    def __str__(self):
        return f"{self.place}: {self.args[0]}"


@contextmanager
def at(place):
    try:
        yield
    except Mistake as mistake:
        mistake.place = mistake.place or place
        raise


IDENTIFIER = r"[A-Za-z_]\w*"


def match(pattern, text, otherwise):
    found = re.fullmatch(pattern, text)
    if not found:
        raise Mistake(f"{otherwise}: {text}")
    return found


@dataclass
class Clause:
    place: Place
    word: str
    rest: str


@dataclass
class Statement(Clause):
    clauses: list = field(default_factory=list)


def split_list(text, separator=","):
    """Splits at separators that stand outside parentheses, brackets and braces."""
    parts, depth, start = [], 0, 0
    for i, ch in enumerate(text):
        depth += ch in "([{"
        depth -= ch in ")]}"
        if depth < 0:
            raise Mistake(f"nothing opens what closes here: {text[: i + 1]}")
        if ch == separator and depth == 0:
            parts.append(text[start:i].strip())
            start = i + 1
    if depth:
        raise Mistake(f"nothing closes what opens here: {text}")
    parts.append(text[start:].strip())
    if parts == [""]:
        return []
    if "" in parts:
        raise Mistake(f"nothing stands between two '{separator}': {text}")
    return parts


def lines(path):
    """(place, line) of all that is neither empty nor a comment."""
    for number, line in enumerate(path.read_text().splitlines(), 1):
        if line.strip() and not line.lstrip().startswith("#"):
            yield Place(path.name, number), line.rstrip()


def statements(path):
    """Statements start in the first column, clauses in the fifth, what goes on from above in the ninth or later."""
    found = []
    for place, line in lines(path):
        indent = len(line) - len(line.lstrip(" "))
        word, _, rest = line.strip().partition(" ")
        if indent == 0:
            found.append(Statement(place, word, rest.strip()))
        elif not found:
            raise Mistake("a clause without a statement above it", place)
        elif indent == 4:
            found[-1].clauses.append(Clause(place, word, rest.strip()))
        elif indent >= 8:
            above = (found[-1].clauses or found)[-1]
            above.rest += " " + line.strip()
        else:
            raise Mistake(f"indented by {indent}: 4 begin a clause, 8 or more go on from above", place)
    return found
