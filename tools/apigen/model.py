"""What the interface description says, as plain records."""
from dataclasses import dataclass, field


@dataclass(frozen=True)
class Type:
    suffix: str  # as in function names: "16s"
    public: str  # C type of the public header: "Ipp16s"
    kernel: str  # C++ type in the kernels: "i16"
    size: int  # bytes an element
    unit: int  # bytes that one step of an _Idx index moves


@dataclass
class Arg:
    """One argument. kind: array, work, result (pointer to single values), opaque, pointer, scalar, index."""

    name: str
    kind: str
    const: bool = False
    inout: bool = False  # read before it is written, or written in part
    type: Type = None  # element type (array, result, scalar); None for int, unsigned and opaque
    base: str = ""  # C type without const and stars
    stars: int = 0
    extent: str = ""  # elements of an array, bytes of a work buffer, values of a result
    optional: bool = False  # a null pointer is a valid argument
    applies_to: str = ""  # index: the pointer that it moves

    @property
    def pointer(self):
        return self.kind in ("array", "work", "result", "opaque", "pointer")

    def c_type(self):
        return ("const " if self.const else "") + self.base + "*" * self.stars

    def bytes32(self):
        """Bytes on the argument stack of 32-bit code."""
        if self.pointer or self.type is None:
            return 4
        return (self.type.size + 3) // 4 * 4


@dataclass
class Check:
    """The call fails with the status when the condition holds."""

    status: str  # without prefix: "NullPtrErr"
    nulls: list = field(default_factory=list)  # null(...): any of these pointers is null
    condition: str = ""  # otherwise: a C expression over the arguments

    def cpp(self):
        return " || ".join("!" + n for n in self.nulls) if self.nulls else self.condition

    def text(self):
        return ", ".join(self.nulls) + " null" if self.nulls else self.condition


@dataclass
class Function:
    """One function of the interface: its plain form, or an _Idx form that has an argument list of its own."""

    name: str
    family: str
    half: str  # ipp, own
    convention: str  # stdcall, cdecl
    returns: str  # status, void, or a C type
    args: list
    checks: list
    checks_in_kernel: bool
    kernel: str
    call: list  # argument expressions of the kernel call
    source: str
    bodies: list  # variant bodies; empty: compiled once
    dispatched: bool
    index: str  # auto, none, only (plain form not exported), same, written
    topic: str
    formula: str = ""
    doc: str = ""
    notes: list = field(default_factory=list)
    warnings: list = field(default_factory=list)
    in_place: list = field(default_factory=list)  # (destination, source) pairs that may be one array
    domains: dict = field(default_factory=dict)  # argument name -> expressions of values worth trying
    moves_bits: bool = False  # values are moved, never computed
    fixture: str = ""  # who builds valid arguments for the tests; empty: they follow from the extents
    types: list = field(default_factory=list)

    def bytes32(self):
        return sum(a.bytes32() for a in self.args)


@dataclass
class Api:
    types: dict
    opaque: list
    statuses: list  # (code, name or "", text)
    functions: list
    topics: dict  # name -> title
    sources: dict  # path -> (bodies, dispatched)
    ordinals: dict  # export name -> ordinal

    def exports(self):
        """Every export in order of its name: (name, function, form), form one of plain, index, alias."""
        found = []
        for f in self.functions:
            if f.index == "written":
                found.append((f.name + "_Idx", f, "plain"))
                continue
            if f.index != "only":
                found.append((f.name, f, "plain"))
            if f.index in ("auto", "only"):
                found.append((f.name + "_Idx", f, "index"))
            elif f.index == "same":
                found.append((f.name + "_Idx", f, "alias"))
        return sorted(found, key=lambda e: e[0])


def index_args(function):
    """The argument list of the _Idx form: every array and work buffer is followed by an index."""
    result = []
    for a in function.args:
        result.append(a)
        if a.kind in ("array", "work"):
            stem = a.name[1:] if a.name[:1] == "p" and a.name[1:2].isupper() else a.name
            result.append(Arg(stem[:1].lower() + stem[1:] + "Idx", "index", base="int", applies_to=a.name))
    return result
