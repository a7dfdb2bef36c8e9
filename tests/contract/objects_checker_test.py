"""The check of built objects finds what it is for: small objects with one fault each."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import objcheck
import objsymbols

KERNEL = "namespace sig5d::w7 { %s }"


FOLDER = tempfile.TemporaryDirectory()


def compiled(source, *flags):
    Path(FOLDER.name, "a.cpp").write_text(source)
    subprocess.run(["c++", "-std=c++20", "-O1", *flags, "-c", "a.cpp"], cwd=FOLDER.name, check=True)
    return Path(FOLDER.name, "a.o")


def symbols(source, *flags):
    return list(objsymbols.parse(objcheck.run("nm", "-f", "sysv", str(compiled(source, *flags)))))


class Symbols(unittest.TestCase):
    def test_state(self):
        for source in (
            KERNEL % "int calls; int f() { return ++calls; }",
            KERNEL % "int f() { static int calls = 7; return ++calls; }",
            KERNEL % "namespace { int calls; } int f() { return ++calls; }",
        ):
            self.assertEqual(len(list(objsymbols.state(symbols(source)))), 1, source)
        listed = 'extern "C" { int sig5d_variant = -1; } namespace sig5d { namespace { long enabled = 1; } long f() { return ++enabled; } }'
        constant = KERNEL % "extern const char* const text[]; const char* const text[] = {\"a\"};"
        for source in (listed, constant):
            self.assertEqual(list(objsymbols.state(symbols(source, "-fPIC"))), [])

    def test_calls(self):
        for source in (
            KERNEL % "char* f(long n) { return new char[n]; }",
            "#include <stdlib.h>\n" + KERNEL % "void* f(long n) { return malloc(n); }",
            "#include <math.h>\n" + KERNEL % "double f(double x) { return sin(x); }",
            "namespace sig5d::h9 { void g(); }" + KERNEL % "void f() { h9::g(); }",  # of a newer processor
            'extern "C" int ippsAdd_64f();' + KERNEL % "int f() { return ippsAdd_64f(); }",  # an export
        ):
            self.assertEqual(len(list(objsymbols.foreign(symbols(source), "w7"))), 1, source)
        allowed = (
            "namespace sig5d { long g(); namespace libm { double sine(double); } namespace px { void h(); } "
            "namespace w7 { void i(); double f(double x) { px::h(); i(); return g() + libm::sine(x); } } }"
        )
        self.assertEqual(list(objsymbols.foreign(symbols(allowed), "w7")), [])

    def test_definitions(self):
        shared = "template <class T> [[gnu::noinline]] T twice(T x) { return 2 * x; }"
        used = "int f(int x) { return twice(x); }"
        self.assertEqual(len(list(objsymbols.foreign(symbols(shared + KERNEL % used), "w7"))), 1)
        self.assertEqual(list(objsymbols.foreign(symbols(KERNEL % (shared + used)), "w7")), [])
        self.assertEqual(list(objsymbols.foreign(symbols('extern "C" void sig5d_w7_ippsAdd_64f() {}'), "w7")), [])
        self.assertEqual(len(list(objsymbols.foreign(symbols('extern "C" void sig5d_h9_ippsAdd_64f() {}'), "w7"))), 1)

    def test_names_of_32_bit_windows(self):
        line = "_sig5d_variant      |0000000c|   D  |              None|        |     |.data"
        section = ".data               |00000000|   d  |              None|        |     |.data"
        self.assertEqual(list(objsymbols.parse(section + "\n" + line, True)), [("sig5d_variant", "D", ".data")])


class Instructions(unittest.TestCase):
    def faults(self, source, level, *flags, bits32=False):
        report = objcheck.Report()
        objcheck.check_object(compiled(source, *flags), level, "objdump", bits32, report)
        return report.faults

    def test_above_the_level(self):
        vectors = "typedef int V __attribute__((vector_size(%d))); void f(V* a) { *a += *a; }"
        self.assertEqual(self.faults(vectors % 16, 1), [])
        self.assertNotEqual(self.faults(vectors % 16, 3, "-mavx"), [])
        self.assertEqual(self.faults(vectors % 16, 4, "-mavx"), [])
        self.assertNotEqual(self.faults(vectors % 32, 4, "-mavx2"), [])
        self.assertEqual(self.faults(vectors % 32, 5, "-mavx2", "-O2"), [])

    def test_beyond_the_variants(self):
        wide = "typedef int V __attribute__((vector_size(64))); void f(V* a) { *a += *a; }"
        masked = (
            "#include <immintrin.h>\nvoid f(__m256i* a, __m256i* b) "
            "{ *a = _mm256_mask_add_epi32(*a, _mm256_cmpgt_epi32_mask(*a, *b), *a, *b); }"
        )
        ternary = (
            "#include <immintrin.h>\nvoid f(__m128i* a, __m128i* b) { *a = _mm_ternarylogic_epi64(*a, *b, *a, 0x1E); }"
        )
        for source in (wide, masked, ternary):
            flags = ("-mavx512f", "-mavx512vl", "-O2")
            self.assertEqual(self.faults(source, 6, *flags), [], source)
            self.assertNotEqual(self.faults(source, 5, *flags), [], source)
        estimate = "#include <immintrin.h>\nvoid f(__m512d* a) { *a = _mm512_rcp14_pd(*a); }"
        self.assertNotEqual(self.faults(estimate, 6, "-mavx512f", "-O2"), [])
        fused = "double f(double a, double b, double c) { return __builtin_fma(a, b, c); }"
        self.assertNotEqual(self.faults(fused, 6, "-mavx512f", "-mfma"), [])
        bytes_anywhere = "#include <immintrin.h>\nvoid f(__m512i* a) { *a = _mm512_permutexvar_epi8(*a, *a); }"
        self.assertNotEqual(self.faults(bytes_anywhere, 6, "-mavx512vbmi", "-O2"), [])  # not all that have the others

    def test_fused_arithmetic_and_x87(self):
        fused = "double f(double a, double b, double c) { return __builtin_fma(a, b, c); }"
        self.assertNotEqual(self.faults(fused, 5, "-mfma"), [])
        self.assertNotEqual(self.faults("long double f(long double x) { return x * x; }", 5), [])

    def test_stack_of_4_bytes(self):
        spill = (
            "typedef double V __attribute__((vector_size(16))); void g(V*);"
            "void f(V x) { V copy = x + x; g(&copy); }"
        )
        flags = ("-m32", "-msse2", "-mfpmath=sse", "-fno-pie")
        self.assertNotEqual(self.faults(spill, 1, *flags, bits32=True), [])
        self.assertEqual(self.faults(spill, 1, *flags, "-mstackrealign", bits32=True), [])


if __name__ == "__main__":
    unittest.main()
