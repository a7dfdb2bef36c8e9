"""Looks into built objects: what a compiler or linker could get wrong without any test of results noticing.

    python3 tools/objcheck.py --build build/win32 --objdump i686-w64-mingw32-objdump --nm i686-w64-mingw32-nm

- No instruction above its variant's level, no fused multiply-add, nothing that a processor of the level lacks.
- No symbol of a variant's objects that the linker could merge with another variant's; no call of anything but kernels
  and the library's shared functions; no state but what is listed.
- On 32-bit x86: no aligned vector access to the stack in a function that does not align its frame, because hosts keep
  the stack aligned to 4 bytes only.
- Every dispatched entry is one load of the index and one indirect jump.
- No stores past the caches in a function without a store fence, and no return from one that uses longer vectors than 16
  bytes before it has left them, since code of 16 bytes would be slow after it.
"""
import argparse
import re
import subprocess
import sys
from pathlib import Path
from typing import NamedTuple

import objsymbols
from objsymbols import VARIANTS

SSE3 = "addsubp[ds] h(add|sub)p[ds] lddqu movddup movs[hl]dup"
SSSE3 = "pabs[bwd] palignr ph(add|sub)(w|d|sw) pmaddubsw pmulhrsw pshufb psign[bwd]"
SSE4 = (
    "blendv?p[ds] dpp[ds] extractps insertps movntdqa mpsadbw packusdw pblendvb pblendw pcmpeqq pextr[bdq] phminposuw "
    "pinsr[bdq] pmax(sb|sd|ud|uw) pmin(sb|sd|ud|uw) pmov[sz]x\\w+ pmuldq pmulld ptest rounds?[psd]+ crc32\\w? "
    "pcmp[ei]str[im] pcmpgtq popcnt\\w?"
)
# With the half-precision conversions, a feature of its own that every processor with AVX2 has.
AVX2_ONLY = (
    "vbroadcasti128 vextracti128 vinserti128 vpblendd vpbroadcast[bwdq] vperm(2i128|d|ps|q|pd) vp?gather\\w+ "
    "vps[rl]l?[al]?v[dq] vpmaskmov[dq] vcvtph2ps vcvtps2ph"
)
# Of the body beyond the variants, for registers that others have as well; what else is its own tell the operands.
AVX512_ONLY = (
    r"k(add|andn?|mov|not|or|ortest|shift[lr]|test|unpck|xn?or)[bwdq]+ \{evex\} valign[dq] vblendmp[ds] "
    r"vbroadcast[fi](32|64)x\d v(compress|expand)p[ds] vcvtt?[ps][sd]2(u?qq|udq|usi[lq]?) vcvtu?qq2p[sd]\w? "
    r"vcvtu(dq2p|si2s)[sd]\w? vdbpsadbw v(extract|insert|shuf)[fi](32|64)x\d vfixupimm[ps][ds] vfpclass[ps][ds]\w? "
    r"vget(exp|mant)[ps][ds] vmovdq[au](8|16|32|64) vp(andn?|or|xor)[dq] vpabsq vpblendm[bwdq] vpbroadcastm\w+ "
    r"vpcmpu?[bwdq]? vpcmp(equ|(neq|n?l[te])u?)[bwdq] vpconflict[dq] vp(compress|expand)[dq] vperm[it]2\w+ vpermw "
    r"vplzcnt[dq] vp(max|min)[su]q vpmovu?s?(q[bwd]|d[bw]|wb) vpmov(m2[bwdq]|[bwdq]2m) vpmullq vpro[lr]v?[dq] "
    r"vp?scatter\w+ vpsrav?q vps[lr][la]vw vpternlog[dq] vptestn?m[bwdq] v(range|reduce|rndscale|scalef)[ps][ds]"
)
# Longer or further registers, masks, an element of memory in every lane, a rounding mode of the instruction's own.
AVX512_OPERANDS = re.compile(r"%zmm|%[xy]mm(1[6-9]|2\d|3[01])\b|%k[0-7]|\{1to\d+\}|\{(r[nduz]-)?sae\}")
# New approximations, which nothing has been proved of. What only some processors with AVX-512 have is in no body.
NEVER = (
    r"vr(cp|sqrt)(14|28)[ps][sd] vexp2p[sd] vpmadd52\w+ vpdp\w+ vpopcnt[bwdq] vpshufbitqmb vpsh[lr]dv?[wdq] vpermb "
    r"vp(compress|expand)[bw] vperm[it]2b vpmultishiftqb vcvtne\w+ vdpbf16ps v?gf2p8\w+ vp2intersect[dq] v4f\w+ "
    r"v\w+[ps]h "
    "vfn?m(add|sub|addsub|subadd)\\w+ andn bextr bls(i|r|msk) [lt]zcnt\\w? (sar|shl|shr)x mulx pdep pext rorx bzhi "
    "movbe\\w? adcx adox v?aes\\w+ v?pclmul\\w+ sha\\w+msg\\w sha\\w+rnds\\w"
)
X87 = "f(add|sub|mul|div|ild|istp|sqrt|sin|cos|ptan|patan|yl2x|2xm1|prem|rndint|com|ucom|chs|abs|xch)\\w*"


def pattern(words):
    return re.compile(r"^(?:" + "|".join(words.split()) + r")$")


LEGACY = [(2, pattern(SSE3)), (2, pattern(SSSE3)), (3, pattern(SSE4))]
IS_AVX2, IS_AVX512, IS_NEVER, IS_X87 = map(pattern, (AVX2_ONLY, AVX512_ONLY, NEVER, X87))


def level_needed(mnemonic, operands):
    """The lowest variant level that has this instruction; 9: none."""
    if IS_NEVER.match(mnemonic) and not IS_AVX2.match(mnemonic):
        return 9
    if IS_AVX512.match(mnemonic) or AVX512_OPERANDS.search(operands):
        return 6
    if mnemonic.startswith("v") and mnemonic not in ("verr", "verw"):
        integer_ymm = "%ymm" in operands and mnemonic.startswith(("vp", "vmpsadbw", "vmovntdqa")) and not re.match(
            r"vpermil|vptest|vperm2f128", mnemonic
        )
        register_broadcast = re.match(r"vbroadcasts[sd]", mnemonic) and operands.startswith("%")
        return 5 if IS_AVX2.match(mnemonic) or integer_ymm or register_broadcast else 4
    for level, words in LEGACY:
        if words.match(mnemonic):
            return level
    return 0


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Instruction(NamedTuple):
    place: int
    mnemonic: str
    operands: str
    elsewhere: str = ""  # what the linker puts in: where a jump or call out of the section leads, for instance


def functions(disassembly):
    """(name, instructions) of every function."""
    name, body = None, []
    for line in disassembly.splitlines():
        head = re.match(r"[0-9a-f]+ <(?!\.L)(.+)>:$", line)  # a local label is a place within a function
        if head:
            if name:
                yield name, body
            name, body = head[1], []
            continue
        code = re.match(r"\s+([0-9a-f]+):\t(\S+)\s*(.*)$", line)
        if body and (relocation := re.match(r"\t\t\t[0-9a-f]+: \S+\t(\S+)", line)):
            body[-1] = body[-1]._replace(elsewhere=relocation[1])
        elif code and name:
            mnemonic, operands = code[2], code[3]
            while mnemonic in ("rep", "repz", "repnz", "lock", "notrack", "bnd", "data16", "cs", "ds", "{vex}"):
                mnemonic, _, operands = operands.partition(" ")
            body.append(Instruction(int(code[1], 16), mnemonic, operands))
    if name:
        yield name, body


def aligned_stack_access(body):
    return any(
        re.match(r"v?mov(ap[sd]|dqa(32|64)?)$", i.mnemonic) and re.search(r"\(%e[sb]p", i.operands) for i in body
    ) and not any(i.mnemonic.startswith("and") and re.match(r"\$0xffffff[0-9a-f]0,%esp", i.operands) for i in body)


STREAMS, FENCE = re.compile(r"v?movnt(dq|p[sd]|i)\w?$"), re.compile(r"[sm]fence$")
WIDE, LEAVES_WIDE = re.compile(r"v\w+[sd]2\w*y |.*%[yz]mm(\d|1[0-5])\b"), re.compile(r"vzero(upper|all)$")


def returns_wide(name, body):
    """Whether some way through the function leaves vectors of more than 16 bytes in use. Ways through tables of jumps begin anew."""
    places = {i.place: k for k, i in enumerate(body)}
    seen, ways = {}, [(0, False)]
    while True:
        while ways:
            k, wide = ways.pop()
            while k < len(body) and seen.get(k) not in (True, wide):
                seen[k] = wide
                i = body[k]
                wide = not LEAVES_WIDE.match(i.mnemonic) and (wide or bool(WIDE.match(f"{i.mnemonic} {i.operands}")))
                inside = None if i.elsewhere else re.match(r"([0-9a-f]+) <", i.operands)
                target = places.get(int(inside[1], 16)) if inside else None
                ends = i.mnemonic.startswith("ret")
                calls = i.mnemonic == "jmp" and i.elsewhere and not i.operands.startswith("*")
                cold = name.endswith(".cold") or re.search(r"\.cold|\.text\.unlikely", i.elsewhere)
                if wide and (ends or (calls and not cold)):
                    return True
                if i.mnemonic.startswith("j") and target is not None:
                    ways.append((target, wide))
                if ends or i.mnemonic == "jmp":
                    break
                k += 1
        rest = next((k for k in range(len(body)) if k not in seen), None)
        if rest is None:
            return False
        ways.append((rest, False))


class Report:
    def __init__(self):
        self.faults = []

    def add(self, path, text):
        self.faults.append(f"{path.parent.name}/{path.name}: {text}")


def with_cold_parts(bodies):
    """The compiler moves rare branches out of line; they run in the frame of the function that jumps there."""
    whole = {}
    for name, body in bodies:
        whole.setdefault(name.removesuffix(".cold"), []).extend(body)
    return whole.items()


def check_object(path, level, objdump, bits32, report):
    bodies = list(functions(run(objdump, "-dr", "--no-show-raw-insn", str(path))))
    for name, body in bodies:
        if returns_wide(name, body):
            report.add(path, f"{name}: returns with vectors of more than 16 bytes in use")
        mnemonics = {i.mnemonic for i in body}
        if any(map(STREAMS.match, mnemonics)) and not any(map(FENCE.match, mnemonics)):
            report.add(path, f"{name}: stores past the caches without a fence")
    for name, body in with_cold_parts(bodies):
        for _, mnemonic, operands, _ in body:
            if level_needed(mnemonic, operands) > level:
                report.add(path, f"{name}: {mnemonic} {operands} is above {VARIANTS[level]}")
            if IS_X87.match(mnemonic):
                report.add(path, f"{name}: x87 instruction {mnemonic}")
        if bits32 and aligned_stack_access(body):
            report.add(path, f"{name}: aligned access to a stack that is not aligned")


def check_symbols(path, variant, nm, underscore, report):
    symbols = list(objsymbols.parse(run(nm, "-f", "sysv", str(path)), underscore))
    for fault in objsymbols.state(symbols):
        report.add(path, fault)
    if variant in VARIANTS:
        for fault in objsymbols.foreign(symbols, variant):
            report.add(path, fault)


def check_stubs(path, objdump, bits32, report):
    shape = ["mov", "jmp"] if bits32 else ["movslq", "lea", "jmp"]
    count = 0
    for name, body in functions(run(objdump, "-d", "--no-show-raw-insn", str(path))):
        if "initialise_keeping" in name:
            continue
        found = [i.mnemonic for i in body[: len(shape)]]
        if found != shape or not body[len(shape) - 1].operands.startswith("*"):
            report.add(path, f"{name} is no stub: {found}")
        count += 1
    if count == 0:
        report.add(path, "no stubs found")
    return count


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--build", required=True, type=Path)
    options.add_argument("--objdump", default="objdump")
    options.add_argument("--nm", default="nm")
    given = options.parse_args()
    folder = given.build / "CMakeFiles"
    objects = sorted(p for p in folder.glob("sig5d*.dir/**/*") if p.suffix in (".o", ".obj"))
    head = run(given.objdump, "-f", str(objects[0]))
    underscore = "pe-i386" in head
    bits32 = "elf32" in head or underscore
    report, checked, stubs = Report(), 0, 0
    for path in objects:
        target = path.relative_to(folder).parts[0]
        if path.name.startswith("dispatch.S"):
            stubs = check_stubs(path, given.objdump, bits32, report)
            continue
        if target == "sig5d_registry.dir" or "version.rc" in path.name:
            continue
        variant = target[len("sig5d_") : -len(".dir")]
        level = VARIANTS.index(variant) if variant in VARIANTS else 0
        check_object(path, level, given.objdump, bits32, report)
        check_symbols(path, variant, given.nm, underscore, report)
        checked += 1
    print(f"{checked} objects, {stubs} stubs, {len(report.faults)} faults")
    for fault in report.faults[:50]:
        print(fault)
    sys.exit(bool(report.faults) or not checked or not stubs)


if __name__ == "__main__":
    main()
