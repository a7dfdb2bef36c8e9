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
# Not compared: what is a plain copy of the status table, which has a test of its own.
LEFT_OUT = ["statuses.inc", "status_table.inc", "include/sig5d.h"]

def generated():
    """The generator's files for the sample: name -> text."""
    with tempfile.TemporaryDirectory() as folder:
        api, out = Path(folder) / "api", Path(folder) / "out"
        api.mkdir()
        for path in [ROOT / "api" / "types.api", ROOT / "api" / "status.api"] + sorted((HERE / "api").iterdir()):
            (api / path.name).write_text(path.read_text())
        command = [sys.executable, "-B", str(GENERATOR), "--api", str(api), "--variants", str(HERE / "variants.txt")]
        command += ["--out", str(out), "--committed", str(out)]
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

    def test_kernels_of_each_variant_call_the_nearest_body(self):
        header = generated()["bodies/signal/inner.h"]

        def preprocessed(*options):
            command = ["c++", "-E", "-P", "-x", "c++", *options, "-"]
            return subprocess.run(command, input=header, capture_output=True, text=True)

        for level, (variant, body) in enumerate(zip("px w7 s8 p8 g9 h9".split(), "px w7 w7 w7 g9 g9".split())):
            seen = preprocessed(f"-DSIG5D_LEVEL={level}", f"-DSIG5D_VARIANT={variant}").stdout
            self.assertIn(f"namespace {variant} {{ using namespace {body}; }}", seen)
        self.assertNotEqual(preprocessed().returncode, 0)


if __name__ == "__main__":
    unittest.main()
