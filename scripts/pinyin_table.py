#!/usr/bin/env python3
"""Writes session/lookups/pinyin_table.cpp: the first letters of the readings of Chinese characters.

    scripts/pinyin_table.py > session/lookups/pinyin_table.cpp

The readings come from the Unicode Han database as the Debian package unicode-data installs it: kTGHZ2013, all readings of
the characters in general use, and kMandarin for the others. The package is needed here only, never to build.
"""
import bz2
import sys
import unicodedata

READINGS = "/usr/share/unicode/Unihan_Readings.txt.bz2"
BLOCKS = [("kExtensionA", 0x3400, 0x4DBF), ("kUnified", 0x4E00, 0x9FFF)]
LINE = 100  # characters of a text in the source


def initial(reading):
    return unicodedata.normalize("NFD", reading)[0].lower()


def read():
    """Code point to its initials, the first reading's first."""
    found = {"kTGHZ2013": {}, "kMandarin": {}}
    with bz2.open(READINGS, "rt", encoding="utf-8") as lines:
        for line in lines:
            if line.startswith("#") or not line.strip():
                continue
            point, field, value = line.rstrip("\n").split("\t")
            if field not in found:
                continue
            # kTGHZ2013: places in the book before a colon, readings with commas between behind it.
            texts = [part.split(":")[-1] for part in value.split(" ")]
            readings = [reading for text in texts for reading in text.split(",")]
            letters = list(dict.fromkeys(initial(reading) for reading in readings))
            if field == "kMandarin":
                letters = letters[:1]  # its second one is a regional form of the same sound
            assert all("a" <= letter <= "z" for letter in letters), line
            found[field][int(point[2:], 16)] = "".join(letters)
    common = {p: r for p, r in found["kMandarin"].items() if p < 0x10000}
    for point, letters in found["kTGHZ2013"].items():
        # The most frequent reading first: names of many such characters keep their first combinations.
        common[point] = "".join(dict.fromkeys(common.get(point, "") + letters))
    return common


def literal(name, text):
    rows = [text[at:at + LINE] for at in range(0, len(text), LINE)] or [""]
    print(f"constexpr std::string_view {name} =")
    print("\n".join(f'    "{row}"' for row in rows) + ";\n")


def main():
    readings = read()
    print("""// Made by scripts/pinyin_table.py; do not edit.
//
// From the Unicode Han database, version 15.0.0: the fields kTGHZ2013 and kMandarin of Unihan_Readings.txt.
// Copyright 1991-2022 Unicode, Inc. All rights reserved. Distributed under the Terms of Use in
// https://www.unicode.org/copyright.html; licence: https://www.unicode.org/license.txt
// clang-format off
#include "session/lookups/pinyin_table.h"

namespace jxc {

namespace {
""")
    for name, first, last in BLOCKS:
        print(f"// U+{first:04X} to U+{last:04X}, a letter each: the initial of the first reading, '.' for none.")
        literal(name, "".join(readings.get(point, ".")[0] for point in range(first, last + 1)))
    in_blocks = lambda point: any(first <= point <= last for _, first, last in BLOCKS)
    several = {p: r for p, r in sorted(readings.items()) if in_blocks(p) and len(r) > 1}
    others = {p: r for p, r in sorted(readings.items()) if not in_blocks(p)}
    for name, told, points in [("kSeveral", "Of those blocks the characters with several initials", several),
                               ("kOthers", "Characters beyond those blocks", others)]:
        print(f"// {told}, in order of their code points.")
        print(f"constexpr Initials {name}[] = {{")
        row = ""
        for point, letters in points.items():
            item = f'{{0x{point:X}, "{letters}"}},'
            if len(row) + len(item) > LINE:
                print("    " + row.rstrip())
                row = ""
            row += item + " "
        print("    " + row.rstrip() + "\n};\n")
    print("""} // namespace

const PinyinTable& ThePinyinTable() {
    static constexpr PinyinTable table{kExtensionA, kUnified, kSeveral, kOthers};
    return table;
}

} // namespace jxc""")


if __name__ == "__main__":
    sys.exit(main())
