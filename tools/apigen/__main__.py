"""Writes the library's boundary from its interface description.

    python3 tools/apigen --api api --variants src/variants.txt --out build/gen      the build tree's files
    python3 tools/apigen --api api --variants src/variants.txt --committed .        include/sig5d.h and docs/reference

A mistake in the description is told with file and line, and nothing is written.
"""
import argparse
from pathlib import Path

import emit_bodies
import emit_cpp
import emit_docs
import emit_frame
import emit_header
import emit_link
import emit_registry
from parse import Parser
from statements import Mistake


def write(folder, files):
    """Writes what changed only, so that an unchanged file triggers no rebuild."""
    for name, text in files.items():
        path = Path(folder) / name
        path.parent.mkdir(parents=True, exist_ok=True)
        if not path.exists() or path.read_text() != text:
            path.write_text(text, newline="\n")


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--api", required=True)
    options.add_argument("--variants", required=True)
    options.add_argument("--out")
    options.add_argument("--committed")
    given = options.parse_args()
    try:
        api = Parser(given.api, given.variants).read()
    except Mistake as mistake:
        raise SystemExit(str(mistake))
    if given.out:
        files = emit_frame.frame_files(api)
        files |= emit_bodies.files(api)
        files |= emit_cpp.entries(api)
        files |= {"dispatch.S": emit_cpp.dispatch(api), "adapters.cpp": emit_cpp.adapters(api)}
        files |= emit_link.definition_files(api)
        files |= emit_registry.files(api)
        write(given.out, files)
    if given.committed:
        write(given.committed, {"include/sig5d.h": emit_header.header(api)} | emit_docs.pages(api))


main()
