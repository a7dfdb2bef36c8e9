"""Writes the registry: every function of the interface as data (tools/registry/registry.h)."""
import re

ELEMENTS = {"24u": "u24", "24s": "i24", "1u": "bits"}
RESULTS = {"status": "status", "void": "none", "int": "i32", "unsigned int": "u32", "Ipp64u": "u64", "Ipp64f": "f64"}
# Worth trying for every scale factor: the widths of the types, and where doubles and shortcuts for them end.
SCALE_FACTORS = (
    "0 1 2 3 5 7 8 15 16 17 31 32 33 63 64 100 -1 -2 -5 -8 -16 -31 -32 -33 "
    "898 901 1000 1022 1024 1040 1074 1100 -898 -901 -970 -1000 -1023 -1040 2147483647 -2147483647 -2147483647-1"
).split()
INDEX = {"auto": "automatic", "none": "none", "only": "only", "same": "same", "written": "written"}


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


def over_values(expression, args):
    """Argument names become members of the value array: len -> a[3].i, val.im -> a[1].im, *pPhase -> what it points to."""

    def value(match):
        star, name, part = match.group(1) or "", match.group(2), match.group(3)
        for i, a in enumerate(args):
            if a.name != name:
                continue
            if a.pointer:
                return f"(*static_cast<const {a.base}*>(a[{i}].p))" if star else f"a[{i}].p"
            if part:
                return f"a[{i}]{part}"
            floating = a.type and a.type.kernel in ("f32", "f64", "c32f", "c64f")
            return star + (f"a[{i}].re" if floating else f"a[{i}].i")
        return match.group(0)

    return re.sub(r"((?<![\w\])])\*)?(?<![.\w>])\b([A-Za-z_]\w*)\b(\.re\b|\.im\b)?", value, expression)


def known(expression, f):
    """Whether the arguments alone give the value; otherwise only the fixture that builds the arguments knows it."""
    names = {a.name for a in f.args} | {"long", "int", "unsigned"}
    return not f.fixture or set(re.findall(r"[A-Za-z_]\w*", expression)) <= names


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def table(kind, name, rows):
    return f"const {kind} {name}[] = {{{', '.join(rows)}}};\n" if rows else ""


def argument(a, args, pool, f, number, out):
    element = ELEMENTS.get(a.type.suffix, a.type.kernel) if a.type else "none"
    given = a.extent and a.pointer and known(a.extent, f)
    extent = pool.add("long long", f"(long long)({over_values(a.extent, args)})") if given else "nullptr"
    domain, count = "nullptr", 0
    worth_trying = f.domains.get(a.name, SCALE_FACTORS if a.name == "scaleFactor" else [])
    if worth_trying:
        values = [pool.add("double", f"double({over_values(v, args)})") for v in worth_trying]
        domain, count = f"domain_{f.name}_{f.index}_{number}", len(values)
        out.append(f"double (*const {domain}[])(const Value*) = {{{', '.join(values)}}};\n")
    in_extent = not a.pointer and any(re.search(rf"\b{a.name}\b", b.extent) for b in args)
    flags = [a.const, a.inout, a.optional, a.base == "unsigned int", in_extent]
    size, unit = (a.type.size, a.type.unit) if a.type else (0, 0)
    return (
        f"{{{quoted(a.name)}, Kind::{a.kind}, Element::{element}, {size}, {unit}, "
        f"{', '.join(str(x).lower() for x in flags)}, {extent}, {a.bytes32()}, {domain}, {count}}}"
    )


def function(f, pool, out):
    n = f.name + ("_Idx" if f.index == "written" else "")
    position = {a.name: i for i, a in enumerate(f.args)}
    out.append(table("Arg", f"args_{n}", [argument(a, f.args, pool, f, i, out) for i, a in enumerate(f.args)]))
    checks = []
    for c in f.checks:
        test = pool.add("bool", over_values(c.cpp(), f.args))
        checks.append(f"{{Sts{c.status}, {quoted(c.text())}, {test}}}")
    out.append(table("Check", f"checks_{n}", checks))
    out.append(table("int", f"warnings_{n}", [f"Sts{w}" for w in f.warnings]))
    pairs = [f"{{{position[d]}, {position[s]}}}" for d, s in f.in_place]
    out.append(table("InPlace", f"in_place_{n}", pairs))

    def listed(prefix, rows):
        return f"{prefix}_{n}, {len(rows)}" if rows else "nullptr, 0"

    flags = [f.dispatched, f.checks_in_kernel, f.moves_bits]
    return ", ".join(
        [
            f"{{{quoted(f.name)}, {quoted(f.family)}, {quoted(f.topic)}, Half::{f.half}",
            "true" if f.convention == "stdcall" else "false",
            f"Result::{RESULTS.get(f.returns, 'pointer')}, IndexForm::{INDEX[f.index]}",
            ", ".join(str(x).lower() for x in flags),
            listed("args", f.args),
            listed("checks", f.checks),
            listed("warnings", f.warnings),
            listed("in_place", f.in_place),
            quoted(f.fixture),
            quoted(" ".join(f.bodies)) + "}",
        ]
    )


def files(api):
    pool, out = Pool(), []
    rows = [function(f, pool, out) for f in sorted(api.functions, key=lambda f: (f.name, f.index == "written"))]
    codes = "".join(f"Sts{name} = {code}, " for name, code in status_codes(api))
    text = (
        "// Generated from api/*.api; not edited.\n"
        '#include "registry.h"\n#include "sig5d_types.h"\n#include <cstring>\n\n'
        f"namespace registry {{\nnamespace {{\nenum {{ {codes}}};\n\n{pool.text()}\n{''.join(out)}\n"
        f"const Function all[] = {{\n    " + ",\n    ".join(rows) + "\n};\n} // namespace\n\n"
        "const Function* begin() { return all; }\nconst Function* end() { return all + sizeof all / sizeof *all; }\n\n"
        "const Function* find(const char* name)\n{\n    for (const Function& f : functions())\n"
        "        if (!std::strcmp(f.name, name)) return &f;\n    return nullptr;\n}\n} // namespace registry\n"
    )
    return {"registry.cpp": text}


def status_codes(api):
    """The codes that checks and warnings name, each once."""
    by_name = {name[len("ippSts"):]: code for code, name, _ in api.statuses if name}
    used = {}
    for f in api.functions:
        for status in [c.status for c in f.checks] + f.warnings:
            used[status] = by_name[status]
    return sorted(used.items())
