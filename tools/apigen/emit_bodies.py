"""Writes bodies/FOLDER.h for each folder of internal kernels: which of their bodies a variant's other kernels call."""
from pathlib import Path


def header(folder, bodies, variants):
    macro = f"SIG5D_{Path(folder).name.upper()}_BODY"
    lines = [
        "// Generated from src/variants.txt; not edited.",
        f"// {macro}: the variant whose body of the kernels in {folder} serves the one that is compiled.",
        "#pragma once",
        "#ifndef SIG5D_LEVEL",
        '#error "for files that are compiled for a variant"',
    ]
    for body in reversed(bodies):
        lines += [f"#elif SIG5D_LEVEL >= {variants.index(body)}", f"#define {macro} {body}"]
    lines += [
        "#endif",
        "",
        "namespace sig5d {",
        f"namespace {macro} {{}}",
        f"namespace SIG5D_VARIANT {{ using namespace {macro}; }}",
        "} // namespace sig5d",
    ]
    return "\n".join(lines) + "\n"


def files(api):
    variants = api.variants
    return {
        f"bodies/{folder}.h": header(folder, variants.bodies[paths[0]], variants.names())
        for folder, paths in variants.internal.items()
    }
