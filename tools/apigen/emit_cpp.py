"""Writes the boundary: entry shells, variant tables and stubs, _Idx adapters."""
from model import c_arguments, index_args

BANNER = "// Generated from api/*.api; not edited.\n"


def result_type(function):
    return {"status": "Status"}.get(function.returns, function.returns)


def convention(function):
    return "SIG5D_STDCALL" if function.convention == "stdcall" else "SIG5D_CDECL"


def parameters(args):
    return ", ".join(f"{kind} {name}" for kind, name in c_arguments(args))


def kernel_argument(expression, function):
    """Element types that share a C type (three bytes, half floats) get their own type for the kernel's overloads."""
    for a in function.args:
        if a.name == expression and a.pointer and a.type and a.kind == "array":
            if a.type.kernel in ("u24", "i24", "f16"):
                return f"reinterpret_cast<{'const ' if a.const else ''}{a.type.kernel}*>({a.name})"
    return expression


def shell(f):
    """Checks in contract order, then one call."""
    name = f.name + "_Idx" if f.index == "written" else f.name
    written = f"SIG5D_ENTRY({name})" if f.bodies else (f"sig5d_one_{name}" if f.dispatched else name)
    exported = "" if f.dispatched else "SIG5D_EXPORT "
    lines = [f'extern "C" {exported}{result_type(f)} {convention(f)} {written}({parameters(f.args)})', "{"]
    lines += [f"    if ({c.cpp()}) return Sts{c.status};" for c in f.checks]
    call = f"{f.kernel}({', '.join(kernel_argument(e, f) for e in f.call)})"
    returns_value = f.returns != "void" and (f.returns != "status" or f.warnings or f.fails or f.late)
    if returns_value:
        lines.append(f"    return {call};")
    else:
        lines.append(f"    {call};")
        if f.returns == "status":
            lines.append("    return StsNoErr;")
    return "\n".join(lines + ["}", ""])


def entries(api):
    """One include file per source file: what its last line includes."""
    files = {}
    for source in api.sources:
        mine = [f for f in api.functions if f.source == source]
        stem = source.rsplit("/", 1)[1].replace(".kernels.cpp", "").replace(".cpp", "")
        path = f"entries/{source.rsplit('/', 1)[0]}/{stem}.inc"
        files[path] = BANNER + "\n".join(shell(f) for f in mine)
    return files


def nearest_bodies(bodies, variants):
    """The body of each slot: its own, or the nearest lower one."""
    slots, last = [], bodies[0]
    for v in variants:
        last = v if v in bodies else last
        slots.append(last)
    return slots


def dispatch(api):
    """Tables and stubs, through the macros of src/frame/stub.inc."""
    lines = ["/* Generated from the description in api/; not edited. */", '#include "frame/stub.inc"', ""]
    variants = api.variants.names()
    for f in api.functions:
        if not f.dispatched:
            continue
        name = f.name + "_Idx" if f.index == "written" else f.name
        stdcall = str(f.bytes32()) if f.convention == "stdcall" else "-1"
        bodies = nearest_bodies(f.bodies, variants) if f.bodies else ["one"] * len(variants)
        hidden = "HIDDEN" if f.index == "only" else "EXPORT"
        lines.append(f"DISPATCH {name}, {stdcall}, {hidden}, {', '.join(bodies)}")
        if f.index == "same":
            lines.append(f"ALIAS {f.name}_Idx, {name}, {stdcall}")
    return "\n".join(lines) + "\n"


def adapter(f):
    args = index_args(f)
    moved = {a.applies_to: a.name for a in args if a.kind == "index"}
    pointers = {a.name: a for a in f.args if a.name in moved}
    call = []
    for _, name in c_arguments(f.args):
        if name in moved:
            a = pointers[name]
            helper = "element_or_null" if a.kind == "work" else "element"
            unit = f"<{a.type.unit}>"
            call.append(f"{helper}{unit}({name}, {moved[name]})")
        else:
            call.append(name)
    head = f'extern "C" SIG5D_EXPORT {result_type(f)} SIG5D_CDECL {f.name}_Idx({parameters(args)})'
    run = f"{f.name}({', '.join(call)});"
    return f"{head}\n{{\n    {'' if f.returns == 'void' else 'return '}{run}\n}}\n"


def adapters(api):
    lines = [BANNER + '#include "frame/index.h"\n#include "frame/types.h"\n#include "sig5d.h"\n\nnamespace sig5d {\n']
    for f in api.functions:
        if f.index == "only":
            lines.append(f'extern "C" {result_type(f)} {convention(f)} {f.name}({parameters(f.args)});')
        if f.index in ("auto", "only"):
            lines.append(adapter(f))
    return "\n".join(lines) + "} // namespace sig5d\n"
