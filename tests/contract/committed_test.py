"""The committed generated files are those that api/ describes, and includes go only where the architecture allows."""
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

# (files, includes that they must not have, why)
FORBIDDEN = [
    ("src/kernel/*", r"(vector|matrix|signal|image)/|frame/compat|frame/(features|system|memory|cpuid)", "kernel is below all"),
    ("src/frame/*", r"(vector|matrix|signal|image)/|kernel/", "the frame reaches no family"),
    ("src/vector/**/*", r"(matrix|signal|image)/|frame/compat", "halves are separate"),
    ("src/matrix/**/*", r"(vector|signal|image)/|frame/compat", "halves are separate"),
    ("src/signal/elementwise/*", r"signal/processing/|(vector|matrix|image)/|frame/compat", "element-wise stands alone"),
    ("src/signal/processing/*", r"signal/elementwise/|(vector|matrix|image)/|frame/compat", "processing stands alone"),
    ("src/**/*", r"tests/|bench/|tools/|\.kernels\.cpp", "products do not reach tests; kernel files do not include each other"),
    ("tests/oracle/*", r"kernel/|\.kernels\.cpp", "an oracle shares nothing with what it judges"),
]
# What a product file must not contain: nothing that starts up, throws, prints, locks or allocates by itself.
BANNED = r"\b(throw|dynamic_cast|typeid|std::mutex|std::vector|std::string|printf|iostream|operator new)\b|\bnew [A-Za-z]"


class Committed(unittest.TestCase):
    def test_generated_files_are_current(self):
        with tempfile.TemporaryDirectory() as folder:
            command = [sys.executable, "-B", str(ROOT / "tools/apigen"), "--api", str(ROOT / "api"), "--variants",
                       str(ROOT / "src/variants.txt"), "--committed", folder]
            subprocess.run(command, check=True)
            made = sorted(p.relative_to(folder) for p in Path(folder).rglob("*") if p.is_file())
            for path in made:
                with self.subTest(path=str(path)):
                    self.assertEqual((ROOT / path).read_text(), (Path(folder) / path).read_text(), "run tools/regenerate")
            pages = {p.name for p in (ROOT / "docs/reference").glob("*.md")}
            self.assertEqual(pages, {p.name for p in made if p.parts[0] == "docs"})

    def test_includes(self):
        for files, unwanted, why in FORBIDDEN:
            for path in ROOT.glob(files):
                if not path.is_file():
                    continue
                for include in re.findall(r'#include "([^"]+)"', path.read_text()):
                    if re.search(unwanted, include) and not include.startswith("entries/"):
                        self.fail(f"{path.relative_to(ROOT)} includes {include}: {why}")

    def test_nothing_banned_in_the_product(self):
        for path in (ROOT / "src").rglob("*.*"):
            code = re.sub(r"//.*|/\*.*?\*/|\"(\\.|[^\"])*\"", "", path.read_text())
            found = re.search(BANNED, code)
            self.assertIsNone(found, f"{path.relative_to(ROOT)}: {found and found[0]}")


if __name__ == "__main__":
    unittest.main()
