"""What a shape or a family says of its functions, clause by clause."""
from model import FORMS
from statements import Mistake, at, match

ONCE = {
    "types", "forms", "kernel", "checks", "fails", "late", "returns", "warns", "idx", "convention", "in_place", "moves",
    "makes", "untested", "formula", "doc",
}
REPEATED = {"form", "domain", "some", "let", "sizes", "state", "values", "note"}
BUILDING = {"domain", "some", "let", "sizes", "state", "values", "makes"}  # how arguments are built: building.py


class Clauses:
    """The clauses of a shape or a family: those that may stand once by word, the others as lists."""

    def __init__(self, given):
        self.once, self.forms, self.notes, self.building = {}, {}, [], {}
        self.concerned = []  # clauses of building that a function has to do with
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
        if word in BUILDING:
            table, key = self.building, word if word == "makes" else f"{word} {rest.partition('=')[0].strip()}"
        elif word == "form":
            table, key = self.forms, match(r"(\w+)\s*\(.*", rest, "no form NAME (arguments)")[1]
            if key not in FORMS.values():
                raise Mistake(f"unknown form {key}; {' '.join(sorted(set(FORMS.values())))} have argument lists")
        if key in table:
            raise Mistake(f"{key if table is self.building else f'form {key}' if word == 'form' else word} a second time")
        table[key] = clause

    def over(self, inherited):
        """These clauses, and those of the shape that they do not replace."""
        self.once = inherited.once | self.once
        self.forms = inherited.forms | self.forms
        self.building = inherited.building | self.building
        self.notes = inherited.notes + self.notes
        return self

    def text(self, word, default=""):
        return self.once[word].rest if word in self.once else default

    def place(self, word, otherwise):
        return self.once[word].place if word in self.once else otherwise
