"""The committed generated files are those that api/ describes."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


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


if __name__ == "__main__":
    unittest.main()
