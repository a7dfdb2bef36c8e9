"""What an object defines, keeps and reaches, by its symbols: sentences about what is wrong.

Kernels keep no state, allocate nothing and call nothing but each other and the library's shared functions: here that is
seen as the linker sees it, whatever the source looks like.
"""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tools/apigen"))
import variants

VARIANTS = variants.read(ROOT / "src/variants.txt").names()


def in_file(variable):
    return f"_ZN5sig5d12_GLOBAL__N_1{len(variable)}{variable}E"


# All that the library changes outside its callers' memory: the variant in use, what the processor has and what of it is
# enabled, the cache and the threshold of streaming stores that follows from it, and the DLL's stack guard.
WRITABLE = {
    "sig5d_variant", "sig5d_stream_bytes", "__stack_chk_guard", in_file("features"), in_file("enabled"), in_file("cache"),
    in_file("beyond"),
}  # fmt: skip

# What the compiler itself calls: the stack guard, and in 32-bit code 64-bit divisions and the address of the code, which
# it defines wherever it needs it (a load and a return, the same on every processor).
ADDRESS = r"__x86\.get_pc_thunk\.\w\w"
COMPILERS = rf"__stack_chk_(fail(_local)?|guard)|__u?(div|mod|divmod)di[34]|_GLOBAL_OFFSET_TABLE_|{ADDRESS}"


def parse(listing, underscore=False):
    """(name, class letter, section) from `nm -f sysv`. On 32-bit Windows names have one underscore more."""
    for line in listing.splitlines():
        fields = [field.strip() for field in line.split("|")]
        if len(fields) == 7 and not fields[0].startswith(".") and fields[0] != "Name":
            yield fields[0][underscore and fields[0].startswith("_") :], fields[2], fields[6]


def state(symbols):
    for name, letter, section in symbols:
        constant = section.startswith((".data.rel.ro", ".rdata"))
        if letter in "dDbBsSgGC" and not constant and name not in WRITABLE:
            yield f"{name} can be changed: it is not among the library's listed state"


def foreign(symbols, variant):
    """A variant's object defines names of its own only, and uses those of its own, of lower variants (where those are
    the nearest) and of what all variants share."""
    usable = VARIANTS[: VARIANTS.index(variant) + 1]
    own = re.compile(rf"_Z\w*5sig5d2{variant}\d|sig5d_{variant}_")
    reach = re.compile(
        rf"(_ZNK?5sig5d(2({'|'.join(usable)})\d|(?!2({'|'.join(VARIANTS)})\d))\S+|sig5d_stream_bytes|{COMPILERS})$"
    )
    for name, letter, _ in symbols:
        if letter in "Uwv":
            if not reach.match(name):
                yield f"{name} is called: a kernel calls kernels of its variant and the library's shared functions only"
        elif (letter.isupper() or letter == "u") and not own.match(name) and not re.fullmatch(ADDRESS, name):
            yield f"{name} is defined outside the variant's namespace"
