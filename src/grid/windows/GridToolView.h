// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "grid/tools/ToolView.h"
#include "grid/tools/Undo.h"

namespace zol {

class GridArea;
class StatusLine;

/// What tools and undo see of the main window: the grid, the status line, the pointer.
class GridToolView : public ToolView, public UndoView {
public:
    /// What is beyond grid and status line.
    struct Followers {
        std::function<void()> OverlayChanged;
        std::function<void()> DesignChanged;
        std::function<void(int lineStyle)> OpenLineMenu;
        std::function<void()> DropFloating;
        std::function<void()> FlossesChanged;
    };

    GridToolView(GridArea& area, StatusLine& status, Followers followers);

    [[nodiscard]] const GridGeometry& Geometry() const override;
    void RedrawSquares(const SquareRect& rect) override;
    void RedrawStitches(const SquareRect& rect) override;
    void OverlayChanged() override { m_followers.OverlayChanged(); }
    void DesignChanged() override { m_followers.DesignChanged(); }
    void FlossesChanged() override { m_followers.FlossesChanged(); }
    void SetGridCursor(GridCursor kind) override;
    void SetBusy(bool busy) override;
    void ShowPlace(const std::string& text) override;
    void ShowFloss(const std::string& text) override;
    void ZoomToFrame(const SquareRect& frame) override;
    [[nodiscard]] SquareRect VisibleRange() const override;
    void ScrollTowards(const SquareRect& rect) override;
    void OpenLineMenu(int lineStyle) override { m_followers.OpenLineMenu(lineStyle); }
    void DropFloating() override { m_followers.DropFloating(); }

    /// What a file holds that was opened; it stands until the pointer has moved over the cloth.
    void ShowSummary(const std::string& text);
    void PointerLeft();

private:
    GridArea& m_area;
    StatusLine& m_status;
    Followers m_followers;
    bool m_showsPlace = false; ///< the first panel is the pointer's
};

/// The hourglass over the whole program; calls nest.
void ShowBusy(bool busy);

} // namespace zol
