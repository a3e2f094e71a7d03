// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "flosses/editing/SymbolChoice.h"
#include "grid/painting/SymbolText.h"

namespace zol {

/// `picGrid`: the symbols that there are, in the palette's symbol font. Taken ones are faint and
/// struck out. Arrows and clicks choose; a refused choice is told by the choice itself.
class SymbolGrid : public QWidget {
    Q_OBJECT

public:
    static constexpr int Columns = 20;

    explicit SymbolGrid(QWidget* parent = nullptr);

    /// Both must outlive the grid.
    void SetChoice(SymbolChoice& choice, const Palette& palette);
    [[nodiscard]] QRect RectOf(int place) const;
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void Chosen();
    /// Twice on a symbol that is free.
    void Taken();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void PaintSymbol(QPainter& painter, int place);
    [[nodiscard]] int PlaceAt(QPoint point) const;
    void Choose(int place);
    void MoveCursor(int place);
    void Describe();

    SymbolChoice* m_choice = nullptr;
    SymbolText m_symbols;
    int m_cursor = 1; ///< what the keyboard stands on
};

/// One symbol, large: `picSymbol`.
class SymbolPicture : public QWidget {
    Q_OBJECT

public:
    explicit SymbolPicture(QWidget* parent = nullptr);

    /// A code of the palette's symbol font; 0 for none.
    void SetSymbol(const Palette& palette, int code);
    [[nodiscard]] QSize sizeHint() const override { return {44, 44}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    SymbolText m_symbols;
    int m_code = 0;
};

} // namespace zol
