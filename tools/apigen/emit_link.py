"""Writes what linkers read: export definitions, import library definitions, the ELF version script."""


def export_lines(api):
    """(name, symbol of 32-bit Windows without the leading underscore, ordinal), in order of the name."""
    lines = []
    for name, f, form in api.exports():
        stdcall_bytes = f.bytes32() if f.convention == "stdcall" and form != "index" else None
        symbol = name if stdcall_bytes is None else f"{name}@{stdcall_bytes}"
        lines.append((name, symbol, api.ordinals[name]))
    return lines


def definition_files(api):
    exports = export_lines(api)
    head = 'LIBRARY "Numlab.Sig5d.dll"\nEXPORTS\n'
    published = "".join(f"    {name} @{ordinal}\n" for name, _, ordinal in exports)
    linking = "".join(f"    {name} = {symbol} @{ordinal}\n" for name, symbol, ordinal in exports)
    importing = "".join(f"    {symbol} @{ordinal}\n" for _, symbol, ordinal in exports)
    names = "".join(f"        {name};\n" for name, _, _ in exports)
    return {
        "Numlab.Sig5d.def": head + published,  # for users: the export table as it is
        "exports_link.def": head + linking,  # for the linker: which symbol stands behind a name
        "exports_import.def": head + importing,  # for import libraries: decorated symbols of undecorated names
        "exports.map": "{\n    global:\n" + names + "    local: *;\n};\n",
    }
