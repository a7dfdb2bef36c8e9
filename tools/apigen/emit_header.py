"""Writes the public C header."""
import textwrap

from grouping import formulas, groups
from model import c_arguments, index_args


def comment(text):
    body = textwrap.wrap(text, 112, break_on_hyphens=False)
    if len(body) == 1:
        return f"/* {body[0]} */"
    return "/* " + "\n   ".join(body) + " */"


def statuses(api):
    lines = ["enum {"]
    for code, name, text in sorted(api.statuses, key=lambda s: (s[0] > 0, abs(s[0]))):
        if name:
            lines.append(f"    {name} = {code}, /* {text} */")
    return "\n".join(lines + ["};"])


def prototype(name, f, form):
    convention = "SIG5D_STDCALL" if f.convention == "stdcall" and form != "index" else "SIG5D_CDECL"
    result = {"status": "IppStatus"}.get(f.returns, f.returns)
    args = index_args(f) if form == "index" else f.args
    listed = ", ".join(f"{kind} {name}" for kind, name in c_arguments(args)) or "void"
    line = f"{result} {convention} {name}({listed});"
    return "\n".join(textwrap.wrap(line, 118, subsequent_indent="        ", break_long_words=False))


def describe(group):
    doc = group.functions[0].doc
    return comment(". ".join(t for t in (formulas(group), doc) if t) + ("" if doc else "."))


def header(api):
    out = [
        "/* Numlab.Sig5d: double-precision signal processing and vector/matrix functions, C interface.",
        "   Generated from the description in api/; docs/reference tells shapes, checks, statuses and special values.",
        "   A comment is about the functions that follow it, up to the next one. */",
        "#ifndef SIG5D_H\n#define SIG5D_H\n",
        '#include "sig5d_types.h"\n',
        "#ifdef __cplusplus\nextern \"C\" {\n#endif\n",
        statuses(api) + "\n",
    ]
    out += [f"typedef struct {name} {name};" for name in api.opaque]
    for topic, title in api.topics.items():
        mine = [f for f in api.functions if f.topic == topic]
        if mine:
            out.append(f"\n/* ---- {title} ---- */")
        for parts in groups(mine).values():
            for group in parts:
                out.append("\n" + describe(group))
                out += [prototype(*e) for e in group.exports()]
    out.append("\n#ifdef __cplusplus\n}\n#endif\n\n#endif")
    return "\n".join(out) + "\n"
