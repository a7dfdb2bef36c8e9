"""What is said of several functions alike is said once, and of no other function: groups of a family's members."""
import re
from dataclasses import dataclass

from model import FORMS


def formula_of(f):
    """With the arguments of the function's own form: pSrcDst where the plain form has pSrc and pDst."""
    stands_for = dict(zip(f.plain_call, f.call))
    return re.sub(r"[A-Za-z_]\w*", lambda m: stands_for.get(m[0], m[0]), f.formula)


@dataclass
class Group:
    """Members with the same text. What differs between their forms is told by form: see `told_apart`."""

    family: str
    functions: list

    def exports(self):
        return [(name, f, form) for f in self.functions for name, form in f.exports()]

    def names(self):
        return short_names([f.shown_name() for f in self.functions], self.family)

    def told_apart(self, text_of):
        """(text, the functions that it is true of) for each text that text_of gives, in order; empty ones left out."""
        found = {}
        for f in self.functions:
            if text_of(f):
                found.setdefault(text_of(f), []).append(f)
        return list(found.items())


def formulas(group, shown=str):
    """Those of the group's forms, one after the other."""
    found = []
    for text, whose in group.told_apart(formula_of):
        found.append(("in place " if FORMS[whose[0].form] == "_I" else "") + shown(text))
    return "; ".join(found)


def short_names(names, family):
    """`ippsAdd_16s, _32s`: behind the first name the common beginning is left out."""
    head = family + "_"
    short = names[0].startswith(head)
    return ", ".join([names[0]] + [n[len(family):] if short and n.startswith(head) else n for n in names[1:]])


def groups(functions):
    """The groups of a topic, family by family in the order of the description."""
    families = {}
    for f in functions:
        text = (f.formula, f.doc, tuple(f.notes), tuple(f.warnings))
        families.setdefault(f.family, {}).setdefault(text, []).append(f)
    return {family: [Group(family, members) for members in by_text.values()] for family, by_text in families.items()}
