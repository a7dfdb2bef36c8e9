"""The description in api/ says of every export what contract.txt, written by hand, says of it.

Conditions and extents are compared by what they decide for many values, not as texts, and arguments by their positions.
"""
import math
import random
import re
import sys
import unittest
from itertools import combinations, product
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.append(str(HERE))

from contract_described import described
from contract_table import SPECS, Place, witnessed

INTEGERS = [-(2**31), -33, -8, -2, -1, 0, 1, 2, 3, 4, 5, 7, 8, 9, 13, 14, 19, 20, 31, 32, 33, 64, 1000, 2**31 - 1]
NUMBERS = [-math.inf, -1.5, -5e-324, -0.0, 0.0, 5e-324, 0.5, 1.0, 4.0, math.inf, math.nan]


def samples(arg):
    if arg.kind == "value" and arg.role == "io":
        return [Place(1), Place(0), Place(6.28), Place(2 * math.pi), Place(-1), Place(7), Place(math.nan), 0]
    if arg.pointer():
        return [4096, 0]
    if arg.kind == "index":
        return [0]
    if arg.type in ("64fc", "32sc"):
        return [complex(re, im) for re in (0, 1, -2) for im in (0, 3)]
    if arg.type in ("64f", "32f"):
        return NUMBERS
    signed, bits = "u" not in arg.type, int(re.match(r"\d+", arg.type)[0])
    low, high = (-(2 ** (bits - 1)), 2 ** (bits - 1) - 1) if signed else (0, 2**bits - 1)
    return [v for v in INTEGERS if low <= v <= high] + [high]


def fitting_values(form):
    """Lists of values that the function takes: any at first, then one of them is drawn anew at a time, and kept unless
    a check fails that did not."""
    draw = random.Random(7)
    choices = [samples(a)[:1] if a.pointer() else samples(a) for a in form.args]
    conditions = [fails for _, fails in form.checks] + [lambda v, needed=n: not needed(v) for n in form.needs]

    def passed(values):
        return next((i for i, fails in enumerate(conditions) if fails(values)), len(conditions))

    found, values = [], None
    for attempt in range(2000):
        if attempt % 400 == 0 or not values:
            values = [draw.choice(choice) for choice in choices]
        else:
            k = draw.randrange(len(choices))
            other = values[:k] + [draw.choice(choices[k])] + values[k + 1 :]
            values = other if passed(other) >= passed(values) else values
        if passed(values) == len(conditions):
            found.append(values)
            values = None
            if len(found) == 50:
                break
    return found


def spoilt_values(form):
    """Lists with one value spoilt, with every two spoilt that spoil one alone, and with any values at all."""
    choices = [samples(a) for a in form.args]
    for base in fitting_values(form)[:3]:
        failing = []
        for i, choice in enumerate(choices):
            for value in choice:
                values = base[:i] + [value] + base[i + 1 :]
                yield values
                if form.status(values):
                    failing.append((i, value))
        for (i, value), (k, other) in combinations(failing, 2):
            if i != k:
                values = list(base)
                values[i], values[k] = value, other
                yield values
    draw = random.Random(8)
    for _ in range(100):
        yield [draw.choice(choice) for choice in choices]


def exports():
    lines = [line.split("\t") for line in (HERE / "expected_exports.tsv").read_text().splitlines()[1:]]
    return {line[0]: line[1:] for line in lines}


class Witness(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        rows, cls.types, cls.statuses = witnessed()
        cls.names = [name for name, _ in rows]
        cls.table = dict(rows)
        cls.api, cls.api_types, cls.api_statuses = described()

    def compare(self, how):
        for name in sorted(self.table.keys() & self.api.keys()):
            with self.subTest(name):
                how(self.table[name], self.api[name])

    def test_every_export_has_one_row(self):
        self.assertEqual(sorted(self.names), sorted(exports()))
        self.assertEqual(sorted(self.names), sorted(self.api))

    def test_types_and_status_codes(self):
        self.assertEqual(self.types, self.api_types)
        self.assertEqual(self.statuses, {s: self.api_statuses.get(s) for s in self.statuses})

    def test_arguments_fill_the_stack_as_the_export_list_says(self):
        """A slip in the table itself: a forgotten argument, a wrong type of a scalar."""
        listed = exports()
        for name, form in self.table.items():
            with self.subTest(name):
                scalars = [self.types[a.type][0] if a.kind == "scalar" else 4 for a in form.args]
                self.assertEqual(sum((s + 3) // 4 * 4 for s in scalars), int(listed[name][3]))

    def test_arguments(self):
        self.compare(lambda table, api: self.assertEqual(table.args, api.args))

    def test_checks_decide_alike(self):
        def statuses(table, api):
            fitting = fitting_values(table)
            self.assertTrue(fitting)
            for values in fitting + list(spoilt_values(table)):
                self.assertEqual(table.status(values), api.status(values), values)

        self.compare(statuses)

    def test_extents(self):
        def elements(table, api):
            filters = SPECS if any(a.kind == "record" for a in table.args) else SPECS[:1]
            for values, spec in product(fitting_values(table), filters):
                for i, extent in table.extents.items():
                    expected = extent(values, spec)
                    if expected is not None:
                        self.assertEqual(expected, max(api.extents[i](values, spec), 0), f"argument {i} with {values}")

        self.compare(elements)

    def test_warnings(self):
        self.compare(lambda table, api: self.assertEqual(table.warnings, api.warnings))

    def test_arrays_that_may_be_the_same(self):
        def overlaps(table, api):
            self.assertLessEqual(table.same, api.same)
            self.assertFalse(table.apart & api.same)

        self.compare(overlaps)


if __name__ == "__main__":
    unittest.main()
