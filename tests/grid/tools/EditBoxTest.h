// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DrawModesTest.h"
#include "grid/tools/EditBox.h"
#include "gui/Twin.h"

namespace zol::test {

/// The edit box in its draw mode, worked by the pointer.
class EditBoxTest : public DrawModesTest {
protected:
    EditBoxTest() {
        modes.SetDrawMode(DrawEditBox);
        steps.SetView(&undoView);
    }

    /// Press, one move, release with the left button.
    void Drag(SquarePos from, SquarePos to) {
        modes.Press(Left(from.X, from.Y));
        modes.Move(Left(to.X, to.Y));
        modes.Release(Left(to.X, to.Y));
    }
    void Select(const SquareRect& rect) {
        // What the test has put into the design is on the screen.
        view.PaintAfresh();
        Drag({rect.Left, rect.Top}, {rect.Right, rect.Bottom});
    }
    void Stitch(int column, int row, int floss, int kind = StitchWhole) {
        pattern.SetStitch(column, row, kind, floss, 0);
    }
    void Knot(int column, int row, int position, int style, int floss = 3) {
        context.FrenchKnotStyle = static_cast<std::uint8_t>(style);
        pattern.SetStitch(column, row, StitchFKnot, floss, position);
        context.FrenchKnotStyle = KnotNormal;
    }
    /// A block whose palette has no floss of the pattern's.
    [[nodiscard]] std::shared_ptr<Pattern> ForeignBlock(int width, int height) {
        auto block = std::make_shared<Pattern>(context);
        block->Initialize(width, height, 18, 22);
        block->GetPalette().ClearPalette();
        block->GetPalette().AddPaletteEntry(0x123456U, "77", "Foreign", "DMC", "z", 2, 2, 0, 77, 0,
                                            "DMC");
        block->SetStitch(1, 1, StitchWhole, 1, 0);
        block->SetStitch(width, height, StitchWhole, 1, 0);
        return block;
    }
    [[nodiscard]] std::string Difference(const Pattern& other) const {
        return DifferenceOf(pattern, other);
    }

    /// What the window does of an undo.
    class FloatingDropper : public UndoView {
    public:
        explicit FloatingDropper(EditBoxTest& test) : m_test(test) {}
        void SetBusy(bool /*busy*/) override {}
        void DropFloating() override { m_test.box.DropEditBox(true); }
        void RedrawSquares(const SquareRect& rect) override { m_test.view.RedrawSquares(rect); }
        void DesignChanged() override { m_test.view.DesignChanged(); }

    private:
        EditBoxTest& m_test;
    };

    EditBox& box = modes.Box();
    FloatingDropper undoView{*this};
};

} // namespace zol::test
