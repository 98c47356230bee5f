#!/usr/bin/env python3
"""Writes src/gb18030_table.inc: the characters of GB18030's two-byte codes, from Python's own codec."""
import pathlib

TRAIL_BYTES = list(range(0x40, 0x7F)) + list(range(0x80, 0xFF))


def literal(lead):
    text = "".join(bytes([lead, trail]).decode("gb18030") for trail in TRAIL_BYTES)
    # Private-use characters and blanks have no shape of their own: they are written as escapes.
    return "".join(f"\\u{ord(c):04X}" if 0xE000 <= ord(c) < 0xF900 or c.isspace() else c for c in text)


def main():
    target = pathlib.Path(__file__).parent / "src" / "gb18030_table.inc"
    rows = [f'u"{literal(lead)}" // {lead:02X}' for lead in range(0x81, 0xFF)]
    head = "// Written by make_gb18030_table.py. One line for each lead byte, 190 trail bytes: 40 to 7E, 80 to FE.\n"
    target.write_text(head + "\n".join(rows) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
