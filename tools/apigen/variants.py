"""Reads src/variants.txt: the processor variants, and which of them each kernel file is compiled for."""
from dataclasses import dataclass
from pathlib import Path

from statements import Mistake, at, lines, match

KERNELS = ".kernels.cpp"


@dataclass(frozen=True)
class Variant:
    name: str
    features: str  # the feature word that selects it
    title: str  # what the library calls itself
    flags: str  # of the compiler


@dataclass
class Variants:
    all: list  # lowest first
    bodies: dict  # kernel file -> names of the variants that it is compiled for
    internal: dict  # folder with kernels that no export has -> their files

    def names(self):
        return [v.name for v in self.all]


def add_variant(found, rest):
    m = match(r'(\w+) +(0x[0-9A-F]+) +"([^"]+)" *(.*)', rest, 'no variant NAME FEATURES "TITLE" FLAG ...')
    if m[1] in found.names():
        raise Mistake(f"variant {m[1]} a second time")
    found.all.append(Variant(*m.groups()))


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
    add = {"variant": add_variant, "bodies": add_bodies, "internal": add_internal}
    for place, line in lines(Path(path)):
        with at(place):
            word, _, rest = line.partition(" ")
            if word not in add:
                raise Mistake(f"none of {', '.join(add)}: {word}")
            add[word](found, rest.strip())
    return found
