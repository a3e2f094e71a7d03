// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/ChartReading.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "grid/painting/SymbolText.h"
#include "model/CodePage.h"
#include "print/PdfReading.h"
#include "print/PrintScene.h"

namespace zol::test {

namespace {

constexpr double PointsPerInch = 72;
constexpr double TwipsPerPoint = 20;

QString SymbolOf(const Pattern& pattern, int floss) {
    const char32_t character = SymbolText::ToUnicode(pattern.GetPalette().GetFlossSymbol(floss));
    return QString::fromUcs4(&character, 1);
}

Symbols Joined(std::map<std::pair<int, int>, QStringList>& found) {
    Symbols symbols;
    for (auto& [square, texts] : found) {
        texts.sort();
        symbols[square] = texts.join(QString());
    }
    return symbols;
}

} // namespace

void FillWithStitches(Pattern& pattern, int flosses) {
    std::uint32_t state = 12345;
    const auto step = [&state] { state = state * 1664525U + 1013904223U; };
    for (int i = 1; i <= flosses; ++i) {
        const char32_t symbol =
            CodePage::ToUnicode(static_cast<std::uint8_t>(Palette::SymbolCode(i)));
        std::string text;
        CodePage::AppendUtf8(text, symbol);
        PrintScene::AddFloss(pattern, state & 0xFFFFFFU, std::to_string(i), i, text);
        step();
    }
    for (int x = 1; x <= pattern.GetPatternWidth(); ++x) {
        for (int y = 1; y <= pattern.GetPatternHeight(); ++y) {
            step();
            const auto pick = static_cast<int>((state >> 8U) % static_cast<unsigned>(flosses + 5));
            if (pick < flosses) {
                pattern.SetStitch(x, y, StitchWhole, pick + 1, 5);
            }
        }
    }
}

Symbols SymbolsOf(const Pattern& pattern) {
    std::map<std::pair<int, int>, QStringList> wanted;
    for (int x = 1; x <= pattern.GetPatternWidth(); ++x) {
        for (int y = 1; y <= pattern.GetPatternHeight(); ++y) {
            for (int i = 0; i < pattern.GetStitchCount(x, y); ++i) {
                wanted[{x, y}].append(SymbolOf(pattern, pattern.GetStitchColorIndex(x, y, i)));
            }
        }
    }
    return Joined(wanted);
}

Symbols SymbolsIn(const std::filesystem::path& pdf, PrintFuncs& job) {
    (void)job.GetPageCount();
    const double cellX = job.SquareWidth() / TwipsPerPoint;
    const double cellY = job.SquareHeight() / TwipsPerPoint;
    std::map<std::pair<int, int>, QStringList> found;
    for (const PdfWord& word : PdfWords(pdf)) {
        const SquareRect squares = job.GetPageRange(word.Page, true).Squares;
        const double x = (word.Left + word.Right) / 2 - job.Options().LeftMargin * PointsPerInch;
        const double y = (word.Top + word.Bottom) / 2 - job.Options().TopMargin * PointsPerInch;
        const int column = squares.Left + static_cast<int>(x / cellX);
        const int row = squares.Top + static_cast<int>(y / cellY);
        if (word.Page <= job.PatternPages() && x >= 0 && y >= 0 && column <= squares.Right &&
            row <= squares.Bottom) {
            EXPECT_EQ(word.Text.size(), 1)
                << word.Text.toStdString() << " on page " << word.Page << " from " << word.Left
                << ", " << word.Top << " to " << word.Right << ", " << word.Bottom;
            found[{column, row}].append(word.Text);
        }
    }
    return Joined(found);
}

} // namespace zol::test
