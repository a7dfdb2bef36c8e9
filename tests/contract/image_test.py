"""What the built library promises as a file: its imports, exports, protections, writable data and version."""
import argparse
import json
import re
import sys
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
PROJECT = HERE.parent.parent
sys.dont_write_bytecode = True
sys.path += [str(HERE), str(PROJECT / "tools"), str(PROJECT / "tools" / "apigen")]

from elf_file import ElfFile
from parse import Parser
from pe_file import PeFile
from seal_image import checksum

IMPORTS = {
    "kernel32.dll": ["DisableThreadLibraryCalls", "TerminateProcess"],
    "msvcrt.dll": ["_time64", "free", "malloc"],
}
MOST_IMPORTS = 10

# Every writable variable, with its reason. The sections of the linker's map name them.
WRITABLE = {
    "sig5d_variant": "index of the processor variant in use",
    "sig5d_stream_bytes": "from how many bytes on streaming stores pay",
    "_ZN5sig5d12_GLOBAL__N_17enabledE": "feature word of the selection",
    "_ZN5sig5d12_GLOBAL__N_18featuresE": "feature word that was detected",
    "_ZN5sig5d12_GLOBAL__N_16beyondE": "whether the body beyond the variants can run",
    "_ZN5sig5d12_GLOBAL__N_15cacheE": "cache size that was detected, with its status",
    "__stack_chk_guard": "stack guard, set when the DLL is loaded",
}
# The start files of a Linux library: the handle that identifies it, and a flag of its unloading.
START_FILES = re.compile(r"crt(begin|end)S?\.o$")
MOST_WRITABLE = 64

options = None


def described():
    return [name for name, _, _ in Parser(PROJECT / "api", PROJECT / "src/variants.txt").read().exports()]


def writable_variables(sections):
    """(input section, bytes, object file) of the output sections, from the linker's map."""
    found, inside, pending = [], False, ""
    for line in Path(options.map).read_text().splitlines():
        if line[:1] == ".":
            inside = line.split()[0] in sections
        if not inside:
            continue
        m = re.match(r" (\S+)?\s+0x[0-9a-f]+\s+0x([0-9a-f]+) (.+)$", line)
        if m and int(m[2], 16):
            found.append((m[1] or pending, int(m[2], 16), m[3]))
        m = re.match(r" (\.\S+)$", line)
        pending = m[1] if m else ""
    return found


class Common(unittest.TestCase):
    def check_writable(self, sections):
        total, seen = 0, set()
        for section, size, source in writable_variables(sections):
            total += size
            variable = re.sub(r"^\.(data|bss)(\.rel\.local|\.rel)?[.$]?", "", section)
            seen.add(variable)
            self.assertTrue(variable in WRITABLE or START_FILES.search(source), f"{section} of {source} is writable")
        self.assertIn("sig5d_variant", seen)
        self.assertLessEqual(total, MOST_WRITABLE)
        return total

    def check_flags(self):
        """Every object of the library is compiled with the stack protector and without a shortcut in the arithmetic."""
        commands = json.loads(Path(options.commands).read_text())
        mine = [c["command"] for c in commands if re.search(r"-o CMakeFiles/sig5d_(frame|\w\w)\.dir/src/.*\.cpp\.o", c["command"])]
        self.assertGreater(len(mine), 5)
        for command in mine:
            self.assertIn("-fstack-protector-strong", command)
            self.assertIn("-ffp-contract=off", command)
            for forbidden in ("-fno-stack-protector", "-mfma", "-ffast-math", "-flto", "-Ofast"):
                self.assertNotIn(forbidden, command)

    def check_no_paths(self, files):
        for path in files:
            data = Path(path).read_bytes()
            for folder in {str(PROJECT), str(Path(options.image).resolve().parent)}:
                for spelling in (folder, re.sub(r"\W", "_", folder)):  # import libraries spell it as a symbol
                    self.assertNotIn(spelling.encode(), data, path)


class Dll(Common):
    def setUp(self):
        self.image = PeFile(Path(options.image).read_bytes())

    def test_imports(self):
        self.assertEqual({d: sorted(n) for d, n in self.image.imports().items()}, IMPORTS)
        self.assertLessEqual(sum(map(len, IMPORTS.values())), MOST_IMPORTS)

    def test_exports(self):
        name, exports = self.image.exports()
        self.assertEqual(name, "Numlab.Sig5d.dll")
        ordinals = {n: i for i, n in enumerate((PROJECT / "api" / "ordinals.txt").read_text().split(), 1)}
        self.assertEqual(sorted(exports), sorted(described()))
        start, size = self.image.directories[0]
        code = next(s for s in self.image.sections if s[0] == ".text")
        for name, (ordinal, rva) in exports.items():
            self.assertRegex(name, r"^[A-Za-z]\w*$")
            self.assertEqual(ordinal, ordinals[name], name)
            self.assertFalse(start <= rva < start + size, name + " is a forwarder")
            self.assertTrue(code[1] <= rva < code[1] + code[2], name + " is no code")

    def test_no_start_up_machinery(self):
        present = {i for i, (rva, _) in enumerate(self.image.directories) if rva}
        self.assertEqual(present, {0, 1, 2, 5, 12})  # exports, imports, resources, relocations, import addresses
        self.assertEqual([s[0] for s in self.image.sections], [".text", ".data", ".rdata", ".edata", ".idata", ".rsrc", ".reloc"])

    def test_reproducible_header(self):
        self.assertEqual(self.image.machine, 0x14C)
        self.assertEqual(self.image.timestamp, 0)
        self.assertEqual(self.image.image_base, 0x63C00000)
        at = self.image.checksum_offset
        data = self.image.data
        self.assertEqual(self.image.u32(at), checksum(data[:at] + b"\0\0\0\0" + data[at + 4 :]))

    def test_protections(self):
        dynamic_base, nx, no_seh = 0x40, 0x100, 0x400
        self.assertEqual(self.image.dll_flags, dynamic_base | nx | no_seh)
        execute, write = 0x20000000, 0x80000000
        for name, _, _, _, _, flags in self.image.sections:
            self.assertEqual(bool(flags & write), name == ".data", name)
            self.assertEqual(bool(flags & execute), name == ".text", name)

    def test_writable_data(self):
        size = next(s[2] for s in self.image.sections if s[0] == ".data")
        self.assertLessEqual(self.check_writable([".data", ".bss"]), size)
        self.assertLessEqual(size, MOST_WRITABLE)

    def test_stack_guard(self):
        self.check_flags()
        guard = re.search(r"0x([0-9a-f]+) +_*__stack_chk_guard$", Path(options.map).read_text(), re.M)
        uses = self.image.relocated().count(int(guard[1], 16))
        self.assertGreater(uses, 4)  # the entry point sets it, protected functions read it on entry and return

    def test_version(self):
        fixed, strings = self.image.version_resource()
        major, minor, patch = map(int, options.version.split("."))
        self.assertEqual(fixed[2:6], (major << 16 | minor, patch << 16) * 2)
        self.assertEqual(fixed[9], 2)  # a DLL
        for expected in ("FileVersion\0" + f"\0{options.version}.0", "OriginalFilename\0\0Numlab.Sig5d.dll", "VarFileInfo"):
            self.assertIn(expected.replace("\0", ""), strings.replace("\0", ""))

    def test_no_paths_of_the_build(self):
        folder = Path(options.image).parent
        self.check_no_paths([options.image] + [folder / n for n in ("Numlab.Sig5d.lib", "libNumlab.Sig5d.dll.a", "Numlab.Sig5d.def")])


class SharedLibrary(Common):
    def setUp(self):
        self.image = ElfFile(Path(options.image).read_bytes())

    def test_needs_the_c_library_only(self):
        self.assertEqual(self.image.needed(), ["libc.so.6"])
        _, undefined = self.image.symbols()
        optional = {"__cxa_finalize", "__gmon_start__", "_ITM_deregisterTMCloneTable", "_ITM_registerTMCloneTable"}
        self.assertEqual(set(undefined) - optional, {"__stack_chk_fail", "free", "malloc", "time"})

    def test_exports(self):
        defined, _ = self.image.symbols()
        self.assertEqual(sorted(defined), sorted(described()))
        self.assertEqual(set(defined.values()), {2})  # functions

    def test_protections(self):
        read, write, execute = 4, 2, 1
        segments = self.image.segments
        for kind, flags, _, _, _, _ in segments:
            self.assertNotEqual(flags & (write | execute), write | execute)
        stack = [s for s in segments if s[0] == 0x6474E551]
        self.assertEqual([s[1] for s in stack], [read | write])
        self.assertEqual(len([s for s in segments if s[0] == 0x6474E552]), 1)  # read-only after relocation
        self.assertFalse([s for s in segments if s[0] == 7])  # no thread-local storage
        self.assertTrue(any(v & 8 for v in self.image.values(30)), "not bound at load")
        self.assertFalse(any(v & 4 for v in self.image.values(30)) or self.image.values(22), "relocated code")
        self.assertFalse(self.image.values(15) or self.image.values(29), "search path")

    def test_writable_data(self):
        total = self.check_writable([".data", ".bss", ".tbss", ".tdata"])
        _, _, _, start, _, memory = next(s for s in self.image.segments if s[0] == 1 and s[1] & 2)
        _, _, _, relro, _, protected = next(s for s in self.image.segments if s[0] == 0x6474E552)
        self.assertLessEqual(start + memory - (relro + protected), MOST_WRITABLE + 16)  # with the padding
        self.assertLessEqual(total, MOST_WRITABLE)

    def test_flags(self):
        self.check_flags()

    def test_no_paths_of_the_build(self):
        self.check_no_paths([options.image])


if __name__ == "__main__":
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("--image", required=True)
    arguments.add_argument("--map", required=True, help="the linker's map")
    arguments.add_argument("--commands", required=True, help="compile_commands.json")
    arguments.add_argument("--version", required=True)
    options = arguments.parse_args()
    kind = SharedLibrary if Path(options.image).read_bytes()[:4] == b"\x7fELF" else Dll
    suite = unittest.defaultTestLoader.loadTestsFromTestCase(kind)
    sys.exit(not unittest.TextTestRunner().run(suite).wasSuccessful())
