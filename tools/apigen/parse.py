"""Reads api/*.api. The grammar is told in api/GRAMMAR.md; what it does not tell is a mistake."""
from pathlib import Path

import building
import variants
from clauses import Clauses
from member import Member
from model import FORMS, Api, Type
from signature import parse_member
from statements import IDENTIFIER, Mistake, at, lines, match, split_list, statements


class Shape:
    def __init__(self, place, args, clauses):
        self.place, self.args, self.clauses, self.used = place, args, clauses, False


class Parser:
    """`variants_file`: src/variants.txt."""

    def __init__(self, folder, variants_file):
        self.folder = Path(folder)
        self.api = Api({}, [], {}, [], [], {}, {}, {}, variants.read(variants_file))
        self.common = {}  # the shapes of shapes.api; other shapes serve in their own file

    def read(self):
        order = ["types.api", "shapes.api"]
        self.read_statuses()
        for name in order + sorted(p.name for p in self.folder.glob("*.api") if p.name not in order + ["status.api"]):
            self.read_file(self.folder / name)
        self.read_ordinals()
        building.check(self.api)
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
        handle = {
            "type": self.type, "opaque": self.opaque, "record": self.record, "half": self.set_half,
            "topic": self.set_topic, "source": self.set_source, "shape": self.shape, "family": self.family,
        }
        if statement.word not in handle:
            raise Mistake(f"unknown statement {statement.word}")
        if statement.clauses and statement.word not in ("shape", "family"):
            raise Mistake(f"{statement.word} has no clauses", statement.clauses[0].place)
        handle[statement.word](statement)

    def type(self, statement):
        pattern = r"(\w+)\s+(Ipp\w+)\s+(\w+)\s+(\d+)\s+(\d+)(?:\s+(\d+))?"
        m = match(pattern, statement.rest, "no type SUFFIX CTYPE KERNELTYPE SIZE UNIT [CODE]")
        if m[1] in self.api.types:
            raise Mistake(f"type {m[1]} a second time")
        self.api.types[m[1]] = Type(m[1], m[2], m[3], int(m[4]), int(m[5]), int(m[6] or 0))

    def opaque(self, statement):
        for name in statement.rest.split():
            if name in self.api.opaque + list(self.api.records):
                raise Mistake(f"{name} a second time")
            self.api.opaque.append(name)

    def record(self, statement):
        m = match(rf"({IDENTIFIER})(?:\s*\((.+)\))?", statement.rest, "no record NAME [(int MEMBER, ...)]")
        members = [match(rf"int ({IDENTIFIER})", t, "no int MEMBER")[1] for t in split_list(m[2] or "")]
        self.api.records[m[1]] = members

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
        if any(self.source in files for files in self.api.variants.internal.values()):
            raise Mistake(f"{self.source} is internal in variants.txt: it has no exports")
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
                member = Member(self, said, place, name, full, form, args, binding)
                made.append(member.function())
                said.concerned += member.building.concerned
        return made

    def nothing_in_vain(self, made, own, said):
        """What is said of some arguments or forms must concern at least one function."""
        bases = {FORMS[f.form] for f in made}
        for form, clause in own.forms.items():
            if form not in bases:
                raise Mistake(f"form {form} is not among the forms", clause.place)
        for clause in said.building.values():
            if not any(clause is c for c in said.concerned):
                raise Mistake(f"{clause.word} {clause.rest.split()[0]}: no such argument", clause.place)
        if "in_place" in said.once:
            with at(said.once["in_place"].place):
                for pair in split_list(said.text("in_place")):
                    names = tuple(match(r"(\w+)\s*=\s*(\w+)", pair, "no DESTINATION=SOURCE").groups())
                    if not any(names in f.in_place for f in made):
                        raise Mistake(f"no such arguments: {pair}")
