// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/SymbolText.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <set>

#include "flosses/Palette.h"
#include "grid/painting/StitchImages.h"

namespace zol {
namespace {

TEST(SymbolText, CodesAreWindows1252ButForTwo) {
    EXPECT_EQ(SymbolText::ToUnicode('A'), U'A');
    EXPECT_EQ(SymbolText::ToUnicode('&'), U'&');
    EXPECT_EQ(SymbolText::ToUnicode(130), U'\u201A');
    EXPECT_EQ(SymbolText::ToUnicode(156), U'\u0153');
    EXPECT_EQ(SymbolText::ToUnicode(160), U'\uE0A0');
    EXPECT_EQ(SymbolText::ToUnicode(173), U'\uE0AD');
    EXPECT_EQ(SymbolText::ToUnicode(241), U'\u00F1');
    EXPECT_EQ(SymbolText::ToUnicode(0), 0U);
    EXPECT_EQ(SymbolText::ToUnicode(256), 0U);
    EXPECT_EQ(SymbolText::ToUnicode(-1), 0U);
}

TEST(SymbolText, AllSymbolsHaveACharacterOfTheirOwn) {
    std::set<char32_t> seen;
    for (int n = 1; n <= Palette::SymbolCount; ++n) {
        seen.insert(SymbolText::ToUnicode(Palette::SymbolCode(n)));
    }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(Palette::SymbolCount));
}

TEST(SymbolText, TheBuiltInFontIsThereUnderItsName) {
    EXPECT_EQ(SymbolText::LoadBuiltInFont(), QStringLiteral("Korvanta Symbols"));
}

TEST(SymbolText, EverySymbolHasAnOutlineInsideItsCell) {
    SymbolText symbols;
    const QRectF cell(100, 200, 64, 64);
    for (int n = 1; n <= Palette::SymbolCount; ++n) {
        const QRectF ink = symbols.Outline(cell, Palette::SymbolCode(n), 1, false).boundingRect();
        EXPECT_GT(ink.width() * ink.height(), 64 * 64 * 0.05) << Palette::SymbolCode(n);
        EXPECT_TRUE(cell.contains(ink)) << Palette::SymbolCode(n);
    }
}

TEST(SymbolText, AnAmpersandIsASymbolLikeAnyOther) {
    SymbolText symbols;
    symbols.SetFont("DejaVu Sans", false, false);
    const QRectF cell(0, 0, 60, 60);
    const QPainterPath ampersand = symbols.Outline(cell, '&', 1, false);
    EXPECT_FALSE(ampersand.isEmpty());
    EXPECT_NE(ampersand, symbols.Outline(cell, '_', 1, false)) << "not an underline";
    QImage image(60, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    symbols.DrawText(painter, cell, '&', Qt::black);
    painter.end();
    QImage blank = image;
    blank.fill(Qt::white);
    EXPECT_NE(image, blank);
}

TEST(SymbolText, TextLiesWhereTheOutlineLies) {
    SymbolText symbols;
    const QRectF cell(20, 10, 80, 80);
    for (const int code : {33, 65, 37, 38, 130, 200}) {
        QImage text(120, 100, QImage::Format_RGB32);
        text.fill(Qt::white);
        QImage shape = text;
        {
            QPainter painter(&text);
            painter.setRenderHint(QPainter::Antialiasing);
            symbols.DrawText(painter, cell, code, Qt::black, 0.8);
        }
        {
            QPainter painter(&shape);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.fillPath(symbols.Outline(cell, code, 0.8, false), Qt::black);
        }
        std::int64_t sum = 0;
        std::int64_t ink = 0;
        for (int y = 0; y < text.height(); ++y) {
            for (int x = 0; x < text.width(); ++x) {
                sum += std::abs(qGray(text.pixel(x, y)) - qGray(shape.pixel(x, y)));
                ink += 255 - qGray(shape.pixel(x, y));
            }
        }
        EXPECT_GT(ink, 0) << code;
        EXPECT_LT(sum, ink / 8) << code;
    }
}

TEST(SymbolText, SnappedSymbolsEndOnPixelBorders) {
    SymbolText symbols;
    for (int side = 6; side <= 40; ++side) {
        const QRectF ink = symbols.Outline(QRectF(0, 0, side, side), 'A', 1, true).boundingRect();
        EXPECT_NEAR(ink.left(), std::round(ink.left()), 1e-6);
        EXPECT_NEAR(ink.right(), std::round(ink.right()), 1e-6);
        EXPECT_NEAR(ink.top(), std::round(ink.top()), 1e-6);
        EXPECT_NEAR(ink.bottom(), std::round(ink.bottom()), 1e-6);
    }
}

TEST(SymbolText, WithoutASymbolNothingIsPainted) {
    SymbolText symbols;
    EXPECT_TRUE(symbols.Outline(QRectF(0, 0, 20, 20), 0, 1, true).isEmpty());
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    symbols.DrawText(painter, image.rect(), 0, Qt::black);
    symbols.DrawText(painter, QRectF(), 'A', Qt::black);
    painter.end();
    EXPECT_TRUE(image.allGray());
    EXPECT_EQ(image.pixel(10, 10), 0xFFFFFFFFU);
}

TEST(StitchImages, ThreadIsTintedAndTheRestIsCloth) {
    QImage grey(3, 1, QImage::Format_RGB32);
    grey.setPixel(0, 0, qRgb(124, 125, 125)); // a mean of 124
    grey.setPixel(1, 0, qRgb(125, 125, 125));
    grey.setPixel(2, 0, qRgb(255, 255, 255));
    const QImage tinted = StitchImages::Tint(grey, MakeColour(200, 100, 10), 0xC0B0A0);
    EXPECT_EQ(tinted.pixel(0, 0), qRgb(0xA0, 0xB0, 0xC0));
    EXPECT_EQ(tinted.pixel(1, 0), qRgb(98, 49, 4)); // 200 * 125 / 255 = 98.04
    EXPECT_EQ(tinted.pixel(2, 0), qRgb(200, 100, 10));
}

TEST(StitchImages, TheTemplateHasThreadAndCloth) {
    const StitchImages images;
    ASSERT_FALSE(images.Template().isNull());
    int thread = 0;
    for (int y = 0; y < images.Template().height(); ++y) {
        for (int x = 0; x < images.Template().width(); ++x) {
            thread += qGray(images.Template().pixel(x, y)) >= 125 ? 1 : 0;
        }
    }
    const int all = images.Template().width() * images.Template().height();
    EXPECT_GT(thread, all / 2);
    EXPECT_LT(thread, all);
}

TEST(StitchImages, EqualColoursShareASlot) {
    StitchImages images;
    const int slot = images.SlotOf(1, 2);
    EXPECT_EQ(images.SlotOf(1, 2), slot);
    EXPECT_NE(images.SlotOf(1, 3), slot);
    EXPECT_NE(images.SlotOf(2, 2), slot);
    EXPECT_TRUE(images.Image(-1).isNull());
    EXPECT_TRUE(images.Image(99).isNull());
}

} // namespace
} // namespace zol
