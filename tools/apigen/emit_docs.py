"""Writes docs/reference: a page per topic, a section per family, in it a part for each group of members."""
from emit_header import prototype
from grouping import formulas, groups, short_names


def failures(checks):
    return "; ".join(f"{c.text()}: `ippSts{c.status}`" for c in checks) + "."


def checks_text(f):
    found = f.checks + f.fails
    if not f.failures():
        return "" if not f.args else "Nothing is checked." if f.half == "own" else "No argument is checked."
    late = "Checked when results may have been written already, in this order: " + failures(f.late) if f.late else ""
    return " ".join(t for t in ("Checked in this order: " + failures(found) if found else "", late) if t)


def arguments_text(f):
    rows = []
    for a in f.args:
        makers = [m for m in f.makers if m.argument == a.name]
        if a.kind in ("array", "work"):
            unit = "bytes" if a.kind == "work" or a.type.suffix == "1u" else "elements"
            role = "in" if a.const else "in and out" if a.inout else "scratch" if a.kind == "work" else "out"
            same = " or ".join(f"`{s}`" for d, s in f.in_place if d == a.name)
            null = ", may be null" if a.optional else ""
            rows.append(f"- `{a.name}`: {role}, {extent_text(a)} {unit}{null}" + (f"; may be {same}" if same else ""))
        elif makers:
            role = "released" if makers[0].released else "in" if a.const else "in and out"
            listed = [f"`{of_any_type(m.function, f)}`" + ("" if m.released else given(m)) for m in makers]
            rows.append(f"- `{a.name}`: {role}, made by {' or '.join(listed)}")
        elif a.kind == "opaque":
            rows.append(f"- `{a.name}`: out, `{a.extent}` bytes")
    return "\n".join(rows + names_text(f))


def extent_text(a):
    if a.rows:
        r = a.rows
        place = "" if (r.row, r.column) == ("0", "0") else f", the pointer at row `{r.row}` and column `{r.column}`"
        unit = f" bytes{place}, of" if r.in_bytes else ""
        return f"`{r.count}` rows of `{r.width}`, one every `{r.step}`{unit}"
    return f"`{a.extent}`" + (f", at most `{a.room}`," if a.room else "")


def names_text(f):
    """What extents name beside the arguments."""
    rows = []
    code = str(f.types[0].code) if f.types else ""
    for q in f.queries:
        listed = ", ".join("type" if a == code else a for a in q.args)
        rows.append(f"- sizes by `{of_any_type(q.function, f)}({listed})`")
    for n in f.named:
        if n.source == "computed":
            rows.append(f"- where `{n.name}` is `{n.text}`")
        if n.source == "chosen":
            rows.append(f"- where `{n.name}` is not passed; the caller knows it")
    for r in f.rules:
        if r.kind in RULES:
            rows.append(f"- where {RULES[r.kind].format(r.argument, *r.operands)}")
    return rows


# What callers must keep to, or what a name means; other rules only tell tests what is worth trying.
RULES = {
    "below": "`{0}` holds numbers below `{1}`",
    "apart": "`{0}` holds numbers below `{1}`",
    "selects": "`{1}` is the number of positive values in `{0}`",
}


def of_any_type(name, f):
    """Functions of other types take others of theirs: they are told of together."""
    return name.replace("_" + f.types[0].suffix, "") if f.types else name


def given(maker):
    return " with " + ", ".join(f"{n} {v}" for n, v in maker.fixed.items()) if maker.fixed else ""


def form_text(f):
    """What differs between the forms of a group, beside the formula."""
    return "\n\n".join(t for t in (arguments_text(f), checks_text(f)) if t)


def part(group):
    """What holds for the whole group comes first, then what only some of its functions have, under their names."""
    f = group.functions[0]
    out = [formulas(group, "`{}`".format), f.doc] + f.notes
    if f.warnings:
        written = any(a.kind == "array" and not a.const for a in f.args)
        listed = ", ".join(f"`ippSts{w}`" for w in f.warnings)
        out.append(f"Warnings{', after the whole array is written' if written else ''}: {listed}.")
    texts = group.told_apart(form_text)
    for text, whose in texts:
        if len(texts) > 1:
            out.append(f"**{short_names([g.shown_name() for g in whose], group.family)}**")
        out.append(text)
    out.append("\n".join(["```c"] + [prototype(*e) for e in group.exports()] + ["```"]))
    return [text for text in out if text]


def section(family, parts):
    out = [f"## {family}"]
    for group in parts:
        if len(parts) > 1:
            out.append(f"### {group.names()}")
        out += part(group)
    return out


def pages(api):
    files = {}
    index = [
        "# Reference",
        "",
        "Generated from `api/*.api`. In the formulas of in-place forms the right side has the elements as they were",
        "before the call.",
        "",
    ]
    for topic, title in api.topics.items():
        mine = [f for f in api.functions if f.topic == topic]
        if not mine:
            continue
        out = [f"# {title}"]
        for family, parts in groups(mine).items():
            out += section(family, parts)
        files[f"docs/reference/{topic}.md"] = "\n\n".join(out) + "\n"
        index.append(f"- [{title}]({topic}.md): {sum(len(f.exports()) for f in mine)} exports")
    files["docs/reference/README.md"] = "\n".join(index) + "\n"
    return files
