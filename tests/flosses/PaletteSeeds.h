// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FlossesTestSupport.h"

namespace zol::test {

/// Two flosses of two makers in the present form, every byte written by hand; the second one is a
/// blend.
inline std::vector<std::uint8_t> Rel6Bytes() {
    HandWritten file;
    file.Text("Korvanta 6 Floss Palette!").Raw({2, 0});
    file.Text("DMC Mouline", 30).Text("DMC", 10).Text("Anchor", 30).Text("Anchor", 10);
    file.Raw({2, 0, 5, 0}).Text("Arial").Raw({0xFF, 0xFF, 0, 0});
    file.Text("Black", 30).Raw({1, 2, 3, 0}).Text("310", 10).Raw({1, 0, 0x2C, 1, 0, 0});
    file.Text("", 30).Raw({0, 0, 0, 0}).Text("", 10).Raw({0, 0, 0, 0, 0, 0, 0, 0});
    file.Text("A").Raw({2, 0, 1, 0, 7, 0}).Text("My black", 30).Raw({4, 0, 0, 0, 0});
    file.Text("Black", 25);
    file.Text("Red", 30).Raw({10, 20, 30, 0}).Text("666", 10).Raw({1, 0, 1, 0, 0, 0});
    file.Text("Blue", 30).Raw({13, 21, 31, 0}).Text("130", 10).Raw({2, 0, 9, 0, 0, 0});
    file.Raw({0xFF, 0xFF}).Text("B").Raw({3, 0, 2, 0, 8, 0});
    file.Text("DMC-666 & Anchor-130", 30).Raw({0, 0x78, 0x56, 0x34, 0x12}).Text("Gold", 25);
    return file.Bytes;
}

/// Two flosses in the release 5 form.
inline std::vector<std::uint8_t> Rel5Bytes() {
    HandWritten file;
    file.Text("Korvanta 5 Floss Palette!").Raw({2, 0});
    file.Text("ignored", 10).Text("ignored", 10).Text("ignored", 10);
    file.Raw({5, 0}).Text("Arial").Raw({0, 0, 0xFF, 0xFF});
    file.Raw({1, 2, 3, 0}).Text("310", 10).Text("x", 10).Text("y", 10);
    file.Text("Black", 50).Text("A").Raw({3, 0, 0, 0});
    file.Raw({4, 5, 6, 0}).Text("None", 10).Text("x", 10).Text("y", 10);
    file.Text("A description of more than thirty letters", 50).Text("B").Raw({1, 0, 1, 0});
    return file.Bytes;
}

/// Three records of the old form; the middle one has no numbers and is skipped.
inline std::vector<std::uint8_t> OldBytes() {
    HandWritten file;
    file.Raw({1, 2, 3, 0, 0x36, 1, 0, 0, 0, 0}).Text("Black", 25).Text("A", 2);
    file.Raw({9, 9, 9, 0, 0, 0, 0, 0, 0, 0}).Text("skipped", 25).Text("Z", 2);
    file.Raw({4, 5, 6, 0, 0, 0, 1, 0, 0, 0}).Text("Custom", 25).Text(" B", 2);
    return file.Bytes;
}

/// A catalogue with two rows, one of them the number 310.
inline std::vector<std::uint8_t> CatalogueBytes() {
    HandWritten file;
    file.Text("DMC", 30).Raw({1, 0, 0, 0}).Text("DMC", 10);
    file.Raw({0, 0, 0, 0, 0x10, 0xF9, 0xE5, 0x40, 0, 0});
    file.Raw({0x2C, 1, 0, 0}).Text("Black", 30).Text("310", 10);
    file.Raw({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}).Text(" ");
    file.Raw({5, 0, 0, 0}).Text("gray", 30).Text("White", 10);
    file.Raw({255, 0, 255, 0, 255, 0, 255, 0, 0, 0, 0, 0}).Text(" ");
    return file.Bytes;
}

inline std::string CatalogueCsvText() {
    return "FlossID,Description,Red,Green,Blue,MasterID\n"
           "310,\"Black, \"\"deep\"\"\",0,0,0,300\nWhite,White,255,255,255,5\n";
}

} // namespace zol::test
