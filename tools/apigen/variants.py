"""Reads src/variants.txt: the processor variants and the body beyond them, and which of these each kernel file is
compiled for."""
from dataclasses import dataclass
from pathlib import Path

from statements import Mistake, at, lines, match

KERNELS = ".kernels.cpp"


@dataclass(frozen=True)
class Variant:
    name: str
    features: str  # the feature word that selects it
    answers: str  # the code that the library answers with: the name, or that of the variant that a body beyond serves
    title: str  # what the library calls itself
    flags: str  # of the compiler


@dataclass
class Variants:
    all: list  # lowest first, the body beyond them last
    bodies: dict  # kernel file -> names of the variants that it is compiled for
    internal: dict  # folder with kernels that no export has -> their files

    def names(self):
        return [v.name for v in self.all]


def add_name(found, variant):
    if variant.name in found.names():
        raise Mistake(f"{variant.name} a second time")
    if found.all and found.all[-1].answers != found.all[-1].name:
        raise Mistake(f"{variant.name} stands behind the body beyond the variants")
    found.all.append(variant)


def add_variant(found, rest):
    m = match(r'(\w+) +(0x[0-9A-F]+) +"([^"]+)" *(.*)', rest, 'no variant NAME FEATURES "TITLE" FLAG ...')
    add_name(found, Variant(m[1], m[2], m[1], m[3], m[4]))


def add_beyond(found, rest):
    m = match(r"(\w+) +(\w+) +(0x[0-9A-F]+) +(.+)", rest, "no beyond NAME VARIANT FEATURES FLAG ...")
    if not found.all or m[2] != found.all[-1].name:
        raise Mistake(f"{m[2]} is not the highest variant")
    add_name(found, Variant(m[1], m[3], m[2], found.all[-1].title, m[4]))


def add_file(found, path, given):
    names = found.names()
    if path in found.bodies:
        raise Mistake(f"{path} a second time")
    if given != [n for n in names if n in given]:
        raise Mistake(f"no variants in increasing order: {' '.join(given)}")
    if given[0] != names[0]:
        raise Mistake(f"without {names[0]} no body serves the lowest variant: {' '.join(given)}")
    found.bodies[path] = given


def add_bodies(found, rest):
    path, given = match(r"(\S+)((?: +\w+)+)", rest, "no bodies FILE NAME ...").groups()
    if not path.endswith(KERNELS):
        raise Mistake(f"{path} is no {KERNELS} file: only these are compiled for variants")
    add_file(found, path, given.split())


def add_internal(found, rest):
    m = match(r"([\w/]+)((?: +\w+)+) *:((?: +\w+)+)", rest, "no internal FOLDER NAME ... : FILE ...")
    folder, files = m[1], [f"{m[1]}/{file}{KERNELS}" for file in m[3].split()]
    for other in found.internal:
        if Path(other).name == Path(folder).name:
            raise Mistake(f"{folder}: {other} has the same name")
    for path in files:
        add_file(found, path, m[2].split())
    found.internal[folder] = files


def read(path):
    found = Variants([], {}, {})
    add = {"variant": add_variant, "beyond": add_beyond, "bodies": add_bodies, "internal": add_internal}
    for place, line in lines(Path(path)):
        with at(place):
            word, _, rest = line.partition(" ")
            if word not in add:
                raise Mistake(f"none of {', '.join(add)}: {word}")
            add[word](found, rest.strip())
    return found
