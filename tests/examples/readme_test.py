"""The README is what a stranger trusts: its program is the one that is built and run, its links lead somewhere."""
import os
import re
import unittest

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")


def text(*names):
    with open(os.path.join(ROOT, *names), encoding="utf-8") as f:
        return f.read()


class Readme(unittest.TestCase):
    def test_program_is_the_example(self):
        shown = re.search(r"```c\n(.*?)```", text("README.md"), re.S)[1]
        self.assertIn(shown.strip(), text("examples", "first_steps.c"))

    def test_links(self):
        links = re.findall(r"\]\(([^)#:]+)\)", text("README.md"))
        self.assertGreater(len(links), 10)
        for link in links:
            self.assertTrue(os.path.exists(os.path.join(ROOT, link)), link)

    def test_counts_of_exports(self):
        counts = {}
        for line in text("tests", "contract", "expected_exports.tsv").splitlines()[1:]:
            name, half, convention = line.split("\t")[:3]
            kind = (half, name.endswith("_Idx"), convention)
            counts[kind] = counts.get(kind, 0) + 1
        rows = re.findall(r"^\|.*\| (\d+) \| (stdcall|cdecl) \|", text("README.md"), re.M)
        expected = [("ipp", False, "stdcall"), ("ipp", True, "cdecl"), ("own", False, "cdecl"), ("own", True, "cdecl"),
                    ("own", False, "stdcall")]
        self.assertEqual(rows, [(str(counts.pop(kind)), kind[2]) for kind in expected])
        self.assertEqual(counts, {})


if __name__ == "__main__":
    unittest.main()
