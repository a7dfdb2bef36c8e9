"""Reads contract.txt, whose head tells the notation."""
import re
from dataclasses import dataclass, field
from itertools import product
from pathlib import Path
from types import SimpleNamespace

TABLE = Path(__file__).resolve().parent / "contract.txt"


@dataclass(frozen=True)
class Arg:
    kind: str  # array, value (a single one, by pointer), work, record, scalar, index
    type: str = ""  # suffix of the type of elements, values and scalars
    role: str = ""  # in, out, io; of a record in or out
    stars: int = 0
    optional: bool = False

    def pointer(self):
        return self.kind not in ("scalar", "index")


@dataclass
class Form:
    """An export. Conditions and extents are functions of the argument values by position."""

    args: list
    checks: list = field(default_factory=list)  # (status code, condition)
    extents: dict = field(default_factory=dict)  # position of an array -> elements; None where the data decide
    warnings: set = field(default_factory=set)
    same: set = field(default_factory=set)  # pairs of positions that may be one array
    apart: set = field(default_factory=set)  # and that must not
    needs: list = field(default_factory=list)

    def status(self, values):
        return next((code for code, fails in self.checks if fails(values)), 0)


@dataclass(frozen=True)
class Place:
    """Where a number stands: a pointer to a single value that is read."""

    number: float


# What the table's expressions may call.


def at(place):
    return place.number


def block(rows, cols, stride):
    return (rows - 1) * stride + cols if rows and cols else 0


def image(rows, cols, step, size):
    return (block(rows, cols * size, abs(step)) + size - 1) // size


def lower(rows, cols, stride, diagonal):
    """The last row has the most columns."""
    return block(rows, min(max(rows - 1, 0) + (diagonal != 0), cols), stride)


def upper(rows, cols, stride, diagonal):
    """All rows end in the last column; those below it have none."""
    return block(min(rows, max(cols - 1 + (diagonal != 0), 0)), cols, stride)


def reach(n, inc):
    return block(n, 1, inc)


def bytes_of(bits):
    return (bits + 7) // 8


def words_of(bits):
    return (bits + 31) // 32


def delay(spec):
    """The samples that a filter of several rates remembers; with two factors of 1 it is one of a single rate."""
    if spec.upFactor == spec.downFactor == 1:
        return spec.tapsLen - 1
    return (spec.tapsLen + spec.upFactor - 1) // spec.upFactor


def quotient(a, b):
    """As C divides."""
    return int(a / b)


def in_bytes(rows, cols, step, size):
    """An extent in whole elements that the description has in bytes."""
    spanned = (rows - 1) * (-step if step < 0 else step) + cols * size
    return -(-spanned // size) if rows > 0 and cols > 0 else 0


CALLS = {f.__name__: f for f in (at, block, image, lower, upper, reach, bytes_of, words_of, delay, quotient, in_bytes, abs, max, min)}
# Properties of filters and transforms. The lengths are apart by one, so that a rounding that is off by one shows.
SPECS = [
    SimpleNamespace(tapsLen=taps, upFactor=up, downFactor=down, len=taps, specBufSize=64, bufSize=64,
                    kernelSize=SimpleNamespace(width=taps, height=max(taps - up, 1)))
    for taps, up, down in ((36, 3, 5), (37, 3, 5), (38, 3, 5), (1, 7, 2), (9, 1, 1))
]


def evaluated(expression, names):
    """A Python expression as a function of the values with these names. None where it comes to `unbound`."""
    compute = eval(f"lambda spec, {', '.join(names)}: {expression}", {"__builtins__": {}, **CALLS})

    def value(values, spec=SPECS[0]):
        try:
            return compute(spec, *values)
        except NameError as unknown:
            if unknown.name != "unbound":
                raise
            return None

    return value


def alternatives(pattern):
    """(name, T or "") for each way through the braces: CumSum{:64f,_32s} gives CumSum and 64f, CumSum_32s and 32s."""
    parts = [p.split(",") if i % 2 else [p] for i, p in enumerate(re.split(r"\{(.*?)\}", pattern))]
    for chosen in product(*parts):
        types = [re.fullmatch(r"(?:.*:|_)?(\d+\w+)", c) for c in chosen[1::2]]
        yield "".join(c.partition(":")[0] for c in chosen), next((m[1] for m in types if m), "")


def table_arg(text, T):
    """One argument: its name, what it is, and the text of its extent."""
    m = re.fullmatch(r"(?:(in|out|io|work) )?(\w+) (\**)(\w+)(?:\[(.*)\])?(\?)?", text)
    if not m:
        raise ValueError("argument not understood: " + text)
    role, base, stars, name, extent, optional = m.groups()
    if role == "work":
        return name, Arg("work", base, stars=1, optional=bool(optional)), None
    if base in ("spec", "handle", "memory"):
        return name, Arg("record", "", "in" if role == "in" else "out", len(stars), bool(optional)), None
    kind = "scalar" if not role else "value" if stars and not extent else "array"
    return name, Arg(kind, T if base == "T" else base, role or "", int(kind != "scalar"), bool(optional)), extent


def split_outside_brackets(text):
    return re.split(r",\s*(?![^\[]*\])", text) if text else []


def row_forms(row, statuses):
    """(export, form) for each name of a row, plain and indexed."""
    names, _, rest = row.partition("(")
    end = next(i for i, c in enumerate(rest) if c == ")" and rest[:i].count("(") == rest[:i].count(")"))
    listed, clauses = rest[:end], rest[end + 1 :]
    first, *others = names.split()
    for pattern in others if first in ("plain", "idx") else [first, *others]:
        for name, T in alternatives(pattern):
            given = [table_arg(text, T) for text in split_outside_brackets(listed)]
            if first != "idx":
                yield name, row_form(given, clauses, statuses)
            if first != "plain":
                fixed = re.findall(r"\*(\w+)\[", listed)
                yield name + "_Idx", row_form(with_indexes(given, fixed), clauses, statuses)


def with_indexes(given, fixed):
    result = []
    for name, arg, extent in given:
        result.append((name, arg, extent))
        if arg.kind in ("array", "work") and name not in fixed:
            result.append((name + "Index", Arg("index"), None))
    return result


def row_form(given, clauses, statuses):
    names = [name for name, _, _ in given]
    form = Form([arg for _, arg, _ in given])
    form.extents = {i: evaluated(extent, names) for i, (_, arg, extent) in enumerate(given) if arg.kind == "array"}
    for clause in filter(None, (c.strip() for c in clauses.split(";"))):
        word, *others = clause.replace(",", "").split()
        if word == "null":
            tested = others or [name for name, arg, _ in given if arg.pointer() and not arg.optional]
            form.checks.append((statuses["NullPtrErr"], evaluated(" or ".join(f"not {n}" for n in tested), names)))
        elif word == "warns":
            form.warnings = {statuses[w] for w in others}
        elif word in ("same", "apart"):
            getattr(form, word).add((names.index(others[0]), names.index(others[1])))
        elif word == "needs":
            form.needs.append(evaluated(clause.removeprefix("needs "), names))
        elif word != "house":
            condition, _, status = clause.rpartition(": ")
            form.checks.append((statuses[status], evaluated(condition, names)))
    return form


def witnessed():
    """(list of (export, form), type suffix -> (bytes, index unit), status name -> code), as the table has them."""
    text = re.sub(r"^#.*\n", "", TABLE.read_text(), flags=re.M)
    types, statuses, forms = {}, {}, []
    for row in re.sub(r"\n +", " ", text).splitlines():
        word, *rest = row.split()[:4] or [""]
        if word == "type":
            types[rest[0]] = (int(rest[1]), int(rest[2]))
        elif word == "status":
            statuses[rest[0]] = int(rest[1])
        elif word:
            forms += row_forms(row, statuses)
    return forms, types, statuses
