"""Writes the registry: every function of the interface as data (tools/registry/registry.h)."""
import re

from building import occurs

ELEMENTS = {"24u": "u24", "24s": "i24", "1u": "bits"}
RESULTS = {"status": "status", "void": "none", "int": "i32", "unsigned int": "u32", "Ipp64u": "u64", "Ipp64f": "f64"}
# Worth trying for every scale factor: the widths of the types, and where doubles and shortcuts for them end.
SCALE_FACTORS = (
    "0 1 2 3 5 7 8 15 16 17 31 32 33 63 64 100 -1 -2 -5 -8 -16 -31 -32 -33 "
    "898 901 1000 1022 1024 1040 1074 1100 -898 -901 -970 -1000 -1023 -1040 2147483647 -2147483647 -2147483647-1"
).split()
INDEX = {"auto": "automatic", "none": "none", "only": "only", "same": "same", "written": "written"}


FUNCTIONS = """
[[maybe_unused]] long long min(long long a, long long b) { return a < b ? a : b; }
[[maybe_unused]] long long max(long long a, long long b) { return a > b ? a : b; }
[[maybe_unused]] long long magnitude(long long a) { return a < 0 ? -a : a; }
"""


class Pool:
    """Predicates and extents, each text once."""

    def __init__(self):
        self.known = {}

    def add(self, result, expression):
        key = (result, expression)
        if key not in self.known:
            self.known[key] = f"f{len(self.known)}"
        return self.known[key]

    def text(self):
        return "".join(
            f"{result} {name}([[maybe_unused]] const Value* a) {{ return {expression}; }}\n"
            for (result, expression), name in self.known.items()
        )


def over_values(expression, f):
    """Names become members of the value array, where arguments come first: len -> a[3].i, val.im -> a[1].im, *pPhase ->
    what it points to, pSpec.tapsLen -> a[7].i."""
    named = {n.name: len(f.args) + i for i, n in enumerate(f.named)}

    def value(match):
        star, name, part = match.group(1) or "", match.group(2), match.group(3)
        if name + part in named:
            return f"a[{named[name + part]}].i"
        for i, a in enumerate(f.args):
            if a.record and a.name == name + part:
                return f"a[{i}].i"
            if a.name != name:
                continue
            if a.pointer:
                return f"(*static_cast<const {a.base}*>(a[{i}].p))" if star else f"a[{i}].p"
            if part:
                return f"a[{i}]{part}"
            floating = a.type and a.type.kernel in ("f32", "f64", "c32f", "c64f")
            return star + (f"a[{i}].re" if floating else f"a[{i}].i")
        return match.group(0)

    return re.sub(r"((?<![\w\])])\*)?(?<!->)(?<![.\w])\b([A-Za-z_]\w*)\b((?:\.[A-Za-z_]\w*\b)*)", value, expression)


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def position(name, f):
    """Of an argument or a name in the value array."""
    return [a.name for a in f.args].index(name) if name in [a.name for a in f.args] else len(f.args) + [
        n.name for n in f.named].index(name)


def extent_of(a):
    """The elements from the first to the last, also of an array with rows."""
    if not a.rows:
        return "1" if a.kind == "handle" else a.extent
    r, size = a.rows, a.type.size if a.rows.in_bytes else 1
    step = f"magnitude({r.step})" if r.in_bytes else f"({r.step})"
    whole = f"((long long)({r.count})-1)*{step}+({r.width})*{size}"
    return f"({r.count}) > 0 && ({r.width}) > 0 ? ({whole}+{size - 1})/{size} : 0"


def rows_of(a):
    """Count, bytes of a row, bytes from row to row in memory, bytes of memory in front of the pointer: the first row is
    the last one in memory where the step is negative."""
    r, size = a.rows, a.type.size
    step = f"magnitude({r.step})" if r.in_bytes else f"({r.step})*{size}"
    lead = f"(({r.step}) < 0 ? ({r.count})-1-({r.row}) : ({r.row}))*{step}+({r.column})*{size}" if r.in_bytes else "0"
    return r.count, f"({r.width})*{size}", step, lead


class Writer:
    """The tables of one function, before its row."""

    def __init__(self, f, pool, exports):
        self.f, self.pool, self.exports, self.out = f, pool, exports, []
        self.name = f.name + ("_Idx" if f.index == "written" else "")

    def integer(self, expression):
        return self.pool.add("long long", f"(long long)({over_values(expression, self.f)})")

    def number(self, expression):
        return self.pool.add("double", f"double({over_values(expression, self.f)})")

    def listed(self, kind, prefix, rows):
        """A table, as two members of a row: where it is, how many rows it has."""
        if not rows:
            return "nullptr, 0"
        self.out.append(f"const {kind} {prefix}_{self.name}[] = {{{', '.join(rows)}}};\n")
        return f"{prefix}_{self.name}, {len(rows)}"

    def domain(self, label, values):
        """`3` is a value, `1..9` all integers from 1 to 9."""
        rows = []
        for v in values:
            low, _, high = v.partition("..")
            rows.append(f"{{{self.number(low)}, {self.number(high) if high else 'nullptr'}}}")
        return self.listed("Choice", f"domain_{label}", rows)

    def scales(self, name):
        """Whether the scalar decides how long arrays are, by itself or through other names."""
        texts = [a.extent for a in self.f.args]
        for n in reversed(self.f.named):
            if any(occurs(n.name, t) for t in texts):
                texts += self.f.queries[n.query].args if n.source == "size" else [n.text]
        return any(occurs(name, t) for t in texts)

    def argument(self, a, number):
        f = self.f
        element = ELEMENTS.get(a.type.suffix, a.type.kernel) if a.type else "none"
        extent = extent_of(a)
        counted = {n.name for n in f.named if n.source == "counted"}
        late = any(occurs(n, extent) for n in counted)
        rows = "nullptr"
        if a.rows:
            numbers = ", ".join(self.integer(x) for x in rows_of(a))
            self.out.append(f"const Rows rows_{self.name}_{number} = {{{numbers}}};\n")
            rows = f"&rows_{self.name}_{number}"
        makers = []
        for k, m in enumerate(x for x in f.makers if x.argument == a.name):
            maker = self.exports[m.function]
            fixed = [f"{{{position(n, maker)}, {v}}}" for n, v in m.fixed.items()]
            makers.append(f"{{{self.exports.number(m.function)}, {self.listed('Fixed', f'fixed_{number}_{k}', fixed)}}}")
        flags = [a.const, a.inout, a.optional, a.base == "unsigned int", not a.pointer and self.scales(a.name), late]
        size, unit = (a.type.size, a.type.unit) if a.type else (0, 0)
        domain = f.domains.get(a.name, SCALE_FACTORS if a.name == "scaleFactor" else [])
        joins = bool(a.record) and number > 0 and f.args[number - 1].name.partition(".")[0] == a.name.partition(".")[0]
        later = any(occurs(b.name, value) for b in f.args[number + 1 :] for value in domain)
        return (
            f"{{{quoted(a.name)}, Kind::{a.kind}, Element::{element}, {size}, {unit}, "
            f"{', '.join(str(x).lower() for x in flags)}, {self.integer(extent) if extent else 'nullptr'}, "
            f"{self.integer(a.room) if a.room else 'nullptr'}, {rows}, {a.bytes32()}, "
            f"{self.domain(str(number), domain)}, {str(later).lower()}, {str(joins).lower()}, {self.listed('Maker', f'makers_{number}', makers)}}}"
        )

    def named(self, n, number):
        query = "nullptr"
        if n.source == "size":
            q = self.f.queries[n.query]
            here = {m.name for m in self.f.named if m.source == "size" and m.query == n.query}
            if number == min(i for i, m in enumerate(self.f.named) if m.name in here):  # the others come with it
                args = [f"{{nullptr, {position(a, self.f)}}}" if a in here else f"{{{self.integer(a)}, 0}}" for a in q.args]
                table = self.listed("QueryArg", f"query_{n.query}_args", args)
                self.out.append(f"const Query query_{n.query}_{self.name} = {{{self.exports.number(q.function)}, {table}}};\n")
                query = f"&query_{n.query}_{self.name}"
        domain = self.domain(f"named_{number}", n.text.split()) if n.source == "chosen" else "nullptr, 0"
        value = self.integer(n.text) if n.source == "computed" else "nullptr"
        argument = position(n.argument, self.f) if n.argument else -1
        return f"{{{quoted(n.name)}, Source::{n.source}, {domain}, {value}, {query}, {argument}}}"

    def rule(self, r):
        other, numbers = -1, ["nullptr", "nullptr"]
        if r.kind in ("selects", "like"):
            other = position(r.operands[0], self.f)
        else:
            numbers[: len(r.operands)] = [self.number(x) for x in r.operands]
        places = [self.integer(p) for p in r.places] + ["nullptr"] * (2 - len(r.places))
        return f"{{{position(r.argument, self.f)}, Rule::{r.kind}, {', '.join(numbers)}, {other}, {', '.join(places)}}}"

    def makes(self):
        m = self.f.makes
        if not m:
            return "{-1, -1, -1}"
        what = len(self.f.args) if m.name == "result" else position(m.name, self.f)
        opaque = m.name != "result" and self.f.args[what].kind == "opaque"
        home = position(m.home, self.f) if m.home else what if opaque else -1
        return f"{{{what}, {home}, {self.exports.number(m.release) if m.release else -1}}}"

    def row(self):
        f = self.f
        args = self.listed("Arg", "args", [self.argument(a, i) for i, a in enumerate(f.args)])
        checks, told = [], []
        for c in f.failures():
            if c.when:
                told.append(f"Sts{c.status}")
                continue
            test = self.pool.add("bool", over_values(c.cpp(), f))
            checks.append(f"{{Sts{c.status}, {quoted(c.text())}, {str(c in f.late).lower()}, {test}}}")
        pairs = [f"{{{position(d, f)}, {position(s, f)}}}" for d, s in f.in_place]
        flags = [f.dispatched, f.moves_bits]
        return ", ".join(
            [
                f"{{{quoted(f.name)}, {quoted(f.family)}, {quoted(f.topic)}, Half::{f.half}",
                "true" if f.convention == "stdcall" else "false",
                f"Result::{RESULTS.get(f.returns, 'pointer')}, IndexForm::{INDEX[f.index]}",
                ", ".join(str(x).lower() for x in flags),
                args,
                self.listed("Check", "checks", checks),
                self.listed("int", "failures", told),
                self.listed("int", "warnings", [f"Sts{w}" for w in f.warnings]),
                self.listed("InPlace", "in_place", pairs),
                self.listed("Named", "named", [self.named(n, i) for i, n in enumerate(f.named)]),
                self.listed("ValueRule", "rules", [self.rule(r) for r in f.rules]),
                self.makes(),
                quoted(f.untested),
                quoted(" ".join(f.bodies)) + "}",
            ]
        )


class Exports:
    """The functions behind the exports that clauses name, and their places in the table."""

    def __init__(self, api, functions):
        self.behind = {name: f for name, f, form in api.exports() if form in ("plain", "index")}
        self.places = {id(f): i for i, f in enumerate(functions)}

    def __getitem__(self, name):
        return self.behind[name]

    def number(self, name):
        return self.places[id(self.behind[name])]


def files(api):
    pool = Pool()
    functions = sorted(api.functions, key=lambda f: (f.name, f.index == "written"))
    exports = Exports(api, functions)
    writers = [Writer(f, pool, exports) for f in functions]
    rows = [w.row() for w in writers]
    tables = "".join("".join(w.out) for w in writers)
    codes = "".join(f"Sts{name} = {code}, " for name, code in status_codes(api))
    text = (
        "// Generated from api/*.api; not edited.\n"
        '#include "registry.h"\n#include "sig5d_types.h"\n#include <cstring>\n\n'
        f"namespace registry {{\nnamespace {{\nenum {{ {codes}}};\n{FUNCTIONS}\n{pool.text()}\n{tables}\n"
        f"const Function all[] = {{\n    " + ",\n    ".join(rows) + "\n};\n} // namespace\n\n"
        "const Function* begin() { return all; }\nconst Function* end() { return all + sizeof all / sizeof *all; }\n\n"
        "const Function* find(const char* name)\n{\n    for (const Function& f : functions())\n"
        "        if (!std::strcmp(f.name, name)) return &f;\n    return nullptr;\n}\n} // namespace registry\n"
    )
    rows = "".join(f'{{"{v.name}", {i}, {v.features}, "{v.answers}"}},\n' for i, v in enumerate(api.variants.all))
    return {"registry.cpp": text, "variants.inc": rows}


def status_codes(api):
    """The codes that checks and warnings name, each once."""
    by_name = api.status_codes()
    used = {}
    for f in api.functions:
        for status in [c.status for c in f.failures()] + f.warnings:
            used[status] = by_name[status]
    return sorted(used.items())
