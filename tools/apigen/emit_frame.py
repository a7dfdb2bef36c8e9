"""Writes the small tables of the frame: statuses and their texts, variants, opaque records; and the build's sources."""
from variants import KERNELS


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
    sources = ["# Generated from api/*.api and src/variants.txt: source files and what each is compiled for.\n"]
    sources += [f'list(APPEND SIG5D_PLAIN_SOURCES "{path}")\n' for path in api.sources if not path.endswith(KERNELS)]
    sources.append(f'set(SIG5D_VARIANTS {" ".join(api.variants.names())})\n')
    sources += [f'set(SIG5D_FLAGS_{v.name} {v.flags})\n' for v in api.variants.all]
    for path, bodies in api.variants.bodies.items():
        sources.append(f'list(APPEND SIG5D_KERNEL_SOURCES "{path}")\n')
        sources.append(f'set(SIG5D_BODIES_{path.replace("/", "_")} {" ".join(bodies)})\n')
    for folder, paths in api.variants.internal.items():
        sources.append(f'set(SIG5D_BODIES_{folder.replace("/", "_")} {" ".join(api.variants.bodies[paths[0]])})\n')
    return {
        "statuses.inc": codes,
        "status_table.inc": "".join(rows),
        "variant_table.inc": "".join(f'{{"{v.answers}", {v.features}, "{v.title}"}},\n' for v in api.variants.all),
        "opaque_types.inc": "".join(f"struct {name};\n" for name in api.opaque),
        "sources.cmake": "".join(sources),
    }
