"""Reads api/*.api. The grammar is told in api/GRAMMAR.md."""
import re
from pathlib import Path

from model import Api, Arg, Check, Function, Type

PLAIN_BASES = {"int": "int", "uint": "unsigned int", "void": "void", "char": "char"}


class Mistake(Exception):
    pass


def split_list(text, separator=","):
    """Splits at separators that stand outside parentheses, brackets and braces."""
    parts, depth, start = [], 0, 0
    for i, ch in enumerate(text):
        depth += ch in "([{"
        depth -= ch in ")]}"
        if ch == separator and depth == 0:
            parts.append(text[start:i].strip())
            start = i + 1
    parts.append(text[start:].strip())
    return [p for p in parts if p]


def parse_arg(text, binding, api):
    """One argument: `const T pSrc[len]`, `T* pMean`, `work pBuf[size]`, `index srcIdx`, `int len`, `R level`."""
    m = re.fullmatch(r"(const\s+|inout\s+)?([\w{}]+)\s*(\**)\s*(\w+)\s*(\[(.*)\])?(\?)?", text)
    if not m:
        raise Mistake("argument not understood: " + text)
    access, base, stars, name, _, extent, optional = m.groups()
    access = (access or "").strip()
    base = base.replace("{T}", binding["T"].suffix if "T" in binding else "")
    arg = Arg(name, "scalar", const=access == "const", inout=access == "inout", optional=bool(optional), extent=(extent or "").strip())
    kind_of = binding.get(base) or api.types.get(base)
    if base == "work":
        arg.kind, arg.type, arg.base, arg.stars = "work", api.types["8u"], "Ipp8u", 1
    elif base == "index":
        arg.kind, arg.base = "index", "int"
    elif kind_of:
        arg.type, arg.base, arg.stars = kind_of, kind_of.public, len(stars)
        if extent is not None and not stars:
            arg.kind, arg.stars = "array", 1
        elif stars:
            arg.kind, arg.extent = "result", arg.extent or "1"
    elif base in PLAIN_BASES:
        arg.base, arg.stars = PLAIN_BASES[base], len(stars)
        if stars:
            arg.kind = "pointer" if base in ("void", "char") else "result"
            arg.extent = arg.extent or "1"
            arg.type = {"int": api.types["32s"], "uint": api.types["32u"]}.get(base)
        elif extent is not None:
            arg.kind, arg.stars = "array", 1
            arg.type = {"int": api.types["32s"], "uint": api.types["32u"]}[base]
    elif base in api.opaque and stars:
        arg.kind, arg.base, arg.stars = "opaque", base, len(stars)
    else:
        raise Mistake("unknown type in: " + text)
    return arg


def parse_args(text, binding, api):
    args = [parse_arg(t, binding, api) for t in split_list(text)]
    for before, a in zip(args, args[1:]):
        if a.kind == "index":
            a.applies_to = before.name
    return args


def parse_checks(text, args):
    """`null; size; level < 0 : ThreshNegLevelErr`; `own` first says that the kernel makes the checks itself."""
    checks, own = [], False
    for clause in split_list(text, ";"):
        if clause == "own":
            own = True
        elif clause == "none":
            pass
        elif clause.startswith("null"):
            m = re.fullmatch(r"null(?:\((.*?)\))?(?:\s*:\s*(\w+))?", clause)
            names = split_list(m[1]) if m[1] else [a.name for a in args if a.pointer and not a.optional]
            checks.append(Check(m[2] or "NullPtrErr", nulls=names))
        elif clause.startswith("size"):
            m = re.fullmatch(r"size(?:\((\w+)\))?", clause)
            checks.append(Check("SizeErr", condition=(m[1] or "len") + " < 1"))
        else:
            condition, status = clause.rsplit(":", 1)
            checks.append(Check(status.strip(), condition=condition.strip()))
    return checks, own


def parse_member(token, family, api):
    """`16s` -> ippsAdd_16s; `8u32f` two types; `cd:64fc,64f` own suffix; `=Name:types` a whole name."""
    name, _, listed = token.partition(":")
    if listed:
        types = [api.types[t] for t in listed.split(",")]
        full = name[1:] if name.startswith("=") else family + name
    else:
        found = re.findall(r"\d+(?:sc|fc|[usf])", name)
        types = [api.types[t] for t in found]
        full = family + "_" + name
    return full, {k: t for k, t in zip("TUVW", types)}


class Parser:
    def __init__(self, folder):
        self.folder = Path(folder)
        self.api = Api({}, [], [], [], {}, {}, {})
        self.shapes = {}
        self.half = "ipp"
        self.source = self.topic = ""

    def read(self):
        order = ["types.api", "shapes.api"]
        rest = sorted(p.name for p in self.folder.glob("*.api") if p.name not in order + ["status.api"])
        self.read_statuses()
        for name in order + rest:
            self.read_file(self.folder / name)
        names = (self.folder / "ordinals.txt").read_text().split()
        self.api.ordinals = {n: i + 1 for i, n in enumerate(names)}
        return self.api

    def read_statuses(self):
        for line in (self.folder / "status.api").read_text().splitlines():
            if line.strip() and not line.startswith("#"):
                code, name, text = line.split(None, 2)
                self.api.statuses.append((int(code), "" if name == "-" else name, text))

    def read_file(self, path):
        block = []
        for number, raw in enumerate(path.read_text().splitlines() + ["end"], 1):
            line = raw.split("#")[0].rstrip() if not raw.lstrip().startswith("doc") else raw.rstrip()
            if not line.strip():
                continue
            if line[0] in " \t":
                if re.match(r"\s{8,}", line) and block:  # continuation of the clause above
                    block[-1] += " " + line.strip()
                else:
                    block.append(line.strip())
                continue
            try:
                if block:
                    self.statement(block)
            except (Mistake, KeyError, TypeError, ValueError) as error:
                raise SystemExit(f"{path.name}:{number}: before this line: {block[0]}: {error!r}")
            block = [line.strip()]

    def statement(self, block):
        word, _, rest = block[0].partition(" ")
        if word == "type":
            suffix, public, kernel, size, unit = rest.split()
            self.api.types[suffix] = Type(suffix, public, kernel, int(size), int(unit))
        elif word == "opaque":
            self.api.opaque += rest.split()
        elif word == "half":
            self.half = rest.strip()
        elif word == "topic":
            self.topic, _, title = rest.partition(" ")
            self.api.topics[self.topic] = title.strip().strip('"')
        elif word == "source":
            self.source, _, rest = rest.partition(" ")
            words = rest.split()
            dispatched = self.source.endswith(".kernels.cpp") or "dispatched" in words
            bodies = words[words.index("bodies") + 1 :] if "bodies" in words else ["px", "w7", "p8", "g9", "h9"]
            self.api.sources[self.source] = (bodies if self.source.endswith(".kernels.cpp") else [], dispatched)
        elif word == "shape":
            name, args = re.fullmatch(r"(\w+)\s*\((.*)\)", rest).groups()
            self.shapes[name] = (args, block[1:])
        elif word == "family":
            self.family(rest, block[1:])
        elif word != "end":
            raise Mistake("unknown statement " + word)

    def family(self, head, clauses):
        m = re.fullmatch(r"(\w+)\s*(?:\((.*)\)|(\w+))?", head)
        name, args, shape = m.groups()
        if shape:
            args, inherited = self.shapes[shape]
            clauses = inherited + clauses
        said = {"note": [], "form": {}}
        for c in clauses:
            key, _, value = c.partition(" ")
            if key == "form":
                form, _, rule = value.partition(" ")
                said["form"][form] = rule.strip()
            elif key in ("note", "domain"):
                said.setdefault(key, []).append(value.strip())
            else:
                said[key] = value.strip()
        self.place(said)
        for token in said.get("types", "").split() or [None]:
            full, binding = parse_member(token, name, self.api) if token else (name, {})
            for form in said.get("forms", "plain").split():
                self.api.functions.append(self.member(name, full, form, args or "", binding, said))

    def place(self, said):
        if not self.source:
            raise Mistake("no source line above")
        if self.topic not in self.api.topics:
            raise Mistake("no topic line above")

    def member(self, family, full, form, args_text, binding, said):
        part = binding.get("T")
        if part:  # R: the type of a part of T
            binding = dict(binding, R=self.api.types.get(part.suffix.rstrip("c"), part))
        base = {"_ISfs": "_I", "_ISFS": "_I", "_Sfs": "plain", "_SFS": "plain"}.get(form, form)
        runs = None
        if base in said["form"]:
            m = re.fullmatch(r"\((.*?)\)(?:\s*runs\s*\((.*)\))?", said["form"][base])
            args_text, runs = m.groups()
        args = parse_args(args_text, binding, self.api)
        call = split_list(runs) if runs else [a.name for a in args]
        if form.endswith("Sfs"):
            args.append(Arg("scaleFactor", "scalar", base="int"))
            call.append("scaleFactor")
        checks, own = parse_checks(said.get("checks", ""), args)
        if base == "_I" and "checks_I" in said:
            checks, own = parse_checks(said["checks_I"], args)
        bodies, dispatched = self.api.sources[self.source]
        index = said.get("idx", "auto")
        names = {a.name for a in args}
        suffix = part.suffix if part else ""
        pairs = [tuple(p.strip().split("=")) for p in split_list(said.get("in_place", ""))]
        return Function(
            name=full + ("" if form == "plain" else form),
            family=family,
            half=self.half,
            convention=said.get("convention", "cdecl" if self.half == "own" or index == "written" else "stdcall"),
            returns=said.get("returns", "void" if self.half == "own" else "status").replace("{T}", suffix),
            args=args,
            checks=checks,
            checks_in_kernel=own,
            kernel=said["kernel"].replace("{T}", suffix),
            call=call,
            source=self.source,
            bodies=bodies,
            dispatched=dispatched,
            index=index,
            topic=self.topic,
            formula=said.get("formula", ""),
            doc=said.get("doc", ""),
            notes=said["note"],
            warnings=said.get("warns", "").split(),
            in_place=[p for p in pairs if set(p) <= names],
            domains={d.split("=", 1)[0].strip(): d.split("=", 1)[1].split() for d in said.get("domain", [])},
            moves_bits="moves" in said,
            fixture=said.get("fixture", ""),
            types=[binding[k] for k in "TUVW" if k in binding],
        )
