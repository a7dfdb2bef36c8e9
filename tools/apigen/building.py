"""The clauses that tell how arguments are built for a call: which values they may have, which calls give sizes, which
make states. Told in api/GRAMMAR.md."""
import re

import expression
from model import Maker, Makes, Named, Query, Rule
from signature import known_names, with_suffix
from statements import IDENTIFIER, Mistake, at, match, split_list

RULES = [
    (r"not (\S+)", "other"),
    (r"below (\S+) apart", "apart"),
    (r"below (\S+)", "below"),
    (r"within (\S+) (\S+)", "within"),
    (r"often within (\S+) (\S+)", "often_within"),
    (r"selects (\w+)", "selects"),
    (r"like (\w+)", "like"),
]
PLACES = r"(\w+)(?: at (\S+)(?: every (\S+))?)? "  # of which elements a rule speaks
RULED_TYPES = ("u8", "i8", "u16", "i16", "u32", "i32", "f32", "f64", "c64f")


class Building:
    """What the clauses come to for one list of arguments. Those about arguments of other forms are passed over."""

    def __init__(self, clauses, args, binding):
        self.args, self.binding = {a.name: a for a in args}, binding
        self.domains, self.named, self.queries, self.makers, self.rules, self.made = {}, [], [], [], [], None
        self.concerned = []  # the clauses that are about these arguments
        for clause in clauses:
            with at(clause.place):
                if getattr(self, clause.word)(with_suffix(clause.rest, binding)):
                    self.concerned.append(clause)

    def known(self, name):
        """For expressions: arguments, names, and values of the calls that made states (looked for by `check` below)."""
        state, dot, value = name.partition(".")
        if dot and any(m.argument == state for m in self.makers):
            if all(n.name != name for n in self.named):
                self.named.insert(sum(n.source == "ofState" for n in self.named), Named(name, "ofState", argument=state))
            return "number"
        if any(n.name == name for n in self.named):
            return "number"
        return known_names(self.args.values())(name)

    def expression(self, text):
        expression.check(text, self.known)
        return text

    def new_name(self, name):
        if name in self.args or any(n.name == name for n in self.named):
            raise Mistake(f"{name} is there already")
        return name

    def values_of(self, text, name):
        """`1 2 len+1 3..9`: values worth trying."""
        for value in text.split():
            for bound in value.split("..", 1):
                expression.check(bound, lambda n: None if n == name else self.known(n))
        return text.split()

    def domain(self, text):
        name, values = match(r"([\w.]+)\s*=\s*(\S.*)", text, "no domain NAME = values").groups()
        if name not in self.args:
            return False
        kinds = ("scalar", "result") if self.args[name].inout else ("scalar",)
        if self.args[name].kind not in kinds:
            raise Mistake(f"{name} is no number")
        self.domains[name] = self.values_of(values, name)
        return True

    def some(self, text):
        name, values = match(rf"({IDENTIFIER})\s*=\s*(\S.*)", text, "no some NAME = values").groups()
        self.values_of(values, name)
        self.named.append(Named(self.new_name(name), "chosen", values))
        return True

    def let(self, text):
        name, value = match(rf"({IDENTIFIER})\s*=\s*(\S.*)", text, "no let NAME = expression").groups()
        self.expression(value)
        self.named.append(Named(self.new_name(name), "computed", value))
        return True

    def sizes(self, text):
        function, given = match(r"(\w+)\s*\((.*)\)", text, "no sizes FUNCTION(values, names)").groups()
        query = Query(function, split_list(given))
        new = [g for g in query.args if re.fullmatch(IDENTIFIER, g) and not self.known(g)]
        for g in query.args:
            if g not in new:
                self.expression(g)
        self.named += [Named(name, "size", query=len(self.queries)) for name in new]
        self.queries.append(query)
        return True

    def state(self, text):
        name, maker, fixed = match(r"(\w+) by (\w+)(?: with (.+))?", text, "no state NAME by FUNCTION").groups()
        if name not in self.args:
            return False
        if self.args[name].kind not in ("opaque", "pointer"):
            raise Mistake(f"{name} is no record")
        pairs = [match(r"(\w+)=(-?\d+)", p, "no NAME=NUMBER").groups() for p in (fixed or "").split()]
        self.makers.append(Maker(name, maker, dict(pairs)))
        return True

    def makes(self, text):
        pattern = r"(\w+)(?: in (\w+))?(?: released by (\w+))?"
        name, home, release = match(pattern, text, "no makes NAME [in NAME] [released by FUNCTION]").groups()
        if name != "result" and (name not in self.args or self.args[name].kind not in ("opaque", "handle")):
            raise Mistake(f"{name} is no record, nor where the address of one is stored")
        if home and (home not in self.args or self.args[home].kind != "work"):
            raise Mistake(f"{home} is no work buffer")
        self.made = Makes(name, home or "", release or "")
        return True

    def values(self, text):
        for pattern, kind in RULES:
            m = re.fullmatch(PLACES + pattern, text)
            if m:
                return self.rule(m[1], [m[2], m[3]], kind, list(m.groups()[3:]))
        raise Mistake(f"no rule: {text}")

    def rule(self, name, places, kind, operands):
        if name not in self.args:
            return False
        a = self.args[name]
        if a.kind not in ("array", "scalar") or (a.kind == "array" and a.type.kernel not in RULED_TYPES):
            raise Mistake(f"no rule is for {name}")
        if kind == "selects":
            self.named.append(Named(self.new_name(operands[0]), "counted", argument=name))
        elif kind == "like":
            if operands[0] not in self.args:
                raise Mistake(f"{operands[0]} is no argument")
        else:
            for operand in operands:
                self.expression(operand)
        places = [self.expression(p) for p in places if p]
        if places and (a.kind != "array" or kind not in ("other", "within", "often_within")):
            raise Mistake(f"no rule for some elements of {name}")
        self.rules.append(Rule(name, kind, operands, places))
        return True


def occurs(name, text):
    return bool(re.search(rf"(?<![.\w]){re.escape(name)}\b", text))


def texts_of(f):
    """All expressions of a function."""
    found = [t for a in f.args for t in (a.extent, a.room)] + [c.condition + c.only_if for c in f.failures()]
    found += [n.text for n in f.named] + [t for q in f.queries for t in q.args] 
    found += [t for r in f.rules for t in r.operands + r.places]
    return found + [v for values in f.domains.values() for v in values]


def check(api):
    """What only the whole description can tell: that calls fit what they call, and that no name is in vain."""
    exports = {name: f for name, f, form in api.exports() if form == "plain"}
    for f in api.functions:
        with at(f.place):
            for q in f.queries:
                check_query(q, exports.get(q.function), f)
            for m in f.makers:
                check_maker(m, exports.get(m.function), f)
            if f.makes and f.makes.release and f.makes.release not in exports:
                raise Mistake(f"{f.makes.release} is no function")
            for n in f.named:
                elsewhere = any(m.function in exports and exports[m.function] is f and
                                any(r.name == f"{m.argument}.{n.name}" for r in g.named)
                                for g in api.functions for m in g.makers)
                if n.source in ("chosen", "computed") and not elsewhere and not any(occurs(n.name, t) for t in texts_of(f)):
                    raise Mistake(f"{n.name} is named in vain")


def check_query(q, callee, f):
    if not callee or len(callee.args) != len(q.args):
        raise Mistake(f"sizes: there is no {q.function} of {len(q.args)} arguments")
    new = {n.name for n in f.named if n.source == "size"}
    for a, given in zip(callee.args, q.args):
        if (given in new) != (a.kind == "result" and a.base == "int" and not a.const):
            raise Mistake(f"sizes: {given} for {a.name} of {q.function}")


def check_maker(m, maker, f):
    if not maker or not maker.makes:
        raise Mistake(f"{m.argument}: {m.function} makes nothing")
    m.released = maker.makes.release in [name for name, _ in f.exports()]
    scalars = {a.name for a in maker.args if a.kind == "scalar"}
    known = scalars | {n.name for n in maker.named}
    wanted = {n.name.partition(".")[2] for n in f.named if n.source == "ofState" and n.argument == m.argument}
    for name in sorted((set(m.fixed) - scalars) | (wanted - known)):
        raise Mistake(f"{m.argument}: {m.function} has no {name}")
