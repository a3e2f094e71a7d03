// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/GridToolView.h"

#include <QGuiApplication>

#include <utility>

#include "grid/windows/GridArea.h"
#include "grid/windows/StatusLine.h"

namespace zol {

GridToolView::GridToolView(GridArea& area, StatusLine& status, Followers followers)
    : m_area(area),
      m_status(status),
      m_followers(std::move(followers)) {}

const GridGeometry& GridToolView::Geometry() const {
    return m_area.Geometry();
}

void GridToolView::RedrawSquares(const SquareRect& rect) {
    m_area.RedrawSquares(rect);
}

void GridToolView::RedrawStitches(const SquareRect& rect) {
    m_area.RedrawStitches(rect);
}

void GridToolView::SetGridCursor(GridCursor kind) {
    m_area.SetGridCursor(kind);
}

void GridToolView::SetBusy(bool busy) {
    ShowBusy(busy);
}

void GridToolView::ShowPlace(const std::string& text) {
    m_showsPlace = true;
    m_status.ShowNote(QString::fromStdString(text));
}

void GridToolView::ShowFloss(const std::string& text) {
    m_status.ShowFloss(QString::fromStdString(text));
}

void GridToolView::ShowSummary(const std::string& text) {
    m_showsPlace = false;
    m_status.ShowNote(QString::fromStdString(text));
}

void GridToolView::PointerLeft() {
    if (m_showsPlace) {
        m_showsPlace = false;
        m_status.ShowNote({});
    }
    m_status.ShowFloss({});
}

void GridToolView::ZoomToFrame(const SquareRect& frame) {
    m_area.ZoomToFrame(frame);
}

SquareRect GridToolView::VisibleRange() const {
    return m_area.GetVisibleRange();
}

void GridToolView::ScrollTowards(const SquareRect& rect) {
    m_area.ScrollTowards(rect);
}

void ShowBusy(bool busy) {
    if (busy) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

} // namespace zol
