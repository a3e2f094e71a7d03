// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QElapsedTimer>

#include "flosses/windows/SwatchPainter.h"
#include "model/Pattern.h"

namespace zol {

/// The floss that is drawn with, at the left end of the palette strip: a large swatch, and beside
/// it number and name. `clicked` asks for the palette editor. Its object name is
/// `picCurrentFlossColor`.
class CurrentFloss : public QAbstractButton {
    Q_OBJECT

public:
    explicit CurrentFloss(QWidget* parent = nullptr);

    /// Null for none; the pattern must outlive this or be replaced.
    void SetPattern(Pattern* pattern);
    /// 0 for none, which an empty palette has too.
    void SetFloss(int paletteIndex);
    void ShowSymbol(bool on);
    /// Shows what has become of the palette.
    void Refresh();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] bool HasFloss() const;
    [[nodiscard]] QRect SwatchRect() const;
    void PaintTexts(QPainter& painter) const;

    SwatchPainter m_swatches;
    Pattern* m_pattern = nullptr;
    int m_floss = 0;
    bool m_showSymbol = true;
    QElapsedTimer m_sinceClick;
};

} // namespace zol
