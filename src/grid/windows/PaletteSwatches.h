// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QTimer>
#include <QWidget>

#include "flosses/windows/SwatchPainter.h"
#include "grid/windows/SwatchLayout.h"
#include "model/Pattern.h"

namespace zol {

/// The swatches themselves, in the palette's display order: `picPalette`, which lies in the strip
/// at its full width and is moved there to scroll. The strip does the moving; this paints what is
/// exposed and says what was done with it.
class PaletteSwatches : public QWidget {
    Q_OBJECT

public:
    explicit PaletteSwatches(QWidget* parent = nullptr);

    void SetPattern(Pattern* pattern);
    void SetCurrent(int paletteIndex);
    [[nodiscard]] int Current() const { return m_current; }
    void SetRows(int rows);
    void SetSide(int pixels);
    void ShowSymbols(bool on);
    /// Takes over what has become of the palette: number, order, colours, symbols.
    void Refresh();

    [[nodiscard]] const SwatchLayout& Layout() const { return m_layout; }
    /// Where a floss lies; nothing for one that is not in the palette.
    [[nodiscard]] QRect RectOfFloss(int paletteIndex) const;
    [[nodiscard]] QSize sizeHint() const override { return m_layout.Size(); }

Q_SIGNALS:
    void FlossPicked(int paletteIndex);
    void EditorRequested();
    void Dragged(int pixels);   ///< the pointer went that far to the right with the swatches held
    void Wheeled(double steps); ///< columns to the right
    void PageRequested(int direction);
    /// The keyboard stands there now.
    void Reached(const QRect& rect);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] int FlossAt(int position) const;
    void PaintSwatch(QPainter& painter, int position);
    void ShowTip(QPoint at, QPoint globalAt);
    void MoveCursor(int position);
    void MoveColumns(int columns);
    bool MoveByKey(int key);
    void PickAtCursor();
    /// Looks for the floss whose number begins with what was typed in one go.
    void Type(const QString& text);
    void DescribeCursor();

    SwatchPainter m_swatches;
    SwatchLayout m_layout;
    Pattern* m_pattern = nullptr;
    int m_current = 0;
    int m_cursor = 0; ///< position that the keyboard stands on
    bool m_showSymbols = true;
    bool m_dragging = false;
    bool m_pressed = false;
    QPoint m_pressedAt; ///< of the screen
    QPoint m_draggedTo; ///< of the screen
    QString m_typed;
    QTimer m_typingPause;
};

} // namespace zol
