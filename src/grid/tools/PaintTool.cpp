// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/PaintTool.h"

#include <algorithm>
#include <utility>

namespace zol {

namespace {

/// The hourglass for as long as it lives.
class BusyScope {
public:
    explicit BusyScope(ToolView& view) : m_view(view) { m_view.SetBusy(true); }
    ~BusyScope() { m_view.SetBusy(false); }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;

private:
    ToolView& m_view;
};

} // namespace

PaintTool::PaintTool(ToolDesk desk, std::function<void()> painted)
    : m_desk(desk),
      m_painted(std::move(painted)) {}

void PaintTool::Release(const PointerEvent& event) {
    Pattern& design = m_desk.Design();
    if (m_desk.With.CurrentStitchType == StitchCustom) {
        design.Context().Tell("Function Not Allowed With Custom Stitches",
                              MessageIcon::Exclamation);
        return;
    }
    // Beside the pattern there is nothing to fill, and no step that would replace the last one.
    if (design.IsInGrid(event.At.Column, event.At.Row)) {
        Fill(event.At.Column, event.At.Row);
    }
    m_painted();
}

void PaintTool::Fill(int column, int row) {
    const BusyScope busy(m_desk.View);
    Pattern& design = m_desk.Design();
    // Knots that come off reach into the squares around.
    const int reach = design.FrenchKnots().IsEmpty() ? 0 : 1;
    design.ClearPaintRect();
    {
        const UndoStep step(m_desk.Steps, UndoKind::Snapshot, "Paint");
        const int oldIndex = design.GetStitchPaletteIndex(column, row);
        if (m_erases) {
            design.Paint(column, row, NoStitch, NoFloss, oldIndex);
        } else {
            design.Paint(column, row, m_desk.With.CurrentStitchType,
                         m_desk.With.CurrentPaletteIndex, oldIndex);
        }
    }
    const SquareRect painted = design.GetPaintRect();
    if (!painted.IsEmpty()) {
        m_desk.View.RedrawSquares({std::max(painted.Left - reach, 1),
                                   std::max(painted.Top - reach, 1),
                                   std::min(painted.Right + reach, design.GetPatternWidth()),
                                   std::min(painted.Bottom + reach, design.GetPatternHeight())});
    }
}

} // namespace zol
