"""Makes the import table and the resources of a DLL read-only, which the linker leaves writable: the system's loader
lifts the protection of the import table itself while it fills it in.

    python3 tools/seal_image.py library.dll
"""
import struct
import sys
from pathlib import Path

WRITABLE = 0x80000000


def checksum(image):
    """The sum that the header carries: 16-bit words with end-around carry, plus the length."""
    total = sum(struct.unpack(f"<{len(image) // 2}H", image[: len(image) & ~1])) + sum(image[len(image) & ~1 :])
    while total >> 16:
        total = (total & 0xFFFF) + (total >> 16)
    return total + len(image)


def seal(image):
    image = bytearray(image)
    header = struct.unpack_from("<I", image, 0x3C)[0]
    count, optional_size = struct.unpack_from("<H12xH", image, header + 6)
    for number in range(count):
        section = header + 24 + optional_size + 40 * number
        if bytes(image[section : section + 8]).rstrip(b"\0") in (b".idata", b".rsrc"):
            flags = struct.unpack_from("<I", image, section + 36)[0]
            struct.pack_into("<I", image, section + 36, flags & ~WRITABLE)
    struct.pack_into("<I", image, header + 88, 0)
    struct.pack_into("<I", image, header + 88, checksum(image))
    return bytes(image)


if __name__ == "__main__":
    path = Path(sys.argv[1])
    path.write_bytes(seal(path.read_bytes()))
