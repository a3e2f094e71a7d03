// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

/// Draws, selects and edits backstitch lines. A line's ends lie on the half-square lattice.
/// A click sets the first end and the next one finishes the line; a drag does both at once.
class BackstitchTool : public Tool {
public:
    explicit BackstitchTool(ToolDesk desk) : m_desk(desk) {}

    void Press(const PointerEvent& event) override;
    void Move(const PointerEvent& event) override;
    void Release(const PointerEvent& event) override;
    bool Cancel() override { return CancelLine(); }
    [[nodiscard]] Overlay GetOverlay() const override;

    /// 1-based; 0 for none. A line that has gone or moved since is selected no longer.
    [[nodiscard]] int SelectedLine() const;
    /// Index of the nearest line within reach, which becomes the selected one, or -1.
    int GetLineAtPoint(const GridSpot& at);
    /// Removes a line, 0 meaning the selected one, and repaints what it covered. No undo step
    /// holds it.
    void RemoveLine(int index);
    /// Back to idle. A line that was taken up by an end goes back to where it stood.
    bool CancelLine();
    /// A line that was taken up goes back to where it stood, which ends its drag. What else is
    /// under way goes on.
    void PutBackTakenUp();

    // The commands of the line's menu; with no line selected they do nothing.
    void DeleteSelected() { RemoveLine(0); }
    void SetStyleOfSelected(int lineStyle);
    void SetColorOfSelected();
    void HideHandles();

    /// Whether two ends are the same point of the grid, whatever squares name them.
    [[nodiscard]] static bool PointsEqual(const GridSpot& a, const GridSpot& b);
    /// Pixels of the device from a spot's point to a line; -1 past the line's ends and beyond 20
    /// of the window's pixels.
    [[nodiscard]] double GetLineDistance(int index, const GridSpot& at) const;

private:
    struct Selection {
        int Index;
        BackStitchLine Line;
        bool HandlesShown;
    };
    struct Grabbed {
        BackStitchLine Line; ///< as it stood
        const Pattern* From;
        bool OlderThanStep; ///< not one of the lines that the last undo step added
    };

    [[nodiscard]] GridSpot EndAt(const PointerEvent& event) const;
    [[nodiscard]] bool IsOnGrid(const GridSpot& at) const;
    [[nodiscard]] SquareRect SquaresOf(const BackStitchLine& line) const;

    void PressLeft(const PointerEvent& event);
    void PressRight(const GridSpot& at);
    void TakeUpSelected(const GridSpot& at);
    /// True if the line was none of the last step's.
    bool TakeAway(int index);
    void MoveRubberBand(const GridSpot& at);
    void FinishLine(const GridSpot& at);
    void AddNewLine(BackStitchLine line);
    void PutDownGrabbed(const BackStitchLine& line);
    void AddAndShow(const BackStitchLine& line);

    ToolDesk m_desk;
    std::optional<Selection> m_selected;
    bool m_chainLines = false;
    bool m_stepOpen = false;          ///< begun at the first press, ended with the first line
    std::optional<GridSpot> m_start;  ///< the first end, while a line is under way
    std::optional<GridSpot> m_rubber; ///< the loose end, while a rubber band shows
    std::optional<Grabbed> m_grabbed; ///< a line taken up by one of its ends
};

} // namespace zol
