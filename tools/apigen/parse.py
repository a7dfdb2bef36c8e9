"""Reads api/*.api. The grammar is told in api/GRAMMAR.md; what it does not tell is a mistake."""
import re
from pathlib import Path

import expression
import variants
from model import FORMS, Api, Function, Type
from signature import argument, known_names, parse_args, parse_checks, parse_member, status, with_suffix
from statements import Mistake, Place, at, lines, split_list, statements

ONCE = {"types", "forms", "kernel", "checks", "fails", "late", "returns", "warns", "idx", "convention", "in_place", "moves",
        "fixture", "formula", "doc"}
REPEATED = {"form", "domain", "note"}
# Who builds arguments in tests: tools/registry/fixtures. none: nobody can.
FIXTURES = {"none", "fir", "bins", "bins_apart", "equal_width", "compare", "compare_and_list", "pack_index", "unpack_index",
            "pack_mask", "unpack_mask", "division"}
IDENTIFIER = r"[A-Za-z_]\w*"


def match(pattern, text, otherwise):
    found = re.fullmatch(pattern, text)
    if not found:
        raise Mistake(f"{otherwise}: {text}")
    return found


class Clauses:
    """The clauses of a shape or a family: those that may stand once by word, the others as lists."""

    def __init__(self, given):
        self.once, self.forms, self.domains, self.notes = {}, {}, {}, []
        for clause in given:
            with at(clause.place):
                self.add(clause)

    def add(self, clause):
        word, rest = clause.word, clause.rest
        if word not in ONCE | REPEATED:
            raise Mistake(f"unknown clause {word}")
        if (word == "moves") == bool(rest):
            raise Mistake(f"{word} {'takes nothing' if rest else 'says nothing'}")
        if word == "note":
            self.notes.append(clause)
            return
        table, key = self.once, word
        if word == "form":
            table, key = self.forms, match(r"(\w+)\s*\(.*", rest, "no form NAME (arguments)")[1]
            if key not in FORMS.values():
                raise Mistake(f"unknown form {key}; those with argument lists are {' '.join(dict.fromkeys(FORMS.values()))}")
        elif word == "domain":
            table, key = self.domains, match(r"(\w+)\s*=\s*\S.*", rest, "no domain NAME = values")[1]
        if key in table:
            raise Mistake(f"{word} {key} a second time" if key != word else f"{word} a second time")
        table[key] = clause

    def over(self, inherited):
        """These clauses, and those of the shape that they do not replace."""
        self.once = inherited.once | self.once
        self.forms = inherited.forms | self.forms
        self.domains = inherited.domains | self.domains
        self.notes = inherited.notes + self.notes
        return self

    def text(self, word, default=""):
        return self.once[word].rest if word in self.once else default

    def place(self, word, otherwise):
        return self.once[word].place if word in self.once else otherwise


class Shape:
    def __init__(self, place, args, clauses):
        self.place, self.args, self.clauses, self.used = place, args, clauses, False


class Parser:
    """`variants_file`: src/variants.txt."""

    def __init__(self, folder, variants_file):
        self.folder = Path(folder)
        self.api = Api({}, [], [], [], [], {}, {}, {}, variants.read(variants_file))
        self.common = {}  # the shapes of shapes.api; other shapes serve in their own file

    def read(self):
        order = ["types.api", "shapes.api"]
        self.read_statuses()
        for name in order + sorted(p.name for p in self.folder.glob("*.api") if p.name not in order + ["status.api"]):
            self.read_file(self.folder / name)
        self.read_ordinals()
        return self.api

    def read_statuses(self):
        for place, line in lines(self.folder / "status.api"):
            with at(place):
                code, name, text = match(r"(-?\d+)\s+(-|ippSts\w+)\s+(.*)", line, "no status").groups()
                if any(int(code) == s[0] or name == s[1] for s in self.api.statuses):
                    raise Mistake(f"status {code} {name} a second time")
                self.api.statuses.append((int(code), "" if name == "-" else name, text))

    def read_ordinals(self):
        """Line n names the export of ordinal n. Names may wait there for their functions."""
        for place, name in lines(self.folder / "ordinals.txt"):
            with at(place):
                match(IDENTIFIER, name, "no name of an export")
                if name in self.api.ordinals:
                    raise Mistake(f"{name} a second time")
                self.api.ordinals[name] = place.line
                if place.line != len(self.api.ordinals):
                    raise Mistake("a line without a name above: the number of the line is the ordinal")
        described = {}
        for name, f, _ in self.api.exports():
            with at(f.place):
                if name in described:
                    raise Mistake(f"{name} is described a second time, first at {described[name]}")
                described[name] = f.place
                if name not in self.api.ordinals:
                    raise Mistake(f"{name} has no line in ordinals.txt")

    def read_file(self, path):
        self.half = self.source = self.topic = ""
        self.shapes = dict(self.common)
        for statement in statements(path):
            with at(statement.place):
                self.statement(statement)
        if path.name == "shapes.api":
            self.common = self.shapes
        for shape in self.shapes.values():
            if not shape.used and path.name != "shapes.api" and shape.place.file == path.name:
                raise Mistake("a shape that no family has", shape.place)

    def statement(self, statement):
        handle = {"type": self.type, "opaque": self.opaque, "record": self.record, "half": self.set_half,
                  "topic": self.set_topic, "source": self.set_source, "shape": self.shape, "family": self.family}
        if statement.word not in handle:
            raise Mistake(f"unknown statement {statement.word}")
        if statement.clauses and statement.word not in ("shape", "family"):
            raise Mistake(f"{statement.word} has no clauses", statement.clauses[0].place)
        handle[statement.word](statement)

    def type(self, statement):
        m = match(r"(\w+)\s+(Ipp\w+)\s+(\w+)\s+(\d+)\s+(\d+)", statement.rest, "no type SUFFIX CTYPE KERNELTYPE SIZE UNIT")
        if m[1] in self.api.types:
            raise Mistake(f"type {m[1]} a second time")
        self.api.types[m[1]] = Type(m[1], m[2], m[3], int(m[4]), int(m[5]))

    def opaque(self, statement):
        for name in statement.rest.split():
            if name in self.api.opaque + self.api.records:
                raise Mistake(f"{name} a second time")
            self.api.opaque.append(name)

    def record(self, statement):
        self.api.records.append(match(IDENTIFIER, statement.rest, "no name of a record")[0])

    def set_half(self, statement):
        self.half = match("ipp|own", statement.rest, "neither ipp nor own")[0]

    def set_topic(self, statement):
        self.topic, title = match(r'(\w+)\s+"([^"]+)"', statement.rest, 'no topic NAME "Title"').groups()
        if self.topic in self.api.topics:
            raise Mistake(f"topic {self.topic} a second time")
        self.api.topics[self.topic] = title

    def set_source(self, statement):
        m = match(r"([\w/.]+\.cpp)(\s+dispatched)?", statement.rest, "no source FILE.cpp [dispatched]")
        self.source, kernels = m[1], m[1].endswith(variants.KERNELS)
        if kernels and m[2]:
            raise Mistake("functions of kernel files are dispatched in any case")
        if kernels and self.source not in self.api.variants.bodies:
            raise Mistake(f"{self.source} has no bodies in variants.txt")
        self.api.sources[self.source] = kernels or bool(m[2])

    def shape(self, statement):
        m = match(r"(\w+)\s*\((.*)\)", statement.rest, "no shape NAME (arguments)")
        if m[1] in self.shapes:
            raise Mistake(f"shape {m[1]} a second time, first at {self.shapes[m[1]].place}")
        self.shapes[m[1]] = Shape(statement.place, m[2], Clauses(statement.clauses))

    def family(self, statement):
        m = match(r"(\w+)\s*(?:\((.*)\)|\s(\w+))", statement.rest, "no family NAME (arguments) or NAME SHAPE")
        name, args, shape = m.groups()
        own = Clauses(statement.clauses)
        said = own
        if shape:
            if shape not in self.shapes:
                raise Mistake(f"unknown shape {shape}")
            self.shapes[shape].used = True
            args = self.shapes[shape].args
            said = Clauses(statement.clauses).over(self.shapes[shape].clauses)
        for missing, what in ((self.half, "half"), (self.topic, "topic"), (self.source, "source")):
            if not missing:
                raise Mistake(f"no {what} line above")
        made = self.members(name, args, said, statement.place)
        self.nothing_in_vain(made, own, said)
        self.api.functions += made

    def members(self, name, args, said, place):
        made = []
        with at(said.place("types", place)):
            tokens = [parse_member(t, name, self.api) for t in said.text("types").split()] or [(name, {})]
        forms = said.text("forms", "plain").split()
        for full, binding in tokens:
            if "T" in binding:  # R: the type of a part of T
                binding["R"] = self.api.types.get(binding["T"].suffix.rstrip("c"), binding["T"])
            for form in forms:
                with at(said.place("forms", place)):
                    if form not in FORMS or forms.count(form) > 1:
                        raise Mistake(f"form {form} twice" if form in FORMS else f"unknown form {form}")
                    if FORMS[form] != "plain" and FORMS[form] not in said.forms:
                        raise Mistake(f"form {form} needs a clause `form {FORMS[form]} (arguments) runs (values)`")
                made.append(Member(self, said, place, name, full, form, args, binding).function())
        return made

    def nothing_in_vain(self, made, own, said):
        """What is said of some arguments or forms must concern at least one function."""
        bases = {FORMS[f.form] for f in made}
        for form, clause in own.forms.items():
            if form not in bases:
                raise Mistake(f"form {form} is not among the forms", clause.place)
        for name, clause in said.domains.items():
            if not any(name in f.domains for f in made):
                raise Mistake(f"domain {name}: no such argument", clause.place)
        if "in_place" in said.once:
            with at(said.once["in_place"].place):
                for pair in split_list(said.text("in_place")):
                    names = tuple(match(r"(\w+)\s*=\s*(\w+)", pair, "no DESTINATION=SOURCE").groups())
                    if not any(names in f.in_place for f in made):
                        raise Mistake(f"no such arguments: {pair}")


class Member:
    """One function of a family."""

    def __init__(self, parser, said, place, family, full, form, args, binding):
        self.api, self.half, self.said, self.place = parser.api, parser.half, said, place
        self.family, self.full, self.form, self.binding = family, full, form, binding
        self.source, self.topic = parser.source, parser.topic
        self.index = self.one_of("idx", "auto", {"auto", "none", "only", "same", "written"})
        self.read_args(args)

    def within(self, word):
        return at(self.said.place(word, self.place))

    def one_of(self, word, default, allowed):
        with self.within(word):
            text = self.said.text(word, default)
            if text not in allowed:
                raise Mistake(f"unknown {word} {text}")
            return text

    def read_args(self, args):
        """The argument list, and how the kernel is called: with all arguments in their order, or as `runs` says."""
        written = self.index == "written"
        with at(self.place):
            plain = parse_args(args, self.binding, self.api, written)
        self.args, self.call, self.plain_call = plain, [a.name for a in plain], [a.name for a in plain]
        clause = self.said.forms.get(FORMS[self.form])
        if clause:
            with at(clause.place):
                m = match(r"\w+\s*\((.*?)\)(?:\s*runs\s*\((.*)\))?", clause.rest, "no form NAME (arguments) runs (values)")
                self.args = parse_args(m[1], self.binding, self.api, written)
                self.call = split_list(m[2]) if m[2] else [a.name for a in self.args]
                for name in self.call:
                    argument(name, self.args)
                for a in self.args:
                    if a.name not in self.call:
                        raise Mistake(f"runs passes no {a.name} on")
                if m[2] and len(self.call) != len(plain):
                    raise Mistake(f"runs has {len(self.call)} values, the plain form {len(plain)} arguments")
        if self.form.endswith("Sfs"):
            scale = parse_args("int scaleFactor", {}, self.api, False)
            self.args = self.args + scale
            self.call = self.call + ["scaleFactor"]
            self.plain_call = self.plain_call + ["scaleFactor"]
        with at(self.place):
            for a in self.args:
                self.check_extent(a)

    def check_extent(self, a):
        if not a.extent or self.said.text("fixture"):
            return  # the fixture knows values that are no arguments
        expression.check(a.extent, known_names(self.args))

    def failures(self):
        """Found by the entry shell, by the kernel before it writes, by the kernel after it has written."""
        found, before = [], []
        for word in ("checks", "fails", "late"):
            with self.within(word):
                text = self.said.text(word, "none")
                found.append(parse_checks(text, self.args, self.api, words=word != "checks", before=before))
                before = before + found[-1]
        return found

    def returns(self):
        with self.within("returns"):
            text = with_suffix(self.said.text("returns", "void" if self.half == "own" else "status"), self.binding)
            public = {t.public for t in self.api.types.values()}
            m = re.fullmatch(r"(?:const )?(\w+)\*", text)
            known = m[1] in public | set(self.api.records) | {"char", "void"} if m else text in public | {
                "status", "void", "int", "unsigned int"}
            if not known:
                raise Mistake(f"unknown type {text}")
            return text

    def in_place(self):
        names = {a.name for a in self.args}
        found = []
        with self.within("in_place"):
            for pair in split_list(self.said.text("in_place")):
                d, s = match(r"(\w+)\s*=\s*(\w+)", pair, "no DESTINATION=SOURCE").groups()
                if {d, s} <= names:
                    destination, source = argument(d, self.args), argument(s, self.args)
                    if {destination.kind, source.kind} != {"array"} or destination.const:
                        raise Mistake(f"no array that is written and one that is read: {pair}")
                    if destination.type != source.type:
                        raise Mistake(f"{d} and {s} hold different types")
                    found.append((d, s))
        return found

    def domains(self):
        found = {}
        for name, clause in self.said.domains.items():
            with at(clause.place):
                if name not in {a.name for a in self.args}:
                    continue  # another form's
                if argument(name, self.args).kind != "scalar":
                    raise Mistake(f"{name} is no number")
                found[name] = clause.rest.partition("=")[2].split()
                for value in found[name]:
                    expression.check(value, known_names([a for a in self.args if a.name != name]))
        return found

    def said_of_statuses(self, returns):
        words = [w for w in ("checks", "fails", "late", "warns") if w in self.said.once]
        if returns == "status" and self.half == "ipp" and "checks" not in self.said.once:
            raise Mistake("no checks: a function that returns a status says what it checks, or `checks none`")
        if returns != "status" and any(self.said.text(w) != "none" for w in words):
            raise Mistake(f"{words[0]}: the function returns no status", self.said.once[words[0]].place)

    def function(self):
        returns = self.returns()
        with at(self.place):
            self.said_of_statuses(returns)
            if not self.said.text("formula") and not self.said.text("doc"):
                raise Mistake("neither formula nor doc")
        with self.within("kernel"):
            kernel = match(IDENTIFIER + r"(<.+>)?", with_suffix(self.said.text("kernel"), self.binding), "no kernel")[0]
        with self.within("warns"):
            warnings = [status(name, self.api, error=False) for name in self.said.text("warns").split()]
        checks, fails, late = self.failures()
        stdcall = self.half == "ipp" and self.index != "written"
        return Function(
            name=self.full + ("" if self.form == "plain" else self.form),
            family=self.family,
            form=self.form,
            half=self.half,
            convention=self.one_of("convention", "stdcall" if stdcall else "cdecl", {"stdcall", "cdecl"}),
            returns=returns,
            args=self.args,
            checks=checks,
            fails=fails,
            late=late,
            warnings=warnings,
            kernel=kernel,
            call=self.call,
            plain_call=self.plain_call,
            source=self.source,
            bodies=self.api.variants.bodies.get(self.source, []),
            dispatched=self.api.sources[self.source],
            index=self.index,
            topic=self.topic,
            formula=self.said.text("formula"),
            doc=self.said.text("doc"),
            notes=[n.rest for n in self.said.notes],
            in_place=self.in_place(),
            domains=self.domains(),
            moves_bits="moves" in self.said.once,
            fixture=self.one_of("fixture", "", FIXTURES | {""}),
            types=[self.binding[k] for k in "TUVW" if k in self.binding],
            place=self.place,
        )
