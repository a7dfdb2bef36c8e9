"""What the interface description says, as plain records."""
from dataclasses import dataclass, field

# A form and the one whose argument list it has; Sfs forms have a scale factor more, SFS forms are only named so.
FORMS = {"plain": "plain", "_I": "_I", "_Sfs": "plain", "_SFS": "plain", "_ISfs": "_I", "_ISFS": "_I"}


@dataclass(frozen=True)
class Type:
    suffix: str  # as in function names: "16s"
    public: str  # C type of the public header: "Ipp16s"
    kernel: str  # C++ type in the kernels: "i16"
    size: int  # bytes an element
    unit: int  # bytes that one step of an _Idx index moves
    code: int = 0  # the type's number where an argument chooses the type; 0: it has none


@dataclass
class Rows:
    """An array that consists of rows."""

    count: str
    width: str  # elements of a row
    step: str  # from one row to the next
    in_bytes: bool  # what the step counts; it may be negative then
    row: str = "0"  # where the pointer points
    column: str = "0"


@dataclass
class Arg:
    """One argument. kind: array, work, result (pointer to single values), opaque (a record), handle (where the address
    of a record is stored), pointer, scalar, index."""

    name: str
    kind: str
    const: bool = False
    inout: bool = False  # read before it is written, or written in part
    type: Type = None  # element type (array, result, scalar); None for int, unsigned and opaque
    base: str = ""  # C type without const and stars
    stars: int = 0
    extent: str = ""  # elements of an array, bytes of a work buffer or record, values of a result
    room: str = ""  # elements that suffice, where the extent is known after the call only
    rows: object = None  # Rows
    optional: bool = False  # a null pointer is a valid argument
    applies_to: str = ""  # index: the pointer that it moves
    record: str = ""  # of a member of a record by value, which is an argument of its own: the record's C type

    @property
    def pointer(self):
        return self.kind in ("array", "work", "result", "opaque", "handle", "pointer")

    def c_type(self):
        return ("const " if self.const else "") + self.base + "*" * self.stars

    def bytes32(self):
        """Bytes on the argument stack of 32-bit code."""
        if self.pointer or self.type is None:
            return 4
        return (self.type.size + 3) // 4 * 4


@dataclass
class Check:
    """The call fails with the status when a pointer is null, when a condition holds, or as words tell."""

    status: str  # without prefix: "NullPtrErr"
    nulls: list = field(default_factory=list)  # null(...): any of these pointers is null
    only_if: str = ""  # with nulls: looked at only if this condition holds
    condition: str = ""  # a C expression over the arguments
    when: str = ""  # words, where the arguments do not tell

    def cpp(self):
        if not self.nulls:
            return self.condition
        any_null = " || ".join("!" + n for n in self.nulls)
        if not self.only_if:
            return any_null
        return f"({self.only_if}) && " + (f"({any_null})" if len(self.nulls) > 1 else any_null)

    def text(self):
        if not self.nulls:
            return self.condition or self.when
        return ", ".join(self.nulls) + " null" + (f" if {self.only_if}" if self.only_if else "")


@dataclass
class Named:
    """A value that is no argument, but that extents, domains and rules may name."""

    name: str
    source: str  # chosen (from a domain), computed, size (of a call), ofState (of its maker's call), counted (in contents)
    text: str = ""  # computed: the expression; chosen: the domain
    query: int = -1  # size: which call gives it
    argument: str = ""  # ofState: the state; counted: the array


@dataclass
class Query:
    """A call that gives sizes: expressions, and names for what it stores."""

    function: str
    args: list


@dataclass
class Maker:
    """A function whose call makes a state that an argument takes."""

    argument: str
    function: str  # its export
    fixed: dict = field(default_factory=dict)  # argument of the maker -> its number
    released: bool = False  # the function gives the state back


@dataclass
class Makes:
    """What a call makes for others."""

    name: str  # the argument that is filled or receives the address; "result"
    home: str = ""  # the argument whose memory holds it; empty: the argument itself, or memory that the call allocated
    release: str = ""  # the export that releases it


@dataclass
class Rule:
    """What an argument's values keep to."""

    argument: str
    kind: str  # other (not x), below, apart, within, often_within, selects, like
    operands: list
    places: list = field(default_factory=list)  # the first element that it is about, and how many further to the next


@dataclass
class Function:
    """One function of the interface: its plain form, or an _Idx form that has an argument list of its own."""

    name: str
    family: str
    form: str  # plain, _I, _Sfs, ...
    half: str  # ipp, own
    convention: str  # stdcall, cdecl
    returns: str  # status, void, or a C type
    args: list
    checks: list  # made by the entry shell, before anything is written
    fails: list  # found by the kernel, before it writes anything
    late: list  # found by the kernel when it has written
    warnings: list
    kernel: str
    call: list  # the names of the arguments that the kernel gets
    plain_call: list  # the same of the plain form: what stands there for what in formulas
    source: str
    bodies: list  # variant bodies; empty: compiled once
    dispatched: bool
    index: str  # auto, none, only (plain form not exported), same, written
    topic: str
    formula: str = ""
    doc: str = ""
    notes: list = field(default_factory=list)
    in_place: list = field(default_factory=list)  # (destination, source) pairs that may be one array
    domains: dict = field(default_factory=dict)  # argument name -> expressions of values worth trying
    moves_bits: bool = False  # values are moved, never computed
    named: list = field(default_factory=list)  # in the order in which they become known
    queries: list = field(default_factory=list)
    makers: list = field(default_factory=list)
    makes: Makes = None
    rules: list = field(default_factory=list)
    untested: str = ""  # why general tests do not call it
    types: list = field(default_factory=list)
    place: object = None  # where it is described

    def failures(self):
        return self.checks + self.fails + self.late

    def bytes32(self):
        return sum(a.bytes32() for a in self.args)

    def exports(self):
        """(name, form) of what is exported, form one of plain, index, alias."""
        indexed = self.name + "_Idx"
        plain = [(self.name, "plain")]
        return {
            "auto": plain + [(indexed, "index")],
            "none": plain,
            "only": [(indexed, "index")],
            "same": plain + [(indexed, "alias")],
            "written": [(indexed, "plain")],
        }[self.index]

    def shown_name(self):
        return self.exports()[0][0]


@dataclass
class Api:
    types: dict
    opaque: list
    records: dict  # structures of include/sig5d_types.h -> their members, of those that are arguments by value
    statuses: list  # (code, name or "", text)
    functions: list
    topics: dict  # name -> title
    sources: dict  # path of a file with entries -> whether its functions are dispatched
    ordinals: dict  # export name -> ordinal
    variants: object

    def status_codes(self):
        return {name[len("ippSts"):]: code for code, name, _ in self.statuses if name}

    def exports(self):
        """Every export in order of its name: (name, function, form), form one of plain, index, alias."""
        found = [(name, f, form) for f in self.functions for name, form in f.exports()]
        return sorted(found, key=lambda e: e[0])


def c_arguments(args):
    """(C type, name) of the arguments as C has them: members of a record are one."""
    found = []
    for a in args:
        one = (a.record, a.name.partition(".")[0]) if a.record else (a.c_type(), a.name)
        if not a.record or one not in found:
            found.append(one)
    return found


def index_args(function):
    """The argument list of the _Idx form: every array and work buffer is followed by an index."""
    result = []
    for a in function.args:
        result.append(a)
        if a.kind in ("array", "work"):
            stem = a.name[1:] if a.name[:1] == "p" and a.name[1:2].isupper() else a.name
            result.append(Arg(stem[:1].lower() + stem[1:] + "Idx", "index", base="int", applies_to=a.name))
    return result
