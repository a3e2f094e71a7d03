// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/AvailableList.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include "flosses/editing/AvailableFlosses.h"
#include "grid/painting/PaintColors.h"

namespace zol {

AvailableList::AvailableList(QWidget* parent)
    : QListView(parent),
      m_model(this),
      m_delegate(this),
      m_drag(this) {
    verticalScrollBar()->setObjectName(QStringLiteral("vsbAvailable"));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setResizeMode(Adjust);
    setItemDelegate(&m_delegate);
    setModel(&m_model);
    connect(&m_drag, &FlossDrag::Moved, this, &AvailableList::DraggedOver);
    connect(&m_drag, &FlossDrag::Dropped, this, &AvailableList::DroppedAt);
    connect(&m_drag, &FlossDrag::Ended, this, &AvailableList::DragEnded);
}

void AvailableList::SetFlosses(const AvailableFlosses& flosses) {
    m_flosses = &flosses;
    m_model.SetFlosses(flosses);
    Refresh();
}

void AvailableList::SetListStyle(ListStyle style) {
    m_delegate.SetStyle(style);
    const bool alone = style == ListStyle::ColorsOnly;
    setFlow(alone ? LeftToRight : TopToBottom);
    setWrapping(alone);
    setSpacing(0);
    scheduleDelayedItemsLayout();
    ShowSelected();
}

void AvailableList::Refresh() {
    m_refreshing = true;
    m_model.Refresh();
    m_refreshing = false;
    ShowSelected();
}

void AvailableList::ShowSelected() {
    const QModelIndex index = m_model.index(m_flosses->Selected() - 1);
    setCurrentIndex(index);
    if (index.isValid()) {
        scrollTo(index, EnsureVisible);
    }
}

void AvailableList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!m_refreshing) {
        Q_EMIT RowSelected(current.row() + 1);
    }
}

void AvailableList::mousePressEvent(QMouseEvent* event) {
    m_drag.Press(*event);
    QListView::mousePressEvent(event);
}

void AvailableList::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0) {
        QListView::mouseMoveEvent(event);
        return;
    }
    // A held button drags the floss; the view itself would move the selection.
    if (currentIndex().isValid()) {
        m_drag.Move(*event, ToQColor(currentIndex().data(AvailableModel::ColourRole).toUInt()));
    }
}

void AvailableList::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_drag.Release(*event)) {
        QListView::mouseReleaseEvent(event);
    }
}

void AvailableList::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        Q_EMIT AddRequested();
    }
}

void AvailableList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT AddRequested();
        return;
    }
    if (event->key() == Qt::Key_Escape && m_drag.IsDragging()) {
        m_drag.Cancel();
        return;
    }
    QListView::keyPressEvent(event);
}

} // namespace zol
