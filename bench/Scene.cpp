// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "Scene.h"

#include <array>
#include <random>

#include "model/CodePage.h"

namespace zol {

namespace {

constexpr int Side = 999;
constexpr int Flosses = 200;
constexpr int Knots = 2000;
constexpr int Lines = 2000;

constexpr std::array<int, 10> PartKinds{StitchUL3Q, StitchUR3Q, StitchLL3Q, StitchLR3Q, StitchTBH,
                                        StitchBTH,  StitchULQ,  StitchURQ,  StitchLLQ,  StitchLRQ};

class SceneMaker {
public:
    explicit SceneMaker(Pattern& pattern) : m_pattern(pattern) {}

    void Fill() {
        m_pattern.Initialize(Side, Side, 14, 14);
        AddFlosses();
        for (int x = 1; x <= Side; ++x) {
            for (int y = 1; y <= Side; ++y) {
                FillSquare(x, y);
            }
        }
        AddKnots();
        AddLines();
    }

private:
    int Roll(int from, int to) {
        // Not std::uniform_int_distribution, whose numbers differ from library to library.
        return from + static_cast<int>(m_random() % static_cast<unsigned>(to - from + 1));
    }

    void AddFlosses() {
        Palette& palette = m_pattern.GetPalette();
        palette.ClearPalette();
        for (int i = 1; i <= Flosses; ++i) {
            std::string symbol;
            CodePage::AppendUtf8(
                symbol, CodePage::ToUnicode(static_cast<std::uint8_t>(Palette::SymbolCode(i))));
            const Colour rgb =
                MakeColour(static_cast<unsigned>(Roll(0, 255)), static_cast<unsigned>(Roll(0, 255)),
                           static_cast<unsigned>(Roll(0, 255)));
            palette.AddPaletteEntry(rgb, std::to_string(i), "Floss", "DMC", symbol, 2, 2, 0, i, 0,
                                    "DMC");
        }
    }

    int AnyFloss() { return Roll(1, Flosses); }

    void FillSquare(int x, int y) {
        const int kindOfSquare = Roll(0, 99);
        if (kindOfSquare < 90) {
            m_pattern.SetStitch(x, y, StitchWhole, AnyFloss(), 5);
        } else if (kindOfSquare < 98) {
            const int kind = PartKinds[static_cast<std::size_t>(Roll(0, 9))];
            m_pattern.SetStitch(x, y, kind, AnyFloss(), 5);
        } else if (Roll(0, 1) == 0) {
            m_pattern.SetStitch(x, y, StitchUL3Q, AnyFloss(), 1);
            m_pattern.SetStitch(x, y, StitchLR3Q, AnyFloss(), 9);
        } else {
            for (const int kind : {StitchULQ, StitchURQ, StitchLLQ, StitchLRQ}) {
                m_pattern.SetStitch(x, y, kind, AnyFloss(), 5);
            }
        }
    }

    void AddKnots() {
        while (m_pattern.FrenchKnots().Count() < Knots) {
            m_pattern.Context().FrenchKnotStyle = static_cast<std::uint8_t>(Roll(0, 4));
            m_pattern.SetStitch(Roll(1, Side), Roll(1, Side), StitchFKnot, AnyFloss(), Roll(1, 9));
        }
        m_pattern.Context().FrenchKnotStyle = KnotNormal;
    }

    void AddLines() {
        while (m_pattern.GetBackStitchCount() < Lines) {
            BackStitchLine line;
            line.StartX = static_cast<std::int16_t>(Roll(1, Side - 20));
            line.StartY = static_cast<std::int16_t>(Roll(1, Side - 20));
            line.StartPos = static_cast<std::int16_t>(Roll(1, 9));
            line.EndX = static_cast<std::int16_t>(line.StartX + Roll(0, 10));
            line.EndY = static_cast<std::int16_t>(line.StartY + Roll(0, 10));
            line.EndPos = static_cast<std::int16_t>(Roll(1, 9));
            line.PaletteIndex = static_cast<std::uint8_t>(AnyFloss());
            line.LineStyle = static_cast<std::uint8_t>(Roll(0, 5));
            m_pattern.SetBackstitchLine(line);
        }
    }

    Pattern& m_pattern;
    std::mt19937 m_random{20240601};
};

} // namespace

void FillScene(Pattern& pattern) {
    SceneMaker(pattern).Fill();
}

Pattern& SharedScene() {
    static ProgramContext context;
    static Pattern* scene = [] {
        static Pattern pattern(context);
        FillScene(pattern);
        return &pattern;
    }();
    return *scene;
}

} // namespace zol
