"""Reads src/variants.txt: the processor variants, and which of them each kernel file is compiled for."""
from dataclasses import dataclass
from pathlib import Path

from statements import Mistake, at, lines

KERNELS = ".kernels.cpp"


@dataclass(frozen=True)
class Variant:
    name: str
    features: str  # the feature word that selects it
    flags: str  # of the compiler


@dataclass
class Variants:
    all: list  # lowest first
    bodies: dict  # kernel file -> names of the variants that it is compiled for

    def names(self):
        return [v.name for v in self.all]


def read_line(found, line):
    word, *rest = line.split()
    names = found.names()
    if word == "variant" and len(rest) >= 2:
        if rest[0] in names:
            raise Mistake(f"variant {rest[0]} a second time")
        found.all.append(Variant(rest[0], rest[1], " ".join(rest[2:])))
    elif word == "bodies" and len(rest) >= 2:
        path, *given = rest
        if not path.endswith(KERNELS):
            raise Mistake(f"{path} is no {KERNELS} file: only these are compiled for variants")
        if path in found.bodies:
            raise Mistake(f"{path} a second time")
        if given != [n for n in names if n in given]:
            raise Mistake(f"no variants in increasing order: {' '.join(given)}")
        if given[0] != names[0]:
            raise Mistake(f"without {names[0]} no body serves the lowest variant: {' '.join(given)}")
        found.bodies[path] = given
    else:
        raise Mistake(f"neither 'variant NAME FEATURES FLAG ...' nor 'bodies FILE NAME ...': {line}")


def read(path):
    found = Variants([], {})
    for place, line in lines(Path(path)):
        with at(place):
            read_line(found, line)
    return found
