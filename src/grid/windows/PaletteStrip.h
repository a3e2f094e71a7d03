// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>
#include <QWidget>

#include "model/Pattern.h"

class QToolButton;

namespace zol {

class CurrentFloss;
class PaletteSwatches;

/// The strip along the bottom of the main window: the current floss, and the palette's swatches
/// (`picPalette` in `picPaletteHolder`) between `cmdPaletteLeft` and `cmdPaletteRight`. It shows
/// what it is told and asks for what is done; whoever hears FlossPicked answers with SetCurrent.
/// Giving it the focus gives it to the swatches.
class PaletteStrip : public QWidget {
    Q_OBJECT

public:
    static constexpr int MostRows = 5;

    explicit PaletteStrip(QWidget* parent = nullptr);

    /// The pattern whose palette is shown, null for none. It must outlive the strip or be replaced
    /// before it goes. Not const, as a tool tip counts its stitches.
    void SetPattern(Pattern* pattern);
    /// The floss that is drawn with; 0 for none. Scrolls to it.
    void SetCurrent(int paletteIndex);
    [[nodiscard]] int Current() const;
    /// 1 to MostRows, by PaletteDisplayRows; the nearest of them otherwise.
    void SetRows(int rows);
    /// 1 small, 2 medium, 3 large, by PaletteDisplaySize; the nearest of them otherwise.
    void SetSquareSize(int size);
    void ShowSymbols(bool on);
    /// After any change of the palette: flosses, order, colours, symbols, texts.
    void Refresh();

Q_SIGNALS:
    void FlossPicked(int paletteIndex);
    void PaletteEditorRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void SetUpParts();
    void ConnectParts();
    void StartScrolling(int direction);
    void StepScrolling();
    void ScrollTo(int offset);
    void ScrollBy(int pixels) { ScrollTo(m_offset + pixels); }
    [[nodiscard]] int LastOffset() const;
    void ShowRect(const QRect& swatch);
    void ShowCurrent();
    void ScrollByWheel(double columns);
    void ScrollPage(int direction);
    /// After the holder or the swatches have another size.
    void Arrange();

    CurrentFloss* m_currentFloss = nullptr;
    QToolButton* m_left = nullptr;
    QToolButton* m_right = nullptr;
    QWidget* m_holder = nullptr;
    PaletteSwatches* m_swatches = nullptr;
    QTimer* m_scrollTimer = nullptr; ///< `timPaletteScroll`
    int m_direction = 0;
    int m_offset = 0; ///< pixels that lie left of the holder
    double m_wheelRest = 0;
};

} // namespace zol
