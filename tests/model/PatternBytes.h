// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "model/ByteStream.h"

namespace zol::test {

/// A pattern stream put together byte by byte, without the program's writers, so that a test can
/// say what stands in a file. Blocks are set apart from each other to be exchanged or left out.
struct PatternBytes {
    using Bytes = std::vector<std::uint8_t>;

    static void Put(Bytes& to, const std::string& text) {
        to.insert(to.end(), text.begin(), text.end());
    }
    static void Put16(Bytes& to, int value) {
        const auto bits = static_cast<unsigned>(value);
        to.push_back(static_cast<std::uint8_t>(bits & 0xFFU));
        to.push_back(static_cast<std::uint8_t>((bits >> 8U) & 0xFFU));
    }
    static void Put32(Bytes& to, std::int64_t value) {
        const auto bits = static_cast<std::uint64_t>(value);
        for (unsigned shift = 0; shift < 32; shift += 8) {
            to.push_back(static_cast<std::uint8_t>((bits >> shift) & 0xFFU));
        }
    }
    static void PutString(Bytes& to, const std::string& text) {
        Put16(to, static_cast<int>(text.size()));
        Put(to, text);
    }
    static std::string Padded(std::string text, std::size_t width) {
        text.resize(width, ' ');
        return text;
    }

    PatternBytes() {
        for (const char* text : {"Ann", "(c) Ann", "Rose", "Aida", "Use two strands."}) {
            PutString(properties, text);
        }
        Put(palette, "Korvanta 6 Floss Palette!");
        Put16(palette, 1); // manufacturers
        Put(palette, Padded("DMC", 30) + Padded("DMC", 10));
        Put16(palette, 2); // entries
        PutString(palette, "Some Font");
        // The length of the font's name stands before it, behind the entry count.
        Put16(palette, -1); // bold
        Put16(palette, 0);  // italic
        PutEntry("Black", 0x000000, "310", 403, 33);
        PutEntry("Red", 0x0000FF, "666", 46, 34);
        // 3 columns of 2 rows: red, red / empty, empty / empty, black upper left quarter.
        PutRun(2, 2, 1);
        PutRun(3, 255, 255);
        PutRun(1, 1, 9);
        Put32(dups, 1);
        PutDup(3, 2, {2, 12, 255, 255, 255, 255, 255, 255});
        Put32(plainKnots, 1);
        PutKnot(plainKnots, 3, 2, 1); // between the first two columns
        Put32(lines, 1);
        PutLine(1, 1, 1, 3, 2, 9, 2, 4);
        Put32(orientedKnots, 1);
        PutKnot(orientedKnots, 7, 5, 2); // the lower right corner of the grid
        orientedKnots.push_back(3);
        Put32(ids, 2);
        Put32(ids, 0x01020304);
        PutString(ids, "Shop");
        Put32(ids, 77);
        PutString(ids, "  ");
    }

    void PutEntry(const std::string& name, int rgb, const std::string& number, int masterID,
                  int symbol) {
        Put(palette, Padded(name, 30));
        Put32(palette, rgb);
        Put(palette, Padded(number, 10));
        Put16(palette, 1);
        Put32(palette, masterID);
        Put(palette, Padded("", 30)); // blend: name, colour, number, manufacturer, identity
        Put32(palette, 0);
        Put(palette, Padded("", 10));
        Put16(palette, 0);
        Put32(palette, 0);
        Put16(palette, 0); // not blended
        palette.push_back(static_cast<std::uint8_t>(symbol));
        Put16(palette, 2); // strands
        Put16(palette, 1);
        Put16(palette, 0); // tag
        Put(palette, Padded(name, 30));
        palette.push_back(0); // line style
        Put32(palette, 0);    // colour that stands for another
        Put(palette, Padded("Black", 25));
    }
    void PutRun(int length, int floss, int kind) {
        Put16(runs, length);
        runs.push_back(static_cast<std::uint8_t>(floss));
        runs.push_back(static_cast<std::uint8_t>(kind));
    }
    void PutDup(int x, int y, std::initializer_list<int> pairs) {
        Put16(dups, x);
        Put16(dups, y);
        for (const int value : pairs) {
            dups.push_back(static_cast<std::uint8_t>(value));
        }
    }
    static void PutKnot(Bytes& to, int lx, int ly, int floss) {
        Put16(to, lx);
        Put16(to, ly);
        to.push_back(static_cast<std::uint8_t>(floss));
    }
    void PutLine(int startX, int startY, int startPos, int endX, int endY, int endPos, int floss,
                 int style) {
        for (const int value : {startX, startY, startPos, endX, endY, endPos}) {
            Put16(lines, value);
        }
        lines.push_back(static_cast<std::uint8_t>(floss));
        lines.push_back(static_cast<std::uint8_t>(style));
    }

    [[nodiscard]] Bytes Header() const {
        Bytes bytes;
        Put(bytes, Padded(magic, 55));
        Put16(bytes, 0x1234);
        Put32(bytes, version);
        Put32(bytes, 0x55667788);
        Put32(bytes, firstPatternID);
        for (int i = 0; i < 187; ++i) {
            bytes.push_back(static_cast<std::uint8_t>(i + 1));
        }
        Put32(bytes, flags);
        Put32(bytes, checksum);
        return bytes;
    }
    [[nodiscard]] Bytes SizeBlock() const {
        Bytes bytes;
        for (const int value : {width, height, clothX, clothY}) {
            Put16(bytes, value);
        }
        return bytes;
    }
    [[nodiscard]] Bytes All() const {
        Bytes bytes = Header();
        for (const Bytes& block : {SizeBlock(), properties, palette, runs, dups, plainKnots, lines,
                                   orientedKnots, ids}) {
            bytes.insert(bytes.end(), block.begin(), block.end());
        }
        return bytes;
    }
    /// Sum of all bytes but those at 260 to 263.
    [[nodiscard]] static std::int32_t SumOf(const Bytes& stream) {
        std::uint32_t sum = 0;
        for (std::size_t i = 0; i < stream.size(); ++i) {
            sum += i >= 260 && i < 264 ? 0U : stream[i];
        }
        return static_cast<std::int32_t>(sum);
    }

    std::string magic = "Korvanta 6 Pattern File";
    std::int64_t version = 60416;
    std::int64_t firstPatternID = 0x01020304;
    std::int64_t flags = 0;
    std::int64_t checksum = 0;
    int width = 3;
    int height = 2;
    int clothX = 14;
    int clothY = 16;
    Bytes properties;
    Bytes palette;
    Bytes runs;
    Bytes dups;
    Bytes plainKnots;
    Bytes lines;
    Bytes orientedKnots;
    Bytes ids;
};

} // namespace zol::test
