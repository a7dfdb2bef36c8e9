"""The description in api/ in the terms of contract_table.py. Nothing else of the witness knows tools/apigen."""
import re
import sys
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.path.append(str(PROJECT / "tools" / "apigen"))

from contract_table import Arg, Form, evaluated
from model import index_args
from parse import Parser


class CExpression:
    """Translates a C expression into a Python one. A name that is no argument is a property of a filter."""

    LEVELS = [["||"], ["&&"], ["|"], ["&"], ["==", "!="], ["<", "<=", ">", ">="], ["+", "-"], ["*", "/", "%"]]
    PYTHON = {"||": "or", "&&": "and"}

    def __init__(self, text, arguments):
        self.tokens = re.findall(r"[A-Za-z_]\w*(?:\.\w+)*|\d+(?:\.\d+)?|\|\||&&|[<>=!]=|\S", text)
        self.arguments = arguments
        self.python = self.choice()
        if self.tokens:
            raise ValueError(f"not understood: {self.tokens[0]} in {text}")

    def take(self, *wanted):
        return self.tokens.pop(0) if self.tokens and self.tokens[0] in wanted else None

    def choice(self):
        condition = self.binary(0)
        if not self.take("?"):
            return condition
        first = self.choice()
        assert self.take(":")
        return f"({first} if {condition} else {self.choice()})"

    def binary(self, level):
        if level == len(self.LEVELS):
            return self.unary()
        left = self.binary(level + 1)
        while operator := self.take(*self.LEVELS[level]):
            right = self.binary(level + 1)
            if operator == "/":
                left = f"quotient({left}, {right})"
            else:
                left = f"({left} {self.PYTHON.get(operator, operator)} {right})"
        return left

    def unary(self):
        if operator := self.take("!", "-", "~"):
            return f"({'not' if operator == '!' else operator} {self.unary()})"
        if self.take("*"):
            return f"at({self.unary()})"
        if self.take("("):
            inner = self.choice()
            assert self.take(")")
            return inner
        name = self.tokens.pop(0)
        if self.take("("):
            given = []
            while not self.take(")"):
                given.append(self.choice())
                self.take(",")
            return f"{name}({', '.join(given)})"
        head, _, part = name.partition(".")
        if name[0].isdigit():
            return name
        if name in self.arguments:
            return python_name(name)
        if head not in self.arguments or part not in ("", "re", "im"):
            return "spec." + (part or head)
        return name.replace(".re", ".real").replace(".im", ".imag")


def described_arg(a):
    if a.kind in ("opaque", "handle", "pointer"):
        return Arg("record", role="in" if a.const else "out", stars=a.stars, optional=a.optional)
    kind = {"result": "array" if a.extent != "1" else "value"}.get(a.kind, a.kind)
    plain = {"int": "32s", "unsigned int": "32u"}.get(a.base, "")
    role = "" if kind in ("scalar", "index", "work") else "in" if a.const else "io" if a.inout or a.rows else "out"
    return Arg(kind, "" if kind == "index" else a.type.suffix if a.type else plain, role, a.stars, a.optional)


def python_name(name):
    """Members of records are arguments of their own: roi.width."""
    return name.replace(".", "_")


NAME = r"[A-Za-z_]\w*(?:\.\w+)*"


def elements(a, f, exports):
    """The extent of an array over arguments and properties of a filter; its largest one where the data decide."""
    text = a.room or a.extent
    if a.rows:
        count, width, step = f"({a.rows.count})", f"({a.rows.width})", f"({a.rows.step})"
        text = f"{count} && {width} ? ({count}-1)*{step}+{width} : 0"
        if a.rows.in_bytes:
            text = f"in_bytes({count}, {width}, {step}, {a.type.size})"
    stands_for = {}
    for n in f.named:
        if n.source == "computed":
            stands_for[n.name] = n.text
        elif n.source == "counted":
            stands_for[n.name] = next(b.extent for b in f.args if b.name == n.argument)
        elif n.source == "ofState":
            maker = exports[next(m.function for m in f.makers if m.argument == n.argument)]
            there = {m.name: m.text for m in maker.named if m.source == "computed"}
            value = n.name.partition(".")[2]
            stands_for[n.name] = re.sub(NAME, lambda m: "spec." + m[0], there.get(value, value))
    return re.sub(NAME, lambda m: f"({stands_for[m[0]]})" if m[0] in stands_for else m[0], text)


def described():
    """(export -> form, type suffix -> (bytes, index unit), status name -> code), as api/ has them."""
    api = Parser(PROJECT / "api", PROJECT / "src/variants.txt").read()
    statuses = {name.removeprefix("ippSts"): code for code, name, _ in api.statuses if name}
    exports, forms = {name: f for name, f, _ in api.exports()}, {}
    for export, f, which in api.exports():
        args = index_args(f) if which == "index" else f.args
        names = [a.name for a in args]
        python_names = [python_name(name) for name in names]

        def condition(expression):
            return evaluated(CExpression(expression, names).python, python_names)

        form = forms[export] = Form([described_arg(a) for a in args])
        form.checks = [(statuses[c.status], condition(c.cpp())) for c in f.failures() if not c.when]
        form.extents = {
            i: condition(elements(a, f, exports)) for i, a in enumerate(args) if form.args[i].kind == "array"}
        form.warnings = {statuses[w] for w in f.warnings}
        form.same = {(names.index(d), names.index(s)) for d, s in f.in_place}
    return forms, {t.suffix: (t.size, t.unit) for t in api.types.values()}, statuses
