"""A right description is read as it is meant; mistakes in one are told, with the line where they stand."""
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools/apigen"))
import emit_cpp
import emit_registry
from parse import Parser
from statements import Mistake

FILES = {
    "status.api": "-6 ippStsSizeErr Wrong size.\n-8 ippStsNullPtrErr Null pointer.\n-5 ippStsBadArgErr Bad.\n6 ippStsDivByZero Zero.\n",
    "types.api": "type 8u Ipp8u u8 1 1\ntype 16s Ipp16s i16 2 2\ntype 32s Ipp32s i32 4 4\ntype 32u Ipp32u u32 4 4\n"
    "type 64f Ipp64f f64 8 8\ntype 64fc Ipp64fc c64f 16 16\nopaque Spec_64f\n"
    "record Size (int width, int height)\nrecord Stamp\n",
    "shapes.api": "shape unary (const T pSrc[len], T pDst[len], int len)\n    checks null; size\n    in_place pDst=pSrc\n"
    "    form _I (inout T pSrcDst[len], int len) runs (pSrcDst, pSrcDst, len)\n",
    "ordinals.txt": "F_64f\nF_64f_Idx\nF_64f_I\nF_64f_I_Idx\nF_16s\nF_16s_Idx\nF\nF_Idx\n",
    "variants.txt": 'variant px 0x3 "A" -O\nvariant w7 0x7 "B"\nbodies a.kernels.cpp px w7\n',
}
# What stands above the families of each case: their first line is the fourth.
HEAD = 'half ipp\ntopic one "One"\nsource a.kernels.cpp\n'
# A family without a mistake, by its clauses; a case replaces some of them.
RIGHT = {"types": "64f", "kernel": "k", "formula": "pDst[i] = pSrc[i]"}


def read(files):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in (FILES | files).items():
            Path(folder, name).write_text(text)
        return Parser(folder, Path(folder, "variants.txt")).read()


def family(head="family F unary", **clauses):
    """The clauses of the case stand first, so that the mistake is in line 5 unless the case is about another line."""
    said = clauses | {word: text for word, text in RIGHT.items() if word not in clauses}
    return HEAD + head + "\n" + "".join(f"    {word} {text}\n" for word, text in said.items() if text is not None)


OWN = "family F (const T pSrc[len], T val, T pDst[len], work pBuf[4*len], int len, int mode)"

SIZED = "family F (int len, int* pSize)"
SIZER = {"checks": "none", "types": None}
USER = "family F (const Spec_{T}* pSpec, const T pSrc[4])"
MAKER = "family F (Spec_64f* pSpec[8], int n)\n    checks none\n    kernel k\n    doc x\n    makes pSpec\n"

# (what is wrong, the file a.api or a dictionary of files, the message)
MISTAKES = [
    # statements and clauses
    ("statement", HEAD + "famly F unary\n", "a.api:4: unknown statement famly"),
    ("clause", family(cheks="null"), "a.api:5: unknown clause cheks"),
    ("clause of a shape", {"shapes.api": "shape unary (int len)\n    kernle k\n"}, "shapes.api:2: unknown clause kernle"),
    ("clause twice", family() + "    kernel other\n", "a.api:8: kernel a second time"),
    ("form twice", family(form="_I (int len)") + "    form _I (int len)\n", "a.api:9: form _I a second time"),
    ("domain twice", family(domain="len = 1") + "    domain len = 2\n", "a.api:9: domain len a second time"),
    ("empty clause", family(doc=""), "a.api:5: doc says nothing"),
    ("flag with a value", family(moves="bits"), "a.api:5: moves takes nothing"),
    ("clause of a topic", 'half ipp\ntopic one "One"\n    doc x\n', "a.api:3: topic has no clauses"),
    ("indent", family() + "      doc x\n", "a.api:8: indented by 6"),
    ("half", "half mine\n", "a.api:1: neither ipp nor own: mine"),
    ("no half", family().partition("\n")[2], "a.api:3: no half line above"),
    ("no source", 'half ipp\ntopic one "One"\nfamily F unary\n', "a.api:3: no source line above"),
    ("topic twice", HEAD + 'topic one "Another"\n', "a.api:4: topic one a second time"),
    ("parenthesis", family("family F (int len"), "a.api:4: no family NAME (arguments) or NAME SHAPE"),
    # shapes
    ("shape", family("family F unery"), "a.api:4: unknown shape unery"),
    ("shape twice", HEAD + "shape unary (int len)\n", "a.api:4: shape unary a second time, first at shapes.api:1"),
    ("shape in vain", HEAD + "shape lonely (int len)\n", "a.api:4: a shape that no family has"),
    # arguments
    ("type of an argument", family("family F (const 46f pSrc[len], int len)"), "a.api:4: unknown type 46f: pSrc"),
    ("unbound type", family("family F (const U pSrc[len], int len)"), "a.api:4: unknown type U: pSrc"),
    ("record", family("family F (Spce_{T}* pSpec)"), "a.api:4: unknown type Spce_64f: pSpec"),
    ("suffix of no type", family("family F (Spec_{T}* pSpec)", types=None), "a.api:4: {T} in a function without"),
    ("argument twice", family("family F (int len, T len)"), "a.api:4: two arguments len"),
    ("argument", family("family F (const T pSrc len)"), "a.api:4: no argument: const T pSrc len"),
    ("optional number", family("family F (int len?)"), "a.api:4: ? is for pointers: int len?"),
    ("index by rule", family("family F (const T p[1], index pIdx)"), "a.api:4: index pIdx: only where `idx written`"),
    ("index of nothing", family("family F (int len, index i)", idx="written"), "a.api:4: index i does not follow"),
    ("extent", family("family F (const T pSrc[lne], int len)"), "a.api:4: lne is no argument: lne"),
    ("extent of a pointer", family("family F (const T pSrc[pSrc], int len)"), "a.api:4: a number is asked for: pSrc"),
    # records by value
    ("member of a record", family("family F (Size s, const T pSrc[s.depth])"), "a.api:4: s.depth is no argument: s.depth"),
    ("record as a number", family("family F (Size s, const T pSrc[s])"), "a.api:4: s is no argument: s"),
    ("record without members", family("family F (Stamp v)"), "a.api:4: unknown type Stamp: v"),
    ("record twice", family("family F (Size s, Size s)"), "a.api:4: two arguments s.width"),
    ("members of a record", {"types.api": "record Size (long width)\n"}, "types.api:1: no int MEMBER: long width"),
    ("domain of a member", family("family F (Size s, const T pSrc[s.width])", domain="s.depth = 1", checks="null"),
     "a.api:5: domain s.depth: no such argument"),
    ("row of the pointer", family("family F (const T p[n of n every n bytes from row r column 0], int n)"),
     "a.api:4: r is no argument: r"),
    # members, forms
    ("element type", family(types="64d"), "a.api:5: no element types: 64d"),
    ("unknown element type", family(types="8s"), "a.api:5: unknown element type 8s: 8s"),
    ("form", family(forms="plain _J"), "a.api:5: unknown form _J"),
    ("form without arguments", family("family F (int len)", forms="_I"), "a.api:5: form _I needs a clause"),
    ("form in vain", family(form="_I (int len) runs (len)"), "a.api:5: form _I is not among the forms"),
    ("form that none is", family(form="_K (int len)"), "a.api:5: unknown form _K"),
    ("runs", family(form="_I (inout T pSrcDst[len], int len) runs (pSrcDst, pSrc, len)", forms="plain _I"),
     "a.api:5: pSrc is no argument"),
    ("runs without an argument", family(form="_I (inout T pSrcDst[len], int len) runs (pSrcDst, pSrcDst, pSrcDst)",
                                        forms="plain _I"), "a.api:5: runs passes no len on"),
    ("runs too short", family(form="_I (inout T pSrcDst[len], int len) runs (pSrcDst, len)", forms="plain _I"),
     "a.api:5: runs has 2 values, the plain form 3 arguments"),
    ("kernel", family(kernel=None), "a.api:4: no kernel: "),
    ("kernel's name", family(kernel="k, l"), "a.api:5: no kernel: k, l"),
    ("index form", family(idx="atuo"), "a.api:5: unknown idx atuo"),
    ("convention", family(convention="fastcall"), "a.api:5: unknown convention fastcall"),
    ("result", family(returns="Ipp46f"), "a.api:5: unknown type Ipp46f"),
    ("result's record", family(returns="const Version*"), "a.api:5: unknown type const Version*"),
    ("undocumented", family(formula=None), "a.api:4: neither formula nor doc"),
    # checks
    ("no checks", family(OWN), "a.api:4: no checks: a function that returns a status"),
    ("checks of no status", family(OWN, checks="null", returns="int"), "a.api:5: checks: the function returns no status"),
    ("check", family(OWN, checks="nul; size"), "a.api:5: no check: nul"),
    ("check between", family(OWN, checks="null;; size"), "a.api:5: nothing stands between two ';'"),
    ("pointer of a check", family(OWN, checks="null(pSrc, pDts)"), "a.api:5: pDts is no argument"),
    ("null number", family(OWN, checks="null(len)"), "a.api:5: len is no pointer: null(len)"),
    ("null of nothing", family("family F (int len)", checks="null"), "a.api:5: null: no pointer to be looked at"),
    ("size", family(OWN, checks="size(n)"), "a.api:5: n is no argument"),
    ("status", family(OWN, checks="mode < 0 : BadArgError"), "a.api:5: unknown status BadArgError"),
    ("a warning as error", family(OWN, checks="mode < 0 : DivByZero"), "a.api:5: DivByZero is no error"),
    ("an error as warning", family(warns="SizeErr"), "a.api:5: SizeErr is no warning"),
    ("name in a condition", family(OWN, checks="moed < 0 : BadArgErr"), "a.api:5: moed is no argument: moed < 0"),
    ("name in null if", family(OWN, checks="null(pBuf) if moed == 2"), "a.api:5: moed is no argument: moed == 2"),
    ("name in fails", family(OWN, checks="none", fails="lne < 2 : SizeErr"), "a.api:6: lne is no argument"),
    ("name in late", family(OWN, checks="none", late="lne < 2 : SizeErr"), "a.api:6: lne is no argument"),
    ("words for the shell", family(OWN, checks="BadArgErr when it rains"), "a.api:5: no check: BadArgErr when it rains"),
    ("condition", family(OWN, checks="mode < : BadArgErr"), "a.api:5: no expression"),
    ("condition ends", family(OWN, checks="(mode < 0 : BadArgErr"), "a.api:5: nothing closes what opens here"),
    ("part of a number", family(OWN, checks="mode.re < 0 : BadArgErr"), "a.api:5: mode.re is no argument"),
    ("complex compared", family(OWN, types="64fc", checks="val < 0 : BadArgErr"), "a.api:6: < takes numbers: val < 0"),
    ("pointer compared", family(OWN, checks="pSrc < 0 : BadArgErr"), "a.api:5: < takes numbers: pSrc < 0"),
    ("number followed", family(OWN, checks="*mode < 0 : BadArgErr"), "a.api:5: * takes a pointer: *mode < 0"),
    # what tests read
    ("in place", family(in_place="pDst=pScr"), "a.api:5: no such arguments: pDst=pScr"),
    ("in place twice", family(in_place="pDst=pSrc") + "    in_place pDst=pSrc\n", "a.api:9: in_place a second time"),
    ("in place into const", family(in_place="pSrc=pDst"), "a.api:5: no array that is written and one that is read"),
    ("in place of two types", family("family F (const 16s pSrc[len], T pDst[len], int len)", in_place="pDst=pSrc", checks="none"),
     "a.api:5: pDst and pSrc hold different types"),
    ("domain", family(domain="lne = 1 2"), "a.api:5: domain lne: no such argument"),
    ("domain's value", family(domain="len = 1 lne+1"), "a.api:5: lne is no argument: lne+1"),
    ("domain of a pointer", family(domain="pSrc = 1"), "a.api:5: pSrc is no number"),
    # how arguments are built
    ("domain of nothing", family(domain="len = 1..lne"), "a.api:5: lne is no argument: lne"),
    ("let", family(let="n = lne+1"), "a.api:5: lne is no argument: lne+1"),
    ("let of an argument", family(let="len = 3"), "a.api:5: len is there already"),
    ("let in vain", family(let="n = len+1"), "a.api:4: n is named in vain"),
    ("some in vain", family(some="size = 1 2"), "a.api:4: size is named in vain"),
    ("sizes of nothing", family(sizes="G(len, n)"), "a.api:4: sizes: there is no G of 2 arguments"),
    ("sizes misunderstood", family(SIZED, sizes="F(len, len)", **SIZER), "a.api:4: sizes: len for pSize of F"),
    ("state of nothing", family(state="pSpec by G"), "a.api:5: state pSpec: no such argument"),
    ("state that is none", family(state="pSrc by G"), "a.api:5: pSrc is no record"),
    ("state without maker", family(USER, state="pSpec by F", checks="none"), "a.api:4: pSpec: F makes nothing"),
    ("value of a state", family(USER.replace("[4]", "[pSpec.n]"), checks="none"), "a.api:4: pSpec.n is no argument"),
    ("a state's value", family(USER.replace("[4]", "[pSpec.m]"), state="pSpec by F", checks="none") + MAKER,
     "a.api:4: pSpec: F has no m"),
    ("number for a maker", family(USER, state="pSpec by F with m=1", checks="none") + MAKER, "a.api:4: pSpec: F has no m"),
    ("what is made", family(makes="pDst"), "a.api:5: pDst is no record"),
    ("home", family("family F (Spec_{T}** pp, int len)", makes="pp in len", checks="none"), "a.api:5: len is no work buffer"),
    ("rule", family(values="pSrc positive"), "a.api:5: no rule: pSrc positive"),
    ("rule for nothing", family(values="pScr not 0"), "a.api:5: values pScr: no such argument"),
    ("limit of a rule", family(values="pSrc below lne"), "a.api:5: lne is no argument: lne"),
    ("model of a rule", family(values="pSrc like pScr"), "a.api:5: pScr is no argument"),
    ("number of a type", family(types="16s", let="n = {T.code}"), "a.api:6: {T.code} in a function whose type has no number"),
    # names
    ("function twice", family() + family().partition("cpp\n")[2], "a.api:8: F_64f is described a second time, first at a.api:4"),
    ("no ordinal", family(types="32s"), "a.api:4: F_32s has no line in ordinals.txt"),
    ("ordinal twice", {"ordinals.txt": "A\nB\nA\n"}, "ordinals.txt:3: A a second time"),
    ("ordinal skipped", {"ordinals.txt": "A\n\nB\n"}, "ordinals.txt:3: a line without a name above"),
    ("two names", {"ordinals.txt": "A\nB C\n"}, "ordinals.txt:2: no name of an export: B C"),
    ("status twice", {"status.api": "-6 ippStsA A.\n-6 ippStsB B.\n"}, "status.api:2: status -6 ippStsB a second time"),
    ("type twice", HEAD + "type 8u Ipp8u u8 1 1\n", "a.api:4: type 8u a second time"),
    ("opaque twice", HEAD + "opaque Spec_64f\n", "a.api:4: Spec_64f a second time"),
    # kernel files
    ("file without bodies", HEAD + "source b.kernels.cpp\n", "a.api:4: b.kernels.cpp has no bodies in variants.txt"),
    ("internal file with exports", {"variants.txt": FILES["variants.txt"] + "internal x px : b\n", "a.api": HEAD + "source x/b.kernels.cpp\n"},
     "a.api:4: x/b.kernels.cpp is internal in variants.txt"),
]
# (what is wrong, what follows the third line of variants.txt, the message)
MISTAKES += [(what, {"variants.txt": FILES["variants.txt"] + text}, f"variants.txt:{message}") for what, text, message in [
    ("statement of variants", "body b.kernels.cpp px", "4: none of variant, beyond, bodies, internal: body"),
    ("variant without a title", "variant s8 0x1F -mssse3", "4: no variant NAME FEATURES"),
    ("variant twice", 'variant px 0x1F "C"', "4: px a second time"),
    ("body beyond a lower variant", "beyond z9 px 0xF -O", "4: px is not the highest variant"),
    ("variant above the body beyond", 'beyond z9 w7 0xF -O\nvariant s8 0x1F "C"', "5: s8 stands behind the body beyond"),
    ("bodies of no kernel", "bodies b.cpp px", "4: b.cpp is no .kernels.cpp file"),
    ("no bodies", "bodies b.kernels.cpp", "4: no bodies FILE NAME"),
    ("unknown variant", "bodies b.kernels.cpp px w8", "4: no variants in"),
    ("order of variants", "bodies b.kernels.cpp w7 px", "4: no variants in"),
    ("no lowest body", "bodies b.kernels.cpp w7", "4: without px"),
    ("bodies twice", "bodies a.kernels.cpp px", "4: a.kernels.cpp a second time"),
    ("internal without files", "internal x px w7", "4: no internal FOLDER NAME"),
    ("internal without bodies", "internal x : b", "4: no internal FOLDER NAME"),
    ("unknown internal variant", "internal x px w8 : b", "4: no variants in"),
    ("internal file twice", "internal x px : b c b", "4: x/b.kernels.cpp a second time"),
    ("internal and not", "internal x px : b\nbodies x/b.kernels.cpp px", "5: x/b.kernels.cpp a second time"),
    ("internal folders of one name", "internal x/y px : b\ninternal z/y px : b", "5: z/y: x/y has the same name"),
]]  # fmt: skip


class Mistakes(unittest.TestCase):
    def test_the_description_without_a_mistake_is_read(self):
        self.assertEqual([f.name for f in read({"a.api": family(forms="plain _I")}).functions], ["F_64f", "F_64f_I"])
        read({"a.api": family(OWN, checks="null(pBuf) if mode == 2; null; size; !(mode > 0) : BadArgErr; val != 0 : BadArgErr",
                              fails="BadArgErr when it rains", late="mode == 3 : BadArgErr", domain="mode = 1 len+1")})

    def test_the_shell_makes_the_checks_and_the_kernel_is_asked_for_the_rest(self):
        described = family(
            "family F (const T pSrc[len], T pDst[len], work pBuf[len]?, int len, int mode)",
            checks="null(pBuf) if mode == 2; null; size; !(mode > 0) : BadArgErr",
            late="mode == 3 : BadArgErr",
        )
        shell = emit_cpp.entries(read({"a.api": described.replace("a.kernels", "x/a.kernels"),
                                       "variants.txt": FILES["variants.txt"].replace("bodies ", "bodies x/")}))
        self.assertEqual(
            re.findall(r"^    (.*)$", shell["entries/x/a.inc"], re.M),
            [
                "if ((mode == 2) && !pBuf) return StsNullPtrErr;",
                "if (!pSrc || !pDst) return StsNullPtrErr;",
                "if (len < 1) return StsSizeErr;",
                "if (!(mode > 0)) return StsBadArgErr;",
                "return k(pSrc, pDst, pBuf, len, mode);",
            ],
        )

    def test_each_mistake_is_told_with_its_line(self):
        for what, given, message in MISTAKES:
            with self.subTest(what):
                files = given if isinstance(given, dict) else {"a.api": given}
                with self.assertRaises(Mistake) as caught:
                    read(files)
                self.assertIn(message, str(caught.exception))

    def test_states_of_the_decision_are_understood(self):
        """The lines in docs/decisions/states-as-arguments.md, with the types and statuses of the interface."""
        record = (ROOT / "docs/decisions/states-as-arguments.md").read_text().splitlines()
        lines = ["half ipp"] + [line[4:] for line in record if line.startswith("    ")]
        names = [line.split("\t")[0] for line in (ROOT / "tests/contract/expected_exports.tsv").read_text().splitlines()[1:]]
        kernels = [line.split()[1] for line in lines if line.startswith("source ")]
        files = {name: (ROOT / "api" / name).read_text() for name in ("status.api", "types.api", "shapes.api")}
        files |= {"ordinals.txt": "\n".join(names) + "\n", "families.api": "\n".join(lines) + "\n"}
        files["variants.txt"] = 'variant px 0x3 "A"\n' + "".join(f"bodies {k} px\n" for k in kernels)
        api = read(files)
        f = {f.name: f for f in api.functions}

        def named(name):
            return [(n.name, n.source) for n in f[name].named]

        self.assertEqual([m.function for m in f["ippsIIR_64fc_I"].makers], ["ippsIIRInit_64fc", "ippsIIRInit_BiQuad_64fc"])
        self.assertEqual(f["ippsIIRInit_BiQuad_64f"].makes.home, "pBuf")
        self.assertEqual(f["ippsIIRInit_BiQuad_64f"].rules[1].places, ["3", "6"])
        self.assertEqual(named("ippsIIRInit_64f"), [("bufSize", "size")])
        self.assertEqual(named("ippsDCTFwd_64f"), [("pDCTSpec.len", "ofState"), ("pDCTSpec.bufSize", "ofState")])
        self.assertEqual(f["ippsFilterMedian_16s"].queries[0].args, ["maskSize", "7", "bufSize"])
        self.assertEqual(named("ippsFilterMedian_8u"), [("bufSize", "size"), ("delay", "computed")])
        self.assertEqual(f["ippsSampleUp_64f"].domains["pPhase"], ["0..factor-1"])
        written = emit_registry.files(api)["registry.cpp"]
        self.assertEqual(written.count("{0, 4, -1}"), 4)  # ppState, in pBuf, released by nobody

    def test_a_mistake_stops_the_generator(self):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in (FILES | {"a.api": family(cheks="null")}).items():
                Path(folder, name).write_text(text)
            command = [sys.executable, "-B", str(ROOT / "tools/apigen"), "--api", folder, "--variants",
                       f"{folder}/variants.txt", "--out", f"{folder}/out"]
            done = subprocess.run(command, capture_output=True, text=True)
            self.assertEqual((done.returncode, done.stderr), (1, "a.api:5: unknown clause cheks\n"))
            self.assertFalse(Path(folder, "out").exists())

    def test_every_kernel_file_has_exports_or_is_internal(self):
        api = Parser(ROOT / "api", ROOT / "src/variants.txt").read()
        there = {str(p.relative_to(ROOT / "src")) for p in (ROOT / "src").rglob("*.kernels.cpp")}
        internal = {file for files in api.variants.internal.values() for file in files}
        self.assertEqual(set(api.variants.bodies), there)
        self.assertEqual({s for s in api.sources if s.endswith(".kernels.cpp")}, there - internal)


if __name__ == "__main__":
    unittest.main()
