"""Who may reach whom: the rules of docs/architecture.md and CONTRIBUTING.md as lists of what is allowed.

Each function takes the project's folder and returns what is against its rule, a sentence each; none: all is well.
"""
import re

# For all kernel code: layouts of memory, compile-time traits, intrinsics. Nothing that has code of its own.
PLAIN = {"stddef.h", "stdint.h", "cstddef", "cstdint", "type_traits", "utility"}
INTRINSICS = {f"{letter}mmintrin.h" for letter in "xepstnwai"} | {"immintrin.h"}
STD_NAMES = set(
    "conditional_t integer_sequence index_sequence make_integer_sequence make_index_sequence is_same_v is_signed_v "
    "is_unsigned_v is_floating_point_v is_integral_v make_signed_t make_unsigned_t remove_const_t remove_cvref_t "
    "size_t ptrdiff_t uintptr_t declval".split()
)
ELEMENT_TYPES = ["frame/types.h"]
ENTRY = ELEMENT_TYPES + ["frame/entry.h", "frame/index.h"]
TABLES_OF_FRAME = ["statuses.inc", "status_table.inc", "variant_table.inc", "opaque_types.inc"]  # generated

# The rooms of src/signal/processing. The transforms and the sliding sums serve all the others, which do not include each
# other.
ROOMS = "fft sliding fir iir dct windows generators median goertzel statistics sorting correlation sampling companding".split()

# The folder of a file (the longest that fits) -> files and folders of this project that it may include. Besides them,
# each file may include the generated entries/ of its own name and bodies/ of its own folder.
PROJECT = {
    "src/kernel": ["kernel/", "frame/cache.h"] + ELEMENT_TYPES,
    "src/vector": ["vector/", "kernel/"] + ENTRY,
    "src/matrix": ["matrix/", "kernel/"] + ENTRY,
    "src/image": ["image/", "kernel/"] + ENTRY,
    "src/signal/elementwise": ["signal/elementwise/", "kernel/"] + ENTRY,
    "src/frame": ["frame/*", "sig5d_types.h", *TABLES_OF_FRAME],
    "src/frame/compat": ["frame/memory.h", "frame/index.h", "frame/compat/", "sig5d.h"] + ELEMENT_TYPES,
}
for room in ROOMS:
    PROJECT[f"src/signal/processing/{room}"] = [f"signal/processing/{r}/" for r in (room, "fft", "sliding")] + ["kernel/"] + ENTRY
SYSTEM = {folder: PLAIN | INTRINSICS for folder in PROJECT} | {
    "src/frame": PLAIN | {"atomic", "cpuid.h", "limits.h", "stdlib.h", "time.h", "windows.h", "x86intrin.h"},
    "src/frame/compat": PLAIN | {"stdlib.h"},
}
FAMILIES = ("src/kernel", "src/vector", "src/matrix", "src/image", "src/signal")

# Processor flags, which only cmake/variants.cmake knows. SSE2 and its arithmetic are what all code is compiled for.
PROCESSOR_FLAG = r"-m(?:avx\w*|sse[34][\w.]*|ssse3|f16c|fma\w*|bmi\w*|arch=\S+|tune=\S+)"
MOST_LINES = 400
TABLES = {"tests/frame/recorded_processors.cpp"}  # data, one processor after the other


def sources(root, folder="src"):
    return sorted(p for p in (root / folder).rglob("*") if p.suffix in (".h", ".cpp", ".inc"))


def name(root, path):
    return path.relative_to(root).as_posix()


def code_of(path):
    """The text without comments and strings, but with the names of included files."""
    text = re.sub(r"//[^\n]*|/\*.*?\*/", "", path.read_text(), flags=re.S)
    return re.sub(r'(#include\s+"[^"]*")|"(?:\\.|[^"\\\n])*"', lambda m: m[1] or '""', text)


def includes(path):
    """(project's own, system's) names."""
    text = code_of(path)
    return re.findall(r'#include\s+"([^"]+)"', text), re.findall(r"#include\s+<([^>]+)>", text)


def folder_of(file):
    fitting = [folder for folder in PROJECT if file.startswith(folder + "/")]
    return max(fitting, key=len, default=None)


def fits(include, allowed):
    if allowed.endswith("/*"):  # the folder itself, none below it
        return include.rpartition("/")[0] == allowed[:-2]
    return include.startswith(allowed) if allowed.endswith("/") else include == allowed


def project_includes(root):
    found = []
    for path in sources(root):
        file = name(root, path)
        folder = folder_of(file)
        if not folder:
            found.append(f"{file} lies in no folder of the architecture")
            continue
        place = file.removeprefix("src/")
        generated = ["entries/" + re.sub(r"(\.kernels)?\.\w+$", ".inc", place), f"bodies/{place.rpartition('/')[0]}.h"]
        for include in includes(path)[0]:
            fitting = any(fits(include, allowed) for allowed in PROJECT[folder] + generated)
            if not fitting or include.endswith(".kernels.cpp"):
                found.append(f"{file} includes {include}")
    return found


def system_includes(root):
    return [
        f"{name(root, path)} includes <{include}>"
        for path in sources(root)
        for include in includes(path)[1]
        if include not in SYSTEM.get(folder_of(name(root, path)), ())
    ]


def std_names(root):
    return [
        f"{name(root, path)} uses std::{word}"
        for family in FAMILIES
        for path in sources(root, family)
        for word in sorted(set(re.findall(r"\bstd::(\w+)", code_of(path))) - STD_NAMES)
    ]


def allocations(root):
    """Kernels; elsewhere the memory functions and the handle creators are those that may."""
    banned = r"\b(?:new|delete|throw|malloc|calloc|realloc|free|alloca|__builtin_alloca)\b"
    return [
        f"{name(root, path)} uses {word}"
        for family in FAMILIES
        for path in sources(root, family)
        for word in sorted(set(re.findall(banned, code_of(path))))
    ]


def namespaces(root):
    """A kernel file's own code stands in its variant's namespace: the linker must never merge copies of it."""
    found = []
    for path in sources(root):
        if path.name.endswith(".kernels.cpp"):
            own = re.findall(r"^namespace\s+([\w:]+)", code_of(path), re.M)
            found += [f"{name(root, path)} opens {n}" for n in own if n != "sig5d::SIG5D_VARIANT"]
            if not own and "#include \"entries/" not in path.read_text():
                found.append(f"{name(root, path)} opens no namespace of its variant")
    return found


def oracles(root):
    """An oracle shares nothing with what it judges, not even through another header."""
    places = [root / "tests", root / "src", root / "include", root / "tools/registry"]
    found = []
    for oracle in sources(root, "tests/oracle"):
        waiting, seen = [oracle], set()
        while waiting:
            for include in includes(waiting.pop())[0]:
                for path in (place / include for place in places):
                    if path.exists() and path not in seen:
                        seen.add(path)
                        waiting.append(path)
        found += [f"{name(root, oracle)} reaches {name(root, p)}" for p in sorted(seen) if (root / "src") in p.parents]
    return found


def processor_flags(root):
    files = [root / "CMakeLists.txt", root / "CMakePresets.json"]
    for folder in ("cmake", "tests", "bench", "examples"):
        files += [p for p in (root / folder).rglob("*") if p.suffix == ".cmake" or p.name == "CMakeLists.txt"]
    return [
        f"{name(root, path)} has {flag}"
        for path in files
        if path.exists() and name(root, path) != "cmake/variants.cmake"
        for flag in re.findall(PROCESSOR_FLAG, path.read_text())
    ]


def long_files(root):
    return [
        f"{name(root, path)} has {lines} lines"
        for folder in ("src", "tests", "bench", "examples", "tools")
        for path in sorted((root / folder).rglob("*"))
        if path.suffix in (".h", ".cpp", ".py", ".S", ".inc", ".cmake")
        if (lines := path.read_text().count("\n")) > MOST_LINES and name(root, path) not in TABLES
    ]


def loops_in_entries(folder):
    """The generator writes the boundary, never a loop: `folder` holds the entries that it wrote."""
    return [
        f"{name(folder, path)} has a loop"
        for path in sorted(folder.rglob("*.inc"))
        if re.search(r"\b(?:for|while|do|goto)\b", code_of(path))
    ]
