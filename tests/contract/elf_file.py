"""Reads what the image test asks about a 64-bit ELF library."""
import struct


class ElfFile:
    def __init__(self, data):
        self.data = data
        assert data[:6] == b"\x7fELF\x02\x01"
        headers, size, count = struct.unpack_from("<Q14xHH", data, 32)[0], *struct.unpack_from("<HH", data, 54)
        # (type, flags, offset, address, size in the file, size in memory)
        self.segments = []
        for i in range(count):
            kind, flags, offset, address, _, raw, memory = struct.unpack_from("<IIQQQQQ", data, headers + size * i)
            self.segments.append((kind, flags, offset, address, raw, memory))
        self.dynamic = []  # (tag, value)
        _, _, offset, _, raw, _ = next(s for s in self.segments if s[0] == 2)
        for at in range(offset, offset + raw, 16):
            tag, value = struct.unpack_from("<qQ", data, at)
            if tag == 0:
                break
            self.dynamic.append((tag, value))

    def values(self, tag):
        return [v for t, v in self.dynamic if t == tag]

    def offset(self, address):
        for kind, _, offset, start, raw, _ in self.segments:
            if kind == 1 and start <= address < start + raw:
                return offset + address - start
        raise ValueError(hex(address))

    def text(self, index):
        at = self.offset(self.values(5)[0]) + index
        return self.data[at : self.data.index(b"\0", at)].decode()

    def needed(self):
        return [self.text(v) for v in self.values(1)]

    def symbols(self):
        """Dynamic symbols: ({defined name: type}, [undefined name])."""
        at, end = self.offset(self.values(6)[0]), self.offset(self.values(5)[0])  # the names follow the symbols
        defined, undefined = {}, []
        for entry in range(at + 24, end, 24):
            name, info, _, section = struct.unpack_from("<IBBH", self.data, entry)
            if section:
                defined[self.text(name)] = info & 15
            else:
                undefined.append(self.text(name))
        return defined, undefined
