"""The public header and the reference pages say of each function what the description says of it, and nothing else."""
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools/apigen"))
from grouping import formula_of
from parse import Parser

API = Parser(ROOT / "api", ROOT / "src/variants.txt").read()
EXPORTS = {name: f for name, f, _ in API.exports()}


def joined(text):
    return " ".join(text.split())


def declared(code):
    return re.findall(r"SIG5D_(?:STDCALL|CDECL) (\w+)\(", code)


def header_groups():
    """(comment, names of the functions that follow it)."""
    text = (ROOT / "include/sig5d.h").read_text().partition("/* ---- ")[2]
    for part in re.split(r"^/\*", text, flags=re.M)[1:]:
        comment, _, code = part.partition("*/")
        if declared(code):
            yield joined(comment), declared(code)


def page_groups():
    """(file and heading, family, text, names of the functions) of each part of a page."""
    for path in sorted((ROOT / "docs/reference").glob("*.md")):
        family = ""
        for part in re.split(r"^(?=##+ )", path.read_text(), flags=re.M)[1:]:
            heading, _, text = part.partition("\n")
            if heading.startswith("## "):
                family = heading[3:]
            if text.strip():
                yield f"{path.name}: {heading}", family, text, declared(text)


def named(label, family):
    return [family + n if n.startswith("_") else n for n in label.split(", ")]


def forms(text, family):
    """(names, or none where the text is for all of the group; the text) of what stands under the names of some functions."""
    parts = re.split(r"^\*\*(\w.*)\*\*$", text.partition("```")[0], flags=re.M)
    if len(parts) == 1:
        return [(None, text)]
    return [(named(label, family), part) for label, part in zip(parts[1::2], parts[2::2])]


class Header(unittest.TestCase):
    def test_each_comment_is_that_of_its_functions(self):
        met = []
        for comment, names in header_groups():
            with self.subTest(names[0]):
                rest = comment
                said = {formula_of(EXPORTS[n]) for n in names} | {EXPORTS[n].doc for n in names}
                for text in sorted(said, key=len, reverse=True):
                    self.assertIn(joined(text), comment)
                    rest = rest.replace(joined(text), "")
                self.assertRegex(rest, r"^(; in place |[. ])*$")
                self.assertEqual(len({(EXPORTS[n].formula, EXPORTS[n].doc) for n in names}), 1)
            met += names
        self.assertEqual(sorted(met), sorted(EXPORTS))

    def test_formulas_have_the_arguments_of_their_form(self):
        arguments = {}
        for f in API.functions:
            arguments.setdefault(f.family, set()).update(a.name for a in f.args)
        for f in API.functions:
            unknown = set(re.findall(r"\w+", formula_of(f))) & arguments[f.family] - {a.name for a in f.args}
            self.assertFalse(unknown, f"{f.name}: {formula_of(f)}")


class Pages(unittest.TestCase):
    def test_each_part_has_what_is_said_of_its_functions(self):
        met = []
        for where, _, text, names in page_groups():
            with self.subTest(where):
                for n in names:
                    f = EXPORTS[n]
                    for said in [formula_of(f), f.doc, *f.notes]:
                        self.assertIn(said, text)
                own = {formula_of(EXPORTS[n]) for n in names}
                others = {formula_of(f) for f in API.functions if f.topic == EXPORTS[names[0]].topic} - own
                for formula in others - {""}:
                    self.assertNotIn(f"`{formula}`", text)
            met += names
        self.assertEqual(sorted(met), sorted(EXPORTS))

    def test_arguments_and_checks_are_those_of_the_functions_named_there(self):
        for where, family, text, names in page_groups():
            functions = {EXPORTS[n].shown_name(): EXPORTS[n] for n in names}
            covered = []
            for whose, part in forms(text, family):
                with self.subTest(where, whose=whose):
                    self.assertLessEqual(part.count("Checked in this order"), 1)
                    statuses = re.findall(r"`ippSts(\w+)`", "".join(re.findall(r"^Checked .*", part, flags=re.M)))
                    listed = re.findall(r"^- `(\w+)`", part, flags=re.M)
                    covered += whose or functions
                    for n in whose or functions:
                        f = functions[n]
                        self.assertEqual(statuses, [c.status for c in f.failures()], n)
                        states = [m.argument for m in f.makers]
                        told = [a.name for a in f.args if a.kind in ("array", "work", "opaque") or a.name in states]
                        self.assertEqual(listed, told, n)
                        for named in f.named:
                            if named.source != "ofState":
                                self.assertRegex(part, rf"where .*`{named.name}`|sizes by .*\b{named.name}\b", n)
                        for c in f.failures():
                            self.assertIn(c.text(), part)
            self.assertEqual(sorted(covered), sorted(functions), where)


if __name__ == "__main__":
    unittest.main()
