"""Reads what the image test asks about a 32-bit Windows DLL."""
import struct


class PeFile:
    def __init__(self, data):
        self.data = data
        header = self.u32(0x3C)
        assert data[header : header + 4] == b"PE\0\0"
        self.machine, count, self.timestamp = struct.unpack_from("<HHI", data, header + 4)
        optional_size = self.u16(header + 20)
        optional = header + 24
        assert self.u16(optional) == 0x10B  # PE32
        self.entry_point, self.image_base = self.u32(optional + 16), self.u32(optional + 28)
        self.checksum_offset = optional + 64
        self.dll_flags = self.u16(optional + 70)
        self.directories = [struct.unpack_from("<II", data, optional + 96 + 8 * i) for i in range(16)]
        self.sections = []  # name, rva, virtual size, offset, size in the file, flags
        for i in range(count):
            at = optional + optional_size + 40 * i
            size, rva, raw, offset = struct.unpack_from("<IIII", data, at + 8)
            self.sections.append((data[at : at + 8].rstrip(b"\0").decode(), rva, size, offset, raw, self.u32(at + 36)))

    def u16(self, at):
        return struct.unpack_from("<H", self.data, at)[0]

    def u32(self, at):
        return struct.unpack_from("<I", self.data, at)[0]

    def offset(self, rva):
        for _, start, size, offset, raw, _ in self.sections:
            if start <= rva < start + max(size, raw):
                return offset + rva - start
        raise ValueError(hex(rva))

    def text(self, rva):
        at = self.offset(rva)
        return self.data[at : self.data.index(b"\0", at)].decode()

    def imports(self):
        """{dll: [function]}"""
        found, at = {}, self.offset(self.directories[1][0])
        while self.u32(at + 12):
            names, thunk = [], self.offset(self.u32(at))
            while self.u32(thunk):
                value = self.u32(thunk)
                names.append("#%d" % (value & 0xFFFF) if value >> 31 else self.text(value + 2))
                thunk += 4
            found[self.text(self.u32(at + 12)).lower()] = names
            at += 20
        return found

    def exports(self):
        """The table's own name and {name: (ordinal, rva)}."""
        at = self.offset(self.directories[0][0])
        base, _, count = struct.unpack_from("<III", self.data, at + 16)
        functions, names, ordinals = (self.offset(r) for r in struct.unpack_from("<III", self.data, at + 28))
        found = {}
        for i in range(count):
            slot = self.u16(ordinals + 2 * i)
            found[self.text(self.u32(names + 4 * i))] = (base + slot, self.u32(functions + 4 * slot))
        return self.text(self.u32(at + 12)), found

    def relocated(self):
        """Every absolute address in the image."""
        start, size = self.directories[5]
        at, found = self.offset(start), []
        end = at + size
        while at < end:
            page, length = struct.unpack_from("<II", self.data, at)
            for i in range(8, length, 2):
                entry = self.u16(at + i)
                if entry >> 12 == 3:
                    found.append(self.u32(self.offset(page + (entry & 0xFFF))))
            at += length
        return found

    def version_resource(self):
        """The fixed part of the version record as 13 words, and its strings."""
        root = self.offset(self.directories[2][0])
        at = root
        for wanted in (16, None, None):  # the type (a version), the name, the language
            named, numbered = struct.unpack_from("<HH", self.data, at + 12)
            for i in range(named + numbered):
                identity, where = struct.unpack_from("<II", self.data, at + 16 + 8 * i)
                if wanted is None or identity == wanted:
                    at = root + (where & 0x7FFFFFFF)
                    break
            else:
                raise ValueError("no version resource")
        rva, size = struct.unpack_from("<II", self.data, at)
        record = self.data[self.offset(rva) : self.offset(rva) + size]
        fixed = struct.unpack_from("<13I", record, record.index(struct.pack("<I", 0xFEEF04BD)))
        return fixed, record.decode("utf-16-le", "replace")
