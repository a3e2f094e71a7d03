// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include "RecordingView.h"
#include "files/PatternDesign.h"
#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"
#include "support/RecordingDoors.h"
#include "support/TempFolder.h"

namespace zol::test {

/// A pattern of 24 by 24 squares with four flosses on a tool's desk.
class ToolTest : public ::testing::Test {
protected:
    static constexpr int Size = 24;

    ToolTest() { context.Messages = &messages; }

    static PointerEvent At(int column, int row, PointerButton button, int position = 5) {
        PointerEvent event;
        event.At = {column, row, position, CornerOf(position)};
        event.Button = button;
        return event;
    }
    static PointerEvent Left(int column, int row, int position = 5) {
        return At(column, row, PointerButton::Left, position);
    }
    static PointerEvent Right(int column, int row, int position = 5) {
        return At(column, row, PointerButton::Right, position);
    }
    static PointerEvent WithKeys(PointerEvent event, bool shift, bool ctrl) {
        event.Shift = shift;
        event.Ctrl = ctrl;
        return event;
    }
    /// The quarter of a place in the middle of one of the nine regions.
    static int CornerOf(int position) {
        return 1 + (PositionColumn(position) == 2 ? 2 : 0) + (PositionRow(position) == 2 ? 6 : 0);
    }

    void AddLine(int x1, int y1, int p1, int x2, int y2, int p2, int floss = 2) {
        BackStitchLine line;
        line.StartX = static_cast<std::int16_t>(x1);
        line.StartY = static_cast<std::int16_t>(y1);
        line.StartPos = static_cast<std::int16_t>(p1);
        line.EndX = static_cast<std::int16_t>(x2);
        line.EndY = static_cast<std::int16_t>(y2);
        line.EndPos = static_cast<std::int16_t>(p2);
        line.PaletteIndex = static_cast<std::uint8_t>(floss);
        pattern.AddBackStitchLine(line);
    }

    /// What the window shows is the whole design as it is now.
    void ExpectScreenIsTrue() {
        const QImage& screen = view.Screen();
        const QImage fresh = view.FreshPicture();
        int wrong = 0;
        int most = 0;
        QRect where;
        for (int y = 0; y < fresh.height(); ++y) {
            for (int x = 0; x < fresh.width(); ++x) {
                const int difference = Difference(screen.pixel(x, y), fresh.pixel(x, y));
                if (difference > 0) {
                    ++wrong;
                    most = std::max(most, difference);
                    where |= QRect(x, y, 1, 1);
                }
            }
        }
        EXPECT_EQ(wrong, 0) << "pixels, by up to " << most << ", from " << where.left() << ", "
                            << where.top() << " to " << where.right() << ", " << where.bottom();
    }
    static int Difference(QRgb a, QRgb b) {
        return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                         std::abs(qBlue(a) - qBlue(b))});
    }
    [[nodiscard]] int Kind(int column, int row, int index = 0) const {
        return pattern.GetStitchType(column, row, index);
    }
    [[nodiscard]] int Floss(int column, int row) const {
        return pattern.GetStitchPaletteIndex(column, row);
    }

    TempFolder folder;
    RecordingMessages messages;
    ProgramContext context;
    Pattern pattern{context};
    DesignHolder holder{std::make_unique<PatternDesign>(Prepare(pattern), "")};
    Undo steps{holder, folder / "undo.tmp"};
    MirrorMode mirror;
    DrawingChoice choice;
    RecordingView view{pattern};
    ToolDesk desk{holder, steps, mirror, choice, view};

private:
    static Pattern& Prepare(Pattern& pattern) {
        pattern.Initialize(Size, Size, 12, 12);
        pattern.GetPalette().ClearPalette();
        int number = 0;
        for (const Colour rgb : {0x0000FFU, 0xFF0000U, 0x202020U, 0xE0F0E0U}) {
            const std::string symbol(1, static_cast<char>('!' + number++));
            pattern.GetPalette().AddPaletteEntry(rgb, std::to_string(number), "Floss", "DMC",
                                                 symbol, 2, 2, 0, number, 0, "DMC");
        }
        pattern.SetChanged(false);
        return pattern;
    }
};

} // namespace zol::test
