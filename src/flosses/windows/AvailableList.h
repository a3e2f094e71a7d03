// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QListView>

#include "flosses/windows/AvailableDelegate.h"
#include "flosses/windows/AvailableModel.h"
#include "flosses/windows/FlossDrag.h"

namespace zol {

/// `picAvailable`: the flosses of one catalogue. Arrows move, typing a number finds it, Enter and a
/// double click add; a floss can be dragged out.
class AvailableList : public QListView {
    Q_OBJECT

public:
    explicit AvailableList(QWidget* parent = nullptr);

    void SetFlosses(const AvailableFlosses& flosses);
    void SetListStyle(ListStyle style);
    /// After another catalogue, order or selected row: shows the row that is selected there.
    void Refresh();
    void ShowSelected();

Q_SIGNALS:
    /// 0 for none.
    void RowSelected(int row);
    void AddRequested();
    void DraggedOver(const QPoint& globalPos);
    void DroppedAt(const QPoint& globalPos);
    void DragEnded();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    const AvailableFlosses* m_flosses = nullptr;
    AvailableModel m_model;
    AvailableDelegate m_delegate;
    FlossDrag m_drag;
    bool m_refreshing = false;
};

} // namespace zol
