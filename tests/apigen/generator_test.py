"""What the generator writes for a small description, to the letter. Most of the other tests read what it says of each
function, and would believe it.

    SIG5D_UPDATE_SAMPLE=1 python3 tests/apigen/generator_test.py      writes expected.txt again, to be read through
"""
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
GENERATOR = ROOT / "tools" / "apigen"
sys.dont_write_bytecode = True
sys.path.append(str(GENERATOR))

from model import Type
from parse import Parser

# Not compared: what is a plain copy of the status table, which has a test of its own.
LEFT_OUT = ["statuses.inc", "status_table.inc", "include/sig5d.h"]

# Suffix, C type, kernel type, bytes an element, bytes of one step of an index.
TYPES = """
8u Ipp8u u8 1 1, 8s Ipp8s i8 1 1, 16u Ipp16u u16 2 2, 16s Ipp16s i16 2 2, 16sc Ipp16sc c16s 4 4, 16f Ipp16f f16 2 2,
24u Ipp8u u24 3 1, 24s Ipp8u i24 3 1, 32u Ipp32u u32 4 4, 32s Ipp32s i32 4 4, 32sc Ipp32sc c32s 8 8, 32f Ipp32f f32 4 4,
32fc Ipp32fc c32f 8 8, 64u Ipp64u u64 8 8, 64s Ipp64s i64 8 8, 64sc Ipp64sc c64s 16 16, 64f Ipp64f f64 8 8,
64fc Ipp64fc c64f 16 16, 1u Ipp8u u8 1 1
"""


def generated():
    """The generator's files for the sample: name -> text."""
    with tempfile.TemporaryDirectory() as folder:
        api, out = Path(folder) / "api", Path(folder) / "out"
        api.mkdir()
        for path in [ROOT / "api" / "types.api", ROOT / "api" / "status.api"] + sorted((HERE / "api").iterdir()):
            (api / path.name).write_text(path.read_text())
        command = [sys.executable, "-B", str(GENERATOR), "--api", str(api), "--out", str(out), "--committed", str(out)]
        subprocess.run(command, check=True)
        files = {str(p.relative_to(out)): p.read_text() for p in sorted(out.rglob("*")) if p.is_file()}
    header = files["include/sig5d.h"]
    files["end of include/sig5d.h"] = header[header.index("/* ----") :]
    return {name: text for name, text in files.items() if name not in LEFT_OUT}


class Generator(unittest.TestCase):
    maxDiff = None

    def test_writes_the_sample_to_the_letter(self):
        found = generated()
        listed = "".join(f"==== {name}\n{text}" for name, text in found.items())
        if os.environ.get("SIG5D_UPDATE_SAMPLE"):
            (HERE / "expected.txt").write_text(listed)
        parts = (HERE / "expected.txt").read_text().split("==== ")[1:]
        expected = dict(part.split("\n", 1) for part in parts)
        self.assertEqual(list(found), list(expected))
        for name, text in found.items():
            with self.subTest(file=name):
                self.assertMultiLineEqual(text, expected[name])

    def test_types(self):
        described = Parser(ROOT / "api").read().types
        expected = {}
        for line in TYPES.replace("\n", " ").split(","):
            suffix, public, kernel, size, unit = line.split()
            expected[suffix] = Type(suffix, public, kernel, int(size), int(unit))
        self.assertEqual(described, expected)

    def refuses(self, text):
        with tempfile.TemporaryDirectory() as folder:
            for name in ("types.api", "status.api", "shapes.api"):
                (Path(folder) / name).write_text((ROOT / "api" / name).read_text())
            (Path(folder) / "ordinals.txt").write_text("")
            (Path(folder) / "wrong.api").write_text(text)
            with self.assertRaises(SystemExit, msg=text):
                Parser(folder).read()

    def test_mistakes_are_told(self):
        head = 'half ipp\ntopic t "T"\nsource frame/x.cpp\n'
        good = "family ippsX (int len)\n    kernel x\n"
        self.refuses("half ipp\n" + good)
        self.refuses('topic t "T"\n' + good)
        self.refuses("source frame/x.cpp\n" + good)
        self.refuses(head + "family ippsX (int len)\n")
        self.refuses(head + "family ippsX (unknown len)\n    kernel x\n")
        self.refuses(head + "family ippsX (int len len)\n    kernel x\n")
        self.refuses(head + "family ippsX no_such_shape\n    kernel x\n")
        self.refuses(head + "family ippsX (const T a[len], int len)\n    types 99x\n    kernel x\n")
        self.refuses(head + "families ippsX (int len)\n    kernel x\n")


if __name__ == "__main__":
    unittest.main()
