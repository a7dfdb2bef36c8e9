"""Expressions over a function's arguments: extents, checks, values worth trying. A part of C, and the same in C.

    a ? b : c    || && | ^ & == != < <= > >= << >> + - * / %    ! - ~ *p    f(a, b)    val.re    ( )

Every name must be known and used as what it is: a misspelt one would otherwise be a check that never fails, or an array
of any length.
"""
import re

from statements import IDENTIFIER, Mistake

NUMBER = r"0[xX][0-9a-fA-F]+|\d+\.?\d*(?:[eE][-+]?\d+)?"
SYMBOL = r"\|\||&&|[=!<>]=|<<|>>|[-+*/%<>!~&|^?:().,]"
TOKEN = re.compile(rf"\s*(?:({NUMBER})|({IDENTIFIER})|({SYMBOL}))")
LEVELS = [level.split() for level in "||,&&,|,^,&,== !=,< <= > >=,<< >>,+ -,* / %".split(",")]
FUNCTIONS = {"min": 2, "max": 2}


class Reader:
    def __init__(self, text):
        self.text, self.tokens, at = text, [], 0
        while text[at:].strip():
            m = TOKEN.match(text, at)
            if not m:
                raise Mistake(f"no expression: {text}")
            self.tokens.append(m.group(1, 2, 3))
            at = m.end()
        self.tokens.append((None, None, "end"))

    def take(self, *symbols):
        """The next token if it is one of these symbols."""
        if self.tokens[0][2] in symbols:
            return self.tokens.pop(0)[2]
        return None

    def demand(self, symbol):
        if not self.take(symbol):
            raise Mistake(f"no expression, '{symbol}' is missing: {self.text}")

    def whole(self):
        tree = self.choice()
        self.demand("end")
        return tree

    def choice(self):
        condition = self.binary(0)
        if not self.take("?"):
            return condition
        first = self.choice()
        self.demand(":")
        return ("choice", condition, first, self.choice())

    def binary(self, level):
        if level == len(LEVELS):
            return self.unary()
        left = self.binary(level + 1)
        while op := self.take(*LEVELS[level]):
            left = ("binary", op, left, self.binary(level + 1))
        return left

    def unary(self):
        op = self.take("!", "-", "~", "*")
        return ("unary", op, self.unary()) if op else self.postfix()

    def postfix(self):
        tree = self.primary()
        while self.take("."):
            name = self.tokens.pop(0)[1]
            if not name:
                raise Mistake(f"no expression, a name is missing behind '.': {self.text}")
            tree = ("part", tree, name)
        return tree

    def primary(self):
        if self.take("("):
            tree = self.choice()
            self.demand(")")
            return tree
        number, name, symbol = self.tokens.pop(0)
        if number:
            return ("number", number)
        if not name:
            raise Mistake(f"no expression{', it ends too soon' if symbol == 'end' else ''}: {self.text}")
        if not self.take("("):
            return ("name", name)
        given = [self.choice()]
        while self.take(","):
            given.append(self.choice())
        self.demand(")")
        if FUNCTIONS.get(name) != len(given):
            raise Mistake(f"no function {name} of {len(given)} values: {self.text}")
        return ("call", name, *given)


def check(text, known):
    """`known` tells of a name whether it is a "number", a "complex", a "pointer", a "pointer to number" or
    "pointer to complex"; of `name.part`, asked for as that, too. None: there is no such name."""

    def name_of(name):
        kind = known(name)
        if not kind:
            raise Mistake(f"{name} is no argument: {text}")
        return kind

    def dotted(tree):
        if tree[0] == "name":
            return tree[1]
        if tree[0] != "part":
            raise Mistake(f"no part of it has a name: {text}")
        return f"{dotted(tree[1])}.{tree[2]}"

    def number(tree, why):
        if kind(tree) != "number":
            raise Mistake(f"{why}: {text}")
        return "number"

    def kind(tree):
        what = tree[0]
        if what == "number":
            return "number"
        if what == "name":
            return name_of(tree[1])
        if what == "part":
            if tree[2] in ("re", "im") and kind(tree[1]) == "complex":
                return "number"
            return name_of(dotted(tree))
        if what == "call":
            for given in tree[2:]:
                number(given, f"{tree[1]} takes numbers")
            return "number"
        if what == "choice":
            for one in tree[1:]:
                number(one, "? : takes numbers")
            return "number"
        op = tree[1]
        if what == "unary":
            of = kind(tree[2])
            if op == "*":
                if not of.startswith("pointer to "):
                    raise Mistake(f"* takes a pointer: {text}")
                return of[len("pointer to "):]
            if op == "!" and of.startswith("pointer"):
                return "number"
            return number(tree[2], f"{op} takes a number")
        if op in ("==", "!=") and tree[3] == ("number", "0") and kind(tree[2]).startswith("pointer"):
            return "number"
        number(tree[2], f"{op} takes numbers")
        return number(tree[3], f"{op} takes numbers")

    number(Reader(text).whole(), "a number is asked for")
