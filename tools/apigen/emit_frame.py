"""Writes the small tables of the frame: status codes and messages, opaque records, the list of sources for the build."""


def short(name):
    return name[len("ipp"):]


def frame_files(api):
    named = [s for s in api.statuses if s[1]]
    codes = "".join(f"{short(name)} = {code},\n" for code, name, _ in named)
    rows = []
    for code, name, text in api.statuses:
        message = f"{name}: {text}" if name else text
        escaped = message.replace("\\", "\\\\").replace('"', '\\"')
        rows.append(f'{{{code}, "{escaped}"}},\n')
    sources = ["# Generated from api/*.api: source files and the variant bodies that each is compiled for.\n"]
    for path, (bodies, _) in api.sources.items():
        kind = "SIG5D_KERNEL_SOURCES" if bodies else "SIG5D_PLAIN_SOURCES"
        sources.append(f'list(APPEND {kind} "{path}")\n')
        if bodies:
            sources.append(f'set(SIG5D_BODIES_{path.replace("/", "_")} {" ".join(bodies)})\n')
    return {
        "statuses.inc": codes,
        "status_table.inc": "".join(rows),
        "opaque_types.inc": "".join(f"struct {name};\n" for name in api.opaque),
        "sources.cmake": "".join(sources),
    }
