"""Writes docs/reference: a page per topic, a section per family."""
from emit_header import prototype


def check_list(f):
    if not f.failures():
        return "Nothing is checked." if f.half == "own" else "No argument is checked."
    steps = [f"{c.text()}: `ippSts{c.status}`" for c in f.failures()]
    return "Checked in this order: " + "; ".join(steps) + "."


def shape_rows(f):
    rows = []
    for a in f.args:
        if a.kind in ("array", "work"):
            unit = "bytes" if a.kind == "work" or a.type.suffix == "1u" else "elements"
            role = "in" if a.const else "in and out" if a.inout else "scratch" if a.kind == "work" else "out"
            null = ", may be null" if a.optional else ""
            rows.append(f"- `{a.name}`: {role}, `{a.extent}` {unit}{null}")
    return rows


def section(family, members):
    f = members[0][1]
    said = [g for _, g, _ in members]  # types that were described apart are told of together
    out = [f"## {family}", ""]
    for formula in dict.fromkeys(g.formula for g in said if g.formula):
        out += [f"`{formula}`", ""]
    for doc in dict.fromkeys(g.doc for g in said if g.doc):
        out += [doc, ""]
    seen = []
    for _, g, form in members:
        if form == "plain" and shape_rows(g) and shape_rows(g) not in seen:
            seen.append(shape_rows(g))
    for rows in seen:
        out += rows + [""]
    orders = list(dict.fromkeys(check_list(g) for _, g, form in members if form == "plain"))
    out += [o + "\n" for o in orders]
    if f.in_place:
        pairs = ", ".join(f"`{d}` may be `{s}`" for d, s in f.in_place)
        out += [f"In place: {pairs}.", ""]
    if f.warnings:
        out += ["Warnings, after the whole array is written: " + ", ".join(f"`ippSts{w}`" for w in f.warnings) + ".", ""]
    out += [n + "\n" for n in dict.fromkeys(n for g in said for n in g.notes)]
    out += ["```c"] + [prototype(*m) for m in members] + ["```", ""]
    return out


def pages(api):
    files, exports = {}, api.exports()
    order = {f.name + f.index: i for i, f in enumerate(api.functions)}
    index = ["# Reference", "", "Generated from `api/*.api`.", ""]
    for topic, title in api.topics.items():
        mine = sorted((e for e in exports if e[1].topic == topic), key=lambda e: order[e[1].name + e[1].index])
        if not mine:
            continue
        out = [f"# {title}", ""]
        for family in dict.fromkeys(e[1].family for e in mine):
            out += section(family, [e for e in mine if e[1].family == family])
        files[f"docs/reference/{topic}.md"] = "\n".join(out).rstrip() + "\n"
        index.append(f"- [{title}]({topic}.md): {len(mine)} exports")
    files["docs/reference/README.md"] = "\n".join(index) + "\n"
    return files
