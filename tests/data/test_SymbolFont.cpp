// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "data/SymbolMeasure.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QRawFont>
#include <QTransform>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "support/TestPaths.h"

namespace zol {
namespace {

const QString FontFile =
    QString::fromUtf8(test::SourceFolder) + QStringLiteral("/data/symbols/KorvantaSymbols.ttf");
const auto Family = QStringLiteral("Korvanta Symbols");
constexpr int Em = 1000;

/// The codes in the order in which they are handed out.
std::vector<int> Codes() {
    std::vector<int> codes;
    for (const auto& [first, last] : {std::pair{33, 126}, {130, 140}, {145, 156}, {159, 241}}) {
        for (int code = first; code <= last; ++code) {
            codes.push_back(code);
        }
    }
    return codes;
}

/// Windows-1252 written out where it leaves Latin-1, and the two codes that have places of their
/// own.
char16_t Unicode(int code) {
    constexpr std::u16string_view from130 = u"\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030"
                                            u"\u0160\u2039\u0152";
    constexpr std::u16string_view from145 = u"\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC"
                                            u"\u2122\u0161\u203A\u0153";
    if (code >= 130 && code <= 140) {
        return from130[static_cast<std::size_t>(code - 130)];
    }
    if (code >= 145 && code <= 156) {
        return from145[static_cast<std::size_t>(code - 145)];
    }
    switch (code) {
    case 159:
        return u'\u0178';
    case 160:
        return u'\uE0A0';
    case 173:
        return u'\uE0AD';
    default:
        return static_cast<char16_t>(code);
    }
}

class SymbolFont : public ::testing::Test {
protected:
    void SetUp() override {
        m_id = QFontDatabase::addApplicationFont(FontFile);
        ASSERT_GE(m_id, 0);
    }

    void TearDown() override { QFontDatabase::removeApplicationFont(m_id); }

    static QFont Sized(int pixels) {
        QFont font(Family);
        font.setPixelSize(pixels);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoFontMerging));
        return font;
    }

    /// The symbol as text that is centred in a square cell of the font's size.
    static QImage Text(int code, int pixels) {
        QImage cell(pixels, pixels, QImage::Format_RGB32);
        cell.fill(Qt::white);
        QPainter painter(&cell);
        painter.setFont(Sized(pixels));
        painter.setPen(Qt::black);
        painter.drawText(cell.rect(), Qt::AlignCenter | Qt::TextDontClip, QChar(Unicode(code)));
        return cell;
    }

    /// The outline in an em box of 1 by 1, y downwards.
    static QPainterPath Outline(int code) {
        const QRawFont raw(FontFile, Em, QFont::PreferNoHinting);
        const auto glyphs = raw.glyphIndexesForString(QChar(Unicode(code)));
        return raw.pathForGlyph(glyphs.value(0)).translated(0, raw.ascent()) *
               QTransform::fromScale(1.0 / Em, 1.0 / Em);
    }

private:
    int m_id = -1;
};

TEST_F(SymbolFont, ThereAreTwoHundredCodes) {
    EXPECT_EQ(Codes().size(), 200U);
}

TEST_F(SymbolFont, IsFoundByItsFamilyName) {
    EXPECT_TRUE(QFontDatabase::families().contains(Family));
    const auto raw = QRawFont::fromFont(Sized(24));
    EXPECT_EQ(raw.familyName(), Family);
    EXPECT_EQ(raw.styleName(), QStringLiteral("Regular"));
}

TEST_F(SymbolFont, EveryCodeHasAGlyphOfItsOwn) {
    const QRawFont raw(FontFile, Em);
    std::set<quint32> seen;
    for (const int code : Codes()) {
        const auto glyphs = raw.glyphIndexesForString(QChar(Unicode(code)));
        ASSERT_EQ(glyphs.size(), 1);
        EXPECT_NE(glyphs[0], 0U) << code;
        EXPECT_TRUE(seen.insert(glyphs[0]).second) << code;
        EXPECT_FALSE(Outline(code).isEmpty()) << code;
    }
}

TEST_F(SymbolFont, TheBlankHasAGlyphWithoutInk) {
    const QRawFont raw(FontFile, Em);
    const auto glyphs = raw.glyphIndexesForString(QStringLiteral(" "));
    ASSERT_EQ(glyphs.size(), 1);
    EXPECT_NE(glyphs[0], 0U);
    EXPECT_TRUE(raw.pathForGlyph(glyphs[0]).isEmpty());
}

TEST_F(SymbolFont, EveryGlyphIsAsWideAsTheEm) {
    const QRawFont raw(FontFile, Em, QFont::PreferNoHinting);
    for (const int code : Codes()) {
        const auto advances =
            raw.advancesForGlyphIndexes(raw.glyphIndexesForString(QChar(Unicode(code))));
        EXPECT_EQ(advances.value(0).x(), Em) << code;
    }
}

TEST_F(SymbolFont, ALineIsExactlyAsHighAsTheFontSize) {
    for (int pixels = 6; pixels <= 64; ++pixels) {
        const QFontMetricsF metrics(Sized(pixels));
        EXPECT_EQ(metrics.height(), pixels);
        EXPECT_EQ(metrics.ascent(), pixels);
        EXPECT_NEAR(metrics.horizontalAdvance(QChar(u'A')), pixels, 1.0 / 32);
    }
}

TEST_F(SymbolFont, InkStaysWellInsideTheEmBox) {
    for (const int code : Codes()) {
        const QRectF ink = Outline(code).boundingRect();
        EXPECT_GE(std::min(ink.left(), ink.top()), 0.065) << code;
        EXPECT_LE(std::max(ink.right(), ink.bottom()), 0.935) << code;
        EXPECT_GE(std::max(ink.width(), ink.height()), 0.69) << code;
    }
}

TEST_F(SymbolFont, InkIsCentredInTheEmBox) {
    for (const int code : Codes()) {
        const QPointF middle = Outline(code).boundingRect().center();
        EXPECT_NEAR(middle.x(), 0.5, 0.002) << code;
        EXPECT_NEAR(middle.y(), 0.5, 0.002) << code;
    }
}

/// How far ink reaches into a cell from each side, counting pixels that are at least a fifth black.
QMargins Margins(const QImage& cell) {
    const int size = cell.width();
    QMargins margins(size, size, size, size);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            if (qGray(cell.pixel(x, y)) < 204) {
                margins.setLeft(std::min(margins.left(), x));
                margins.setTop(std::min(margins.top(), y));
                margins.setRight(std::min(margins.right(), size - 1 - x));
                margins.setBottom(std::min(margins.bottom(), size - 1 - y));
            }
        }
    }
    return margins;
}

TEST_F(SymbolFont, TextCentredInASquareCentresTheShape) {
    for (const int pixels : {14, 15, 24, 33, 48}) {
        for (const int code : Codes()) {
            const QMargins margins = Margins(Text(code, pixels));
            EXPECT_LE(std::abs(margins.left() - margins.right()), 1) << code << " at " << pixels;
            EXPECT_LE(std::abs(margins.top() - margins.bottom()), 1) << code << " at " << pixels;
        }
    }
}

TEST_F(SymbolFont, NoInkTouchesTheEdgeOfACell) {
    for (const int pixels : {14, 24, 48}) {
        for (const int code : Codes()) {
            const QImage cell = Text(code, pixels);
            for (int i = 0; i < pixels; ++i) {
                const int last = pixels - 1;
                const int darkest = std::min({qGray(cell.pixel(i, 0)), qGray(cell.pixel(i, last)),
                                              qGray(cell.pixel(0, i)), qGray(cell.pixel(last, i))});
                ASSERT_GE(darkest, 240) << code << " at " << pixels;
            }
        }
    }
}

struct Promise {
    std::size_t symbols;
    int pixels;
    double leastShare;
};

/// What the font promises: of the first so many symbols, in a cell of so many pixels, no two come
/// nearer to each other than this share of the cell.
class SymbolFontPromise : public SymbolFont, public ::testing::WithParamInterface<Promise> {
protected:
    void SetUp() override {
        SymbolFont::SetUp();
        m_codes = Codes();
        m_codes.resize(GetParam().symbols);
        for (const int code : m_codes) {
            m_blots.emplace_back(ShapeInCell(Outline(code), GetParam().pixels));
        }
    }

    /// How many symbols would be told from a copy of theirs that is changed so.
    [[nodiscard]] std::size_t ToldFromCopy(const QTransform& change) const {
        const auto aboutMiddle =
            QTransform::fromTranslate(-0.5, -0.5) * change * QTransform::fromTranslate(0.5, 0.5);
        std::size_t told = 0;
        for (std::size_t i = 0; i < m_codes.size(); ++i) {
            const auto copy = aboutMiddle.map(Outline(m_codes[i]));
            const SymbolBlot blot(ShapeInCell(copy, GetParam().pixels));
            told += blot.Distance(m_blots[i]) >= GetParam().leastShare ? 1U : 0U;
        }
        return told;
    }

    std::vector<int> m_codes;
    std::vector<SymbolBlot> m_blots;
};

TEST_P(SymbolFontPromise, NoTwoSymbolsAreTakenForEachOther) {
    double least = 1.0;
    for (std::size_t i = 0; i < m_blots.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const double distance = m_blots[i].Distance(m_blots[j]);
            least = std::min(least, distance);
            EXPECT_GE(distance, GetParam().leastShare) << m_codes[j] << " and " << m_codes[i];
        }
    }
    RecordProperty("leastShare", std::to_string(least));
}

TEST_P(SymbolFontPromise, EverySymbolOutlivesTheBlur) {
    const int cell = GetParam().pixels * GetParam().pixels;
    for (std::size_t i = 0; i < m_blots.size(); ++i) {
        EXPECT_GE(m_blots[i].DarkPixels() * 10, cell) << m_codes[i];
    }
}

TEST_P(SymbolFontPromise, ACopyMovedAsideWouldBreakIt) {
    const double pixel = 1.0 / GetParam().pixels;
    EXPECT_EQ(ToldFromCopy(QTransform::fromTranslate(pixel, -pixel)), 0U);
}

TEST_P(SymbolFontPromise, AlmostEverySlightlySmallerCopyWouldBreakIt) {
    const std::size_t told = ToldFromCopy(QTransform::fromScale(0.95, 0.95));
    EXPECT_LE(told * 10, m_codes.size());
    RecordProperty("told", std::to_string(told));
}

INSTANTIATE_TEST_SUITE_P(Cells, SymbolFontPromise,
                         ::testing::Values(Promise{40, 8, 0.06}, Promise{100, 10, 0.08},
                                           Promise{200, 14, 0.06}),
                         [](const auto& row) {
                             return "First" + std::to_string(row.param.symbols) + "At" +
                                    std::to_string(row.param.pixels) + "Pixels";
                         });

} // namespace
} // namespace zol
