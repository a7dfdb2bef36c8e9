"""Arguments, checks and members: what clauses say about one function."""
import re

import expression
from model import Arg, Check, Rows
from statements import Mistake, split_list

PLAIN_BASES = {"int": "int", "uint": "unsigned int", "void": "void", "char": "char"}


def scalar_or_pointer(arg, base, stars, extent, binding, api):
    """Completes an argument of an element type, a plain C type, or an opaque record."""
    element = binding.get(base) or api.types.get(base)
    if element or base in ("int", "uint"):
        arg.type = element or (api.types[{"int": "32s", "uint": "32u"}[base]] if stars or extent else None)
        arg.base, arg.stars = element.public if element else PLAIN_BASES[base], stars
        if extent and stars:
            raise Mistake(f"either a * or an extent: {arg.name}")
        if extent:
            arg.kind, arg.stars = "array", 1
        elif stars:
            arg.kind, arg.extent = "result", "1"
    elif base in PLAIN_BASES and stars and not extent:
        arg.kind, arg.base, arg.stars = "pointer", PLAIN_BASES[base], stars
        arg.extent = "1"
    elif base in api.opaque and (stars == 1 or stars == 2 and not extent):
        arg.kind, arg.base, arg.stars = "opaque" if stars == 1 else "handle", base, stars
    else:
        raise Mistake(f"unknown type {base}: {arg.name}")


def parse_arg(text, binding, api):
    """One argument: `const T pSrc[len]`, `T* pMean`, `work pBuf[size]`, `index srcIdx`, `int len`, `R level`."""
    m = re.fullmatch(r"(?:(const|inout)\s+)?([\w{}]+)\s*(\**)\s*(\w+)\s*(?:\[(.+)\])?(\?)?", text)
    if not m:
        raise Mistake(f"no argument: {text}")
    access, base, stars, name, extent, optional = m.groups()
    base = with_suffix(base, binding)
    arg = Arg(name, "scalar", const=access == "const", inout=access == "inout", optional=bool(optional))
    read_extent(arg, (extent or "").strip())
    if base == "work" and extent and not stars:
        arg.kind, arg.type, arg.base, arg.stars = "work", api.types["8u"], "Ipp8u", 1
    elif base == "index" and not stars and not extent:
        arg.kind, arg.base = "index", "int"
    else:
        scalar_or_pointer(arg, base, len(stars), extent, binding, api)
    if not arg.pointer and (access or optional):
        raise Mistake(f"{access or '?'} is for pointers: {text}")
    return arg


def read_extent(arg, text):
    """`len`; `*count, at most n`, where the call tells how much it writes; `rows of cols every stride [bytes]`, and
    where in them the pointer points: `from row r column c`."""
    arg.extent, _, room = text.partition(", at most ")
    arg.room = room.strip()
    rows = re.fullmatch(r"(.+) of (.+) every (.+?)( bytes(?: from row (.+) column (.+))?)?", arg.extent)
    if rows:
        arg.rows = Rows(rows[1], rows[2], rows[3], bool(rows[4]), rows[5] or "0", rows[6] or "0")


def parse_record(text, api):
    """`IppiSize roi`: the members of a record by value, an argument each: roi.width, roi.height. Else: none."""
    m = re.fullmatch(r"(\w+)\s+(\w+)", text)
    members = api.records.get(m[1], []) if m else []
    return [Arg(f"{m[2]}.{member}", "scalar", base="int", record=m[1]) for member in members]


def parse_args(text, binding, api, indices):
    """`indices`: the argument list is that of an _Idx form itself."""
    args = []
    for t in split_list(text):
        args += parse_record(t, api) or [parse_arg(t, binding, api)]
    for i, a in enumerate(args):
        if any(a.name == b.name for b in args[:i]):
            raise Mistake(f"two arguments {a.name}")
        if a.kind == "index":
            if not indices:
                raise Mistake(f"index {a.name}: only where `idx written` says that the list is that of the _Idx form")
            if i == 0 or args[i - 1].kind not in ("array", "work"):
                raise Mistake(f"index {a.name} does not follow an array")
            a.applies_to = args[i - 1].name
    return args


def with_suffix(text, binding):
    """{T} is the suffix of T, {T.code} its number in arguments that choose a type."""
    code = binding["T"].code if "T" in binding else 0
    if "{T.code}" in text and not code:
        raise Mistake(f"{{T.code}} in a function whose type has no number: {text}")
    text = text.replace("{T.code}", str(code))
    if "{T}" in text and "T" not in binding:
        raise Mistake(f"{{T}} in a function without element types: {text}")
    return text.replace("{T}", binding["T"].suffix if "T" in binding else "")


def known_names(args):
    """What expressions may name (expression.check); building.py adds values that are no arguments."""
    by_name = {a.name: a for a in args}

    def kind(name):
        a = by_name.get(name)
        if not a or a.kind == "index":
            return None
        value = "complex" if a.type and a.type.suffix.endswith("c") else "number"
        if not a.pointer:
            return value
        return f"pointer to {value}" if a.kind in ("array", "result") and a.stars == 1 else "pointer"

    return kind


def argument(name, args):
    for a in args:
        if a.name == name:
            return a
    raise Mistake(f"{name} is no argument")


def status(name, api, error):
    """`error`: whether it is to be an error or a warning."""
    code = api.status_codes().get(name)
    if code is None:
        raise Mistake(f"unknown status {name}")
    if (code < 0) != error:
        raise Mistake(f"{name} is no {'error' if error else 'warning'}")
    return name


def parse_check(text, args, api, words, before, known):
    """One item of `checks`, `fails` or `late`. `words`: it may be `Status when ...`, told in words."""
    m = re.fullmatch(r"(\w+)\s+when\s+(.+)", text)
    if m and words:
        return Check(status(m[1], api, error=True), when=m[2])
    m = re.fullmatch(r"null(?:\s*\((.*?)\))?(?:\s+if\s+(.+))?", text)
    if m:
        seen = {name for c in before if not c.only_if for name in c.nulls}
        others = [a.name for a in args if a.pointer and not a.optional and a.name not in seen]
        names = split_list(m[1]) if m[1] is not None else others
        if not names:
            raise Mistake("null: no pointer to be looked at")
        for name in names:
            if not argument(name, args).pointer:
                raise Mistake(f"{name} is no pointer: {text}")
        if m[2]:
            expression.check(m[2], known)
        return Check("NullPtrErr", nulls=names, only_if=m[2] or "")
    m = re.fullmatch(r"size(?:\s*\(\s*(\w+)\s*\))?", text)
    if m:
        name = m[1] or "len"
        if argument(name, args).pointer:
            raise Mistake(f"{name} is no number: {text}")
        return Check("SizeErr", condition=f"{name} < 1")
    condition, colon, name = text.rpartition(":")
    if not colon or not re.fullmatch(r"\s*\w+", name):
        raise Mistake(f"no check: {text}")
    expression.check(condition, known)
    return Check(status(name.strip(), api, error=True), condition=condition.strip())


def parse_checks(text, args, api, words, before, known):
    """`before`: the checks made earlier; `null` means the pointers that these have left. `known`: for expressions."""
    found = []
    if text != "none":
        for item in split_list(text, ";"):
            found.append(parse_check(item, args, api, words, before + found, known))
    return found


def parse_member(token, family, api):
    """`16s` -> ippsAdd_16s; `8u32f` two types; `cd:64fc,64f` own suffix; `=Name:types` a whole name."""
    name, colon, listed = token.partition(":")
    if colon:
        found = listed.split(",")
        full = name[1:] if name.startswith("=") else family + name
    else:
        found = re.findall(r"\d+(?:sc|fc|[usf])", name)
        full = family + "_" + name
        if "".join(found) != name:
            raise Mistake(f"no element types: {token}")
    for suffix in found:
        if suffix not in api.types:
            raise Mistake(f"unknown element type {suffix}: {token}")
    types = [api.types[t] for t in found]
    return full, dict(zip("TUVW", types))
