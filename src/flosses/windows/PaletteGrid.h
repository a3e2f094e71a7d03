// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>
#include <QWidget>

#include "flosses/windows/FlossDrag.h"
#include "flosses/windows/SwatchPainter.h"

namespace zol {

/// `picPalette` of the palette editor: the flosses of a palette in their display order, ten to a
/// row. Arrows move the selection, typing a number finds it, Delete asks for its removal; a floss
/// can be dragged out, and others be dropped on it. It lies in a scroll area.
class PaletteGrid : public QWidget {
    Q_OBJECT

public:
    static constexpr int Columns = 10;

    explicit PaletteGrid(QWidget* parent = nullptr);

    /// It must outlive the grid.
    void SetPalette(const Palette& palette);
    /// After a change of the palette.
    void Refresh(int selected);
    /// The entry at a place of the grid, 0 for none.
    [[nodiscard]] int EntryAt(QPoint place) const;
    [[nodiscard]] QRect RectOf(int entry) const;
    /// Frames the entry that a floss is held over; 0 for none.
    void ShowDropTarget(int entry);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void EntrySelected(int entry);
    void RemoveRequested();
    void DroppedAt(int entry, const QPoint& globalPos);
    /// The selection moved there; the scroll area shows it.
    void Reached(const QRect& rect);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] int Count() const;
    [[nodiscard]] int CellHeight(int width) const;
    [[nodiscard]] QRect RectAt(int position) const;
    /// DrawSelectedBox: frames the selected entry.
    void DrawSelectedBox(QPainter& painter) const;
    void SelectAt(int position);
    [[nodiscard]] int PositionAfterKey(int key) const;
    void Type(const QString& text);
    void Describe();

    const Palette* m_palette = nullptr;
    SwatchPainter m_swatches;
    FlossDrag m_drag;
    QTimer m_typingPause;
    QString m_typed;
    int m_selected = 0;
    int m_dropTarget = 0;
    int m_dragged = 0;
};

} // namespace zol
