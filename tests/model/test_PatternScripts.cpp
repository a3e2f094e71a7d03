// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <map>
#include <optional>

#include "model/ModelTestKit.h"

namespace zol {
namespace {

using test::Dump;
using test::ModelTest;

/// The stitch store once more, in the plainest way: a map of squares, a list of knots, and the
/// rules for setting and deleting step by step. Slow and short, to hold the real one against.
class PlainStore {
public:
    struct Square {
        int kind = 255;
        int floss = 255;
        bool knotFlag = false;
        bool hasDup = false;
        std::array<std::pair<int, int>, 4> slots{{{255, 255}, {255, 255}, {255, 255}, {255, 255}}};
    };
    struct Knot {
        int lx;
        int ly;
        int floss;
        int style;
    };

    PlainStore(int width, int height) : m_width(width), m_height(height) {}

    void Set(int x, int y, int kind, int floss, int position, int style) {
        if (!Inside(x, y)) {
            return;
        }
        if (kind == 14 || kind == 15) {
            const std::map<int, int> corners{{1, 0}, {3, 1}, {7, 2}, {9, 3}};
            const auto corner = corners.find(position);
            if (corner == corners.end()) {
                return;
            }
            kind = (kind == 14 ? 2 : 9) + corner->second;
        }
        if (kind == 8) {
            SetKnot(x, y, floss, position, style);
            return;
        }
        Square& square = m_squares[{x, y}];
        if (square.kind < 255) {
            for (const int excluded : Excluded(kind)) {
                DeleteKind(square, excluded, x, y);
            }
        }
        if ((square.kind < 255 ? 1 : 0) + Occupied(square) == 0) {
            square.kind = kind;
            square.floss = floss;
            return;
        }
        if (!square.hasDup) {
            square.hasDup = true;
            m_dupOrder.emplace_back(x, y);
        }
        for (auto& slot : square.slots) {
            if (slot.first == 255) {
                slot = {kind, floss};
                return;
            }
        }
    }

    void Delete(int x, int y, int kind) {
        if (!Inside(x, y)) {
            return;
        }
        Square& square = m_squares[{x, y}];
        if (square.kind == 255 && !square.hasDup && !square.knotFlag) {
            return;
        }
        if (kind != 0) {
            DeleteKind(square, kind, x, y);
            return;
        }
        square.kind = square.floss = 255;
        DropDup(square, x, y);
        if (m_knots.empty()) {
            return;
        }
        std::erase_if(m_knots, [&](const Knot& knot) { return Touches(knot, x, y); });
        for (int nx = x - 1; nx <= x + 1; ++nx) {
            for (int ny = y - 1; ny <= y + 1; ++ny) {
                if (Inside(nx, ny)) {
                    m_squares[{nx, ny}].knotFlag =
                        std::any_of(m_knots.begin(), m_knots.end(),
                                    [&](const Knot& knot) { return Touches(knot, nx, ny); });
                }
            }
        }
    }

    [[nodiscard]] std::string Text() {
        std::string text = std::to_string(m_width) + "x" + std::to_string(m_height) + "\n";
        for (const auto& [at, square] : m_squares) {
            const int flags = (square.hasDup ? 1 : 0) + (square.knotFlag ? 2 : 0);
            if (square.kind != 255 || flags != 0) {
                text += std::to_string(at.first) + "," + std::to_string(at.second) + " " +
                        std::to_string(square.kind) + "/" + std::to_string(square.floss) + "/" +
                        std::to_string(flags) + "\n";
            }
        }
        for (const auto& at : m_dupOrder) {
            text += "dup " + std::to_string(at.first) + "," + std::to_string(at.second);
            for (const auto& [kind, floss] : m_squares[at].slots) {
                text += " " + std::to_string(kind) + "/" + std::to_string(floss);
            }
            text += "\n";
        }
        for (const Knot& knot : m_knots) {
            text += "knot " + std::to_string(knot.lx) + "," + std::to_string(knot.ly) + " " +
                    std::to_string(knot.floss) + "/" + std::to_string(knot.style) + "\n";
        }
        return text;
    }

private:
    static std::vector<int> Excluded(int kind) {
        static const std::map<int, std::vector<int>> table{
            {1, {1, 2, 3, 4, 5, 9, 10, 11, 12, 6, 7}},
            {2, {1, 2, 3, 4, 9, 10, 11, 6, 7}},
            {3, {1, 2, 3, 5, 9, 10, 12, 6, 7}},
            {4, {1, 2, 4, 5, 9, 11, 12, 6, 7}},
            {5, {1, 3, 4, 5, 10, 11, 12, 6, 7}},
            {6, {1, 2, 3, 4, 5, 9, 12, 6, 7}},
            {7, {1, 2, 3, 4, 5, 10, 11, 6, 7}},
            {9, {1, 2, 3, 4, 9, 6}},
            {10, {1, 2, 3, 5, 10, 7}},
            {11, {1, 2, 4, 5, 11, 7}},
            {12, {1, 3, 4, 5, 12, 6}}};
        const auto found = table.find(kind);
        return found == table.end() ? std::vector<int>() : found->second;
    }
    [[nodiscard]] bool Inside(int x, int y) const {
        return x >= 1 && y >= 1 && x <= m_width && y <= m_height;
    }
    static bool Touches(const Knot& knot, int x, int y) {
        return knot.lx >= x * 2 - 1 && knot.lx <= x * 2 + 1 && knot.ly >= y * 2 - 1 &&
               knot.ly <= y * 2 + 1;
    }
    static int Occupied(const Square& square) {
        int count = 0;
        for (const auto& slot : square.slots) {
            count += slot.first != 255 ? 1 : 0;
        }
        return count;
    }
    static void Empty(Square& square, int kind) {
        for (auto& slot : square.slots) {
            if (slot.first == kind) {
                slot = {255, 255};
            }
        }
    }
    void DropDup(Square& square, int x, int y) {
        square.hasDup = false;
        square.slots.fill({255, 255});
        std::erase(m_dupOrder, std::pair(x, y));
    }
    void DeleteKind(Square& square, int kind, int x, int y) {
        if (square.kind == kind) {
            square.kind = square.floss = 255;
            for (const auto& slot : square.slots) {
                if (slot.first != 255) {
                    square.kind = slot.first;
                    square.floss = slot.second;
                    Empty(square, square.kind);
                    break;
                }
            }
        }
        if (!square.hasDup) {
            return;
        }
        Empty(square, kind);
        if (Occupied(square) == 0) {
            DropDup(square, x, y);
            square.knotFlag = false;
        }
    }
    void SetKnot(int x, int y, int floss, int position, int style) {
        if (position < 1 || position > 9) {
            return;
        }
        const int lx = (x - 1) * 2 + (position - 1) % 3 + 1;
        const int ly = (y - 1) * 2 + (position - 1) / 3 + 1;
        const auto found = std::find_if(m_knots.begin(), m_knots.end(), [&](const Knot& knot) {
            return knot.lx == lx && knot.ly == ly;
        });
        if (found != m_knots.end()) {
            found->floss = floss;
        } else {
            m_knots.push_back({lx, ly, floss, style});
        }
        for (int nx = x - 1; nx <= x + 1; ++nx) {
            for (int ny = y - 1; ny <= y + 1; ++ny) {
                if (Inside(nx, ny) && Touches({lx, ly, 0, 0}, nx, ny)) {
                    m_squares[{nx, ny}].knotFlag = true;
                }
            }
        }
    }

    int m_width;
    int m_height;
    std::map<std::pair<int, int>, Square> m_squares;
    std::vector<std::pair<int, int>> m_dupOrder;
    std::vector<Knot> m_knots;
};

using PatternScripts = ModelTest;

TEST_F(PatternScripts, SettingAndDeletingAgreesWithThePlainStore) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        std::mt19937 random(seed);
        const auto pick = [&random](int low, int high) {
            return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
        };
        Pattern pattern = Make(5, 4);
        PlainStore plain(5, 4);
        for (int step = 0; step < 600; ++step) {
            const int x = pick(0, 6);
            const int y = pick(0, 5);
            if (pick(0, 9) < 8) {
                const int kind = pick(1, 15);
                const int floss = pick(1, 9);
                const int position = pick(0, 10);
                const int style = pick(0, 4);
                context.FrenchKnotStyle = static_cast<std::uint8_t>(style);
                pattern.SetStitch(x, y, kind, floss, position);
                plain.Set(x, y, kind, floss, position, style);
            } else {
                const int kind = pick(0, 12);
                pattern.DeleteStitch(x, y, kind);
                plain.Delete(x, y, kind);
            }
            ASSERT_EQ(Dump(pattern), plain.Text()) << "seed " << seed << " step " << step;
        }
    }
}

/// One random operation out of all that change a pattern.
void RandomStep(Pattern& pattern, Pattern& other, std::mt19937& random) {
    const auto pick = [&random](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    const int width = pattern.GetPatternWidth();
    const int height = pattern.GetPatternHeight();
    const int flosses = std::max(pattern.GetPalette().GetEntriesCount(), 1);
    const int x1 = pick(1, width);
    const int y1 = pick(1, height);
    const int x2 = pick(x1, width);
    const int y2 = pick(y1, height);
    switch (pick(0, 13)) {
    case 0:
    case 1:
    case 2:
        test::Scatter(pattern, random, 10, 3, 2, flosses);
        break;
    case 3:
        pattern.DeleteStitch(x1, y1, pick(0, 12));
        break;
    case 4:
        pattern.MoveArea(x1, y1, x2, y2, pick(-3, 3), pick(-3, 3));
        break;
    case 5:
        pattern.Center(pick(0, 2));
        break;
    case 6:
        pattern.Resize(pick(3, 14), pick(3, 14), 14, 14);
        break;
    case 7:
        pattern.ShrinkToFit();
        break;
    case 8:
        pattern.Paint(x1, y1, pick(1, 12), pick(0, 3) == 0 ? 255 : pick(1, flosses),
                      pattern.GetStitchPaletteIndex(x1, y1));
        break;
    case 9:
        pattern.RemoveColor(pick(1, flosses), pick(0, 1) == 0 ? -1 : x1, y1, x2, y2);
        break;
    case 10:
        pattern.ChangeColor(pick(1, flosses), pick(1, flosses), pick(0, 1) == 0 ? -1 : x1, y1, x2,
                            y2);
        break;
    case 11:
        pattern.CopySectionToTarget(other, pick(-2, 5), pick(-2, 5), x1, y1, x2 - x1 + 1,
                                    y2 - y1 + 1, -1);
        break;
    case 12:
        other.CopySectionToTarget(pattern, pick(-2, 5), pick(-2, 5), 1, 1, 6, 6, -1);
        break;
    default:
        if (pick(0, 3) == 0) {
            pattern.ClearUnusedPaletteColors();
        }
        pattern.CountStitches();
        break;
    }
}

TEST_F(PatternScripts, InvariantsHoldOverRandomOperations) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        Pattern pattern = Make(9, 11);
        Pattern other = Make(8, 8);
        for (int step = 0; step < 120; ++step) {
            RandomStep(pattern, other, random);
            // A move shifts lines without a check, so they alone may lie outside.
            test::CheckInvariants(pattern, false);
            test::CheckInvariants(other, false);
            if (HasFatalFailure()) {
                FAIL() << "seed " << seed << " step " << step;
            }
        }
        // What can be made can be saved and comes back.
        ByteWriter writer;
        ASSERT_EQ(pattern.Save("x", writer, 0), 0);
        Pattern loaded = Make(1, 1);
        ByteReader reader(writer.Bytes());
        ASSERT_EQ(loaded.Load("x", reader, 0, 0), 0);
        ASSERT_EQ(test::KnotPoints(loaded), test::KnotPoints(pattern)) << seed;
        test::CheckInvariants(loaded);
    }
}

TEST_F(PatternScripts, EveryKnotIsListedByTheSquaresThatCarryItsFlag) {
    std::mt19937 random(11);
    Pattern pattern = Make(12, 12);
    for (int round = 0; round < 60; ++round) {
        // Whole stitches alone: without a DupStitch no flag is ever lost.
        for (int i = 0; i < 10; ++i) {
            const int x = 1 + static_cast<int>(random() % 12);
            const int y = 1 + static_cast<int>(random() % 12);
            switch (random() % 4) {
            case 0:
                pattern.DeleteStitch(x, y, 0);
                break;
            case 1:
                pattern.SetStitch(x, y, StitchWhole, 1, 0);
                break;
            default:
                pattern.SetStitch(x, y, StitchFKnot, 1 + static_cast<int>(random() % 3),
                                  1 + static_cast<int>(random() % 9));
                break;
            }
        }
        if (round % 7 == 0) {
            pattern.MoveArea(3, 3, 9, 9, 1, -1);
        }
        if (round % 11 == 0) {
            pattern.RemoveColor(3, 4, 4, 8, 8);
        }
        for (int x = 1; x <= 12; ++x) {
            for (int y = 1; y <= 12; ++y) {
                bool touched = false;
                pattern.FrenchKnots().ForEach([&](const FrenchKnot& knot) {
                    touched = touched || (knot.X >= x * 2 - 1 && knot.X <= x * 2 + 1 &&
                                          knot.Y >= y * 2 - 1 && knot.Y <= y * 2 + 1);
                });
                ASSERT_EQ(touched, (pattern.Cell(x, y).CellFlags & CellHasKnot) != 0)
                    << x << "," << y << " round " << round;
            }
        }
    }
}

} // namespace
} // namespace zol
