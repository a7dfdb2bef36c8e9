"""Writes the public C header."""
import textwrap

from model import index_args


def comment(text):
    body = textwrap.wrap(text, 112)
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
    listed = ", ".join(a.c_type() + " " + a.name for a in args) or "void"
    line = f"{result} {convention} {name}({listed});"
    return "\n".join(textwrap.wrap(line, 118, subsequent_indent="        ", break_long_words=False))


def describe(family):
    f = family[0][1]
    parts = [f"{f.formula}." if f.formula else "", f.doc]
    return comment(" ".join(p for p in parts if p))


def header(api):
    out = [
        "/* Numlab.Sig5d: double-precision signal processing and vector/matrix functions, C interface.",
        "   Generated from the description in api/; docs/reference tells shapes, checks, statuses and special values. */",
        "#ifndef SIG5D_H\n#define SIG5D_H\n",
        '#include "sig5d_types.h"\n',
        "#ifdef __cplusplus\nextern \"C\" {\n#endif\n",
        statuses(api) + "\n",
    ]
    out += [f"typedef struct {name} {name};" for name in api.opaque]
    exports = api.exports()
    for topic, title in api.topics.items():
        mine = [e for e in exports if e[1].topic == topic]
        if not mine:
            continue
        out.append(f"\n/* ---- {title} ---- */")
        for family in dict.fromkeys(e[1].family for e in sorted(mine, key=lambda e: api.functions.index(e[1]))):
            members = [e for e in mine if e[1].family == family]
            out.append("\n" + describe(members))
            out += [prototype(*e) for e in members]
    out.append("\n#ifdef __cplusplus\n}\n#endif\n\n#endif")
    return "\n".join(out) + "\n"
