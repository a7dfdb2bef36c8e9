"""The tree keeps the rules of the architecture; and each rule fails on a tree that breaks it."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import arrows

ROOT = Path(__file__).resolve().parents[2]


class ThisTree(unittest.TestCase):
    def keeps(self, rule, *arguments):
        self.assertEqual(rule(*arguments), [])

    def test_is_not_empty(self):
        self.assertGreater(len(arrows.sources(ROOT)), 100)

    def test_project_includes(self):
        self.keeps(arrows.project_includes, ROOT)

    def test_system_includes(self):
        self.keeps(arrows.system_includes, ROOT)

    def test_kernels_use_types_and_traits_of_std_only(self):
        self.keeps(arrows.std_names, ROOT)

    def test_kernels_allocate_nothing(self):
        self.keeps(arrows.allocations, ROOT)

    def test_kernel_files_stand_in_their_variants_namespace(self):
        self.keeps(arrows.namespaces, ROOT)

    def test_oracles_share_nothing_with_the_library(self):
        self.keeps(arrows.oracles, ROOT)

    def test_one_file_knows_processor_flags(self):
        self.keeps(arrows.processor_flags, ROOT)

    def test_files_are_short(self):
        self.keeps(arrows.long_files, ROOT)

    def test_all_kernel_headers_are_compiled_together(self):
        included, _ = arrows.includes(ROOT / "tests/kernel/all_headers.cpp")
        self.assertEqual(included, sorted(f"kernel/{h.name}" for h in (ROOT / "src/kernel").glob("*.h")))

    def test_the_generator_writes_no_loop(self):
        with tempfile.TemporaryDirectory() as folder:
            command = [sys.executable, "-B", str(ROOT / "tools/apigen"), "--api", str(ROOT / "api"), "--out", folder]
            command += ["--variants", str(ROOT / "src/variants.txt")]
            subprocess.run(command, check=True)
            self.keeps(arrows.loops_in_entries, Path(folder) / "entries")
            self.assertGreater(len(list((Path(folder) / "entries").rglob("*.inc"))), 30)


class BadTrees(unittest.TestCase):
    def faults(self, rule, files):
        """What the rule says of a tree of these files."""
        with tempfile.TemporaryDirectory() as folder:
            for file, text in files.items():
                path = Path(folder, file)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text + "\n")
            return rule(Path(folder))

    def test_project_includes(self):
        for file, include in [
            ("src/kernel/a.cpp", "frame/memory.h"),  # the element types and the threshold of streaming only
            ("src/kernel/a.cpp", "vector/pairs.h"),
            ("src/kernel/a.cpp", "sig5d.h"),
            ("src/vector/a.cpp", "matrix/rows.h"),
            ("src/vector/a.cpp", "frame/selection.h"),
            ("src/vector/a.cpp", "sig5d.h"),  # only compat calls exports
            ("src/matrix/a.cpp", "frame/compat/fir_handles.h"),
            ("src/signal/elementwise/a.cpp", "signal/processing/fft/transforms.h"),
            ("src/signal/processing/fir/a.cpp", "signal/elementwise/threshold_rules.h"),
            ("src/signal/processing/iir/a.cpp", "signal/processing/fir/history.h"),
            ("src/signal/processing/fft/a.cpp", "signal/processing/fir/history.h"),
            ("src/signal/processing/iir/a.cpp", "bodies/signal/processing/fft.h"),  # the transforms' own header says it
            ("src/signal/processing/a.cpp", "signal/processing/a.h"),  # in no room
            ("src/frame/a.cpp", "kernel/vec.h"),
            ("src/frame/a.cpp", "frame/compat/fir_handles.h"),
            ("src/frame/compat/a.cpp", "frame/selection.h"),
            ("src/vector/a.cpp", "vector/b.kernels.cpp"),
            ("src/vector/a.cpp", "support/bytes.h"),
            ("src/vector/a.cpp", "entries/vector/b.inc"),  # another file's
            ("src/stray/a.cpp", "frame/types.h"),  # a folder that the architecture does not know
        ]:
            with self.subTest(file=file, include=include):
                self.assertEqual(len(self.faults(arrows.project_includes, {file: f'#include "{include}"'})), 1)
        allowed = '#include "kernel/vec.h"\n#include "frame/entry.h"\n#include "vector/b.h"\n#include "entries/vector/a.inc"'
        self.assertEqual(self.faults(arrows.project_includes, {"src/vector/a.cpp": allowed}), [])
        self.assertEqual(self.faults(arrows.project_includes, {"src/vector/a.cpp": '// #include "sig5d.h"'}), [])
        allowed = '#include "signal/processing/dct/b.h"\n#include "signal/processing/fft/transforms.h"'
        self.assertEqual(self.faults(arrows.project_includes, {"src/signal/processing/dct/a.cpp": allowed}), [])
        allowed = '#include "bodies/signal/processing/fft.h"'
        self.assertEqual(self.faults(arrows.project_includes, {"src/signal/processing/fft/a.h": allowed}), [])

    def test_system_includes(self):
        for file, include in [("src/vector/a.cpp", "algorithm"), ("src/kernel/a.cpp", "string.h"), ("src/frame/a.cpp", "mutex")]:
            with self.subTest(include=include):
                self.assertEqual(len(self.faults(arrows.system_includes, {file: f"#include <{include}>"})), 1)

    def test_std_names(self):
        self.assertEqual(len(self.faults(arrows.std_names, {"src/matrix/a.cpp": "int x = std::min(1, 2);"})), 1)
        self.assertEqual(self.faults(arrows.std_names, {"src/matrix/a.cpp": 'std::size_t x; // std::sort\nauto s = "std::sort";'}), [])

    def test_allocations(self):
        for code in ("int* p = new int;", "void* p = malloc(8);", "throw 1;"):
            self.assertEqual(len(self.faults(arrows.allocations, {"src/signal/a.cpp": code})), 1, code)
        self.assertEqual(self.faults(arrows.allocations, {"src/frame/a.cpp": "void* p = malloc(8);"}), [])

    def test_namespaces(self):
        def faults(text):
            return len(self.faults(arrows.namespaces, {"src/vector/a.kernels.cpp": text}))

        self.assertEqual(faults("namespace sig5d::SIG5D_VARIANT {}"), 0)
        self.assertEqual(faults("namespace sig5d::SIG5D_VARIANT {}\nnamespace sig5d {}"), 1)
        self.assertEqual(faults("void f() {}"), 1)

    def test_oracles(self):
        tree = {
            "tests/oracle/a.h": '#include "support/b.h"',
            "tests/support/b.h": '#include "kernel/c.h"',
            "src/kernel/c.h": "",
        }
        self.assertEqual(self.faults(arrows.oracles, tree), ["tests/oracle/a.h reaches src/kernel/c.h"])
        self.assertEqual(self.faults(arrows.oracles, tree | {"tests/support/b.h": "#include <cmath>"}), [])

    def test_processor_flags(self):
        with tempfile.TemporaryDirectory() as folder:
            for file, flag in [("tests/tests.cmake", "-mavx2"), ("CMakeLists.txt", "-msse2"), ("cmake/variants.cmake", "-mavx")]:
                (Path(folder) / file).parent.mkdir(exist_ok=True)
                (Path(folder) / file).write_text(f"set(x {flag})")
            self.assertEqual(arrows.processor_flags(Path(folder)), ["tests/tests.cmake has -mavx2"])

    def test_long_files(self):
        self.assertEqual(len(self.faults(arrows.long_files, {"src/vector/a.cpp": "\n" * arrows.MOST_LINES})), 1)
        self.assertEqual(self.faults(arrows.long_files, {"src/vector/a.cpp": "\n" * (arrows.MOST_LINES - 1)}), [])

    def test_loops_in_entries(self):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "a.inc").write_text("// for all\nreturn f(x);\n")
            self.assertEqual(arrows.loops_in_entries(Path(folder)), [])
            (Path(folder) / "a.inc").write_text("while (n--) f(x);\n")
            self.assertEqual(arrows.loops_in_entries(Path(folder)), ["a.inc has a loop"])


if __name__ == "__main__":
    unittest.main()
