// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

/// Draws, selects and edits backstitch lines. A line's ends lie on the half-square lattice.
class BackstitchTool : public Tool {
public:
    explicit BackstitchTool(ToolDesk desk) : m_desk(desk) {}

    void Press(const PointerEvent& event) override;
    void Move(const PointerEvent& event) override;
    void Release(const PointerEvent& event) override;
    bool Cancel() override { return CancelLine(); }
    [[nodiscard]] Overlay GetOverlay() const override;

    /// 1-based; 0 for none.
    [[nodiscard]] int SelectedLine() const { return m_selectedLine; }
    /// Index of the nearest line within reach, which becomes the selected one, or -1.
    int GetLineAtPoint(const GridSpot& at);
    /// Removes a line, 0 meaning the selected one, and repaints what it covered.
    void RemoveLine(int index);
    bool CancelLine();

    // The commands of the line's menu; with no line selected they do nothing.
    void DeleteSelected() { RemoveLine(0); }
    void SetStyleOfSelected(int lineStyle);
    void SetColorOfSelected();
    void HideHandles();

    /// Whether two ends are the same point of the grid, whatever squares name them.
    [[nodiscard]] static bool PointsEqual(const GridSpot& a, const GridSpot& b);
    /// Pixels from a spot's point to a line; -1 past the line's ends and beyond 20 pixels.
    [[nodiscard]] int GetLineDistance(int index, const GridSpot& at) const;

private:
    struct Grabbed {
        int PaletteIndex = 0;
        int LineStyle = 0;
    };

    void StartLine(const GridSpot& at);
    void MoveRubberBand(const GridSpot& at);
    void FinishLine(const GridSpot& at);

    ToolDesk m_desk;
    int m_selectedLine = 0;
    bool m_handlesShown = false;
    bool m_chainLines = false;
    std::optional<GridSpot> m_start;  ///< the first end, while a line is under way
    std::optional<GridSpot> m_rubber; ///< the loose end, while a rubber band shows
    std::optional<Grabbed> m_grabbed; ///< of a line taken up by one of its ends
    std::optional<UndoStep> m_step;
};

} // namespace zol
