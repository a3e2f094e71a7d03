// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/PictureRows.h"

#include <gtest/gtest.h>

#include <QColor>

#include <array>
#include <random>
#include <vector>

namespace zol::test {

using PictureRows::Kind;
using PictureRows::KindOf;
using Row = std::vector<QRgb>;

namespace {

constexpr QRgb Bare = 0;
constexpr QRgb Thread = 0xFFC02040U;
constexpr QRgb Edge = 0x80601020U;

/// Any pixels, half of them of half threads, over any cloth.
class PictureRowsTest : public ::testing::Test {
protected:
    QRgb Any(int most) {
        return static_cast<QRgb>(std::uniform_int_distribution(0, most)(m_random));
    }
    Row Pixels(int count) {
        Row row;
        for (int i = 0; i < count; ++i) {
            const int alpha =
                std::array{0, 255, static_cast<int>(Any(255)), static_cast<int>(Any(255))}[Any(3)];
            row.push_back((static_cast<QRgb>(alpha) << 24U) | (Any(alpha) << 16U) |
                          (Any(alpha) << 8U) | Any(alpha));
        }
        return row;
    }
    Row Cloth(int count) {
        Row row;
        for (int i = 0; i < count; ++i) {
            row.push_back(0xFF000000U | Any(0xFFFFFF));
        }
        return row;
    }
    static Row Laid(Kind kind, const Row& above, const Row& below) {
        Row to(above.size(), 0x12345678U);
        PictureRows::Lay(kind, above.data(), below.data(), static_cast<int>(above.size()),
                         to.data());
        return to;
    }

private:
    std::mt19937 m_random{7};
};

Kind KindOfRow(const Row& row) {
    return KindOf(row.data(), static_cast<int>(row.size()));
}

/// What shows of a channel where a pixel lies over another.
double Seen(int above, int alpha, int below) {
    return above + below * (255 - alpha) / 255.0;
}

} // namespace

TEST_F(PictureRowsTest, TheKindOfPixelsIsTheLeastThatServesThemAll) {
    EXPECT_EQ(KindOfRow({Bare, Bare}), Kind::Through);
    EXPECT_EQ(KindOfRow({Thread, Thread, Thread}), Kind::Opaque);
    EXPECT_EQ(KindOfRow({Thread, Bare}), Kind::Chosen);
    EXPECT_EQ(KindOfRow({Bare, Thread}), Kind::Chosen);
    EXPECT_EQ(KindOfRow({Thread, Thread, Edge}), Kind::Mixed);
    EXPECT_EQ(KindOfRow({Edge, Bare}), Kind::Mixed);
}

TEST_F(PictureRowsTest, WhatIsMixedIsSeenAsMuchAsItCovers) {
    // Four at a time and what is left over come to the same.
    for (int count = 0; count <= 67; ++count) {
        const Row above = Pixels(count);
        const Row below = Cloth(count);
        const Row laid = Laid(Kind::Mixed, above, below);
        for (std::size_t i = 0; i < laid.size(); ++i) {
            const int alpha = qAlpha(above[i]);
            EXPECT_NEAR(qRed(laid[i]), Seen(qRed(above[i]), alpha, qRed(below[i])), 1);
            EXPECT_NEAR(qGreen(laid[i]), Seen(qGreen(above[i]), alpha, qGreen(below[i])), 1);
            EXPECT_NEAR(qBlue(laid[i]), Seen(qBlue(above[i]), alpha, qBlue(below[i])), 1);
            EXPECT_EQ(qAlpha(laid[i]), 255);
            EXPECT_EQ(laid[i], Laid(Kind::Mixed, {above[i]}, {below[i]})[0]);
        }
    }
}

TEST_F(PictureRowsTest, EveryKindLaysItsPixelsAsMixingDoes) {
    const Row below = Cloth(9);
    const Row none(9, Bare);
    const Row all(9, Thread);
    const Row some{Thread, Bare, Bare, Thread, Thread, Bare, Thread, Bare, Thread};
    EXPECT_EQ(Laid(Kind::Through, none, below), below);
    EXPECT_EQ(Laid(Kind::Opaque, all, below), all);
    for (const Row& row : {none, all, some}) {
        const Row mixed = Laid(Kind::Mixed, row, below);
        EXPECT_EQ(Laid(Kind::Chosen, row, below), mixed);
        EXPECT_EQ(Laid(KindOfRow(row), row, below), mixed);
        for (std::size_t i = 0; i < row.size(); ++i) {
            EXPECT_EQ(mixed[i], row[i] == Bare ? below[i] : row[i]);
        }
    }
}

TEST_F(PictureRowsTest, RowsAreLaidInPlace) {
    const Row above = Pixels(23);
    const Row below = Cloth(23);
    Row place = below;
    PictureRows::Lay(Kind::Mixed, above.data(), place.data(), 23, place.data());
    EXPECT_EQ(place, Laid(Kind::Mixed, above, below));
    place = below;
    PictureRows::Lay(Kind::Through, above.data(), place.data(), 23, place.data());
    EXPECT_EQ(place, below);
}

} // namespace zol::test
