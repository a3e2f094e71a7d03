// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLabel;
class QSlider;

namespace zol {

/// The zoom in the status line: its percent and a slider. Equal ways of the slider multiply the
/// zoom by equal factors, so that it feels as even at 10 percent as at 1000.
class ZoomPanel : public QWidget {
    Q_OBJECT

public:
    static constexpr int LeastZoom = 1;
    static constexpr int MostZoom = 1000;
    static constexpr int MostPlace = 300; ///< the slider's right end; its left end is 0

    explicit ZoomPanel(QWidget* parent = nullptr);

    /// Shows a zoom without telling anybody.
    void ShowZoom(int percent);

    /// The zoom of a place of the slider; near 100 percent it catches.
    [[nodiscard]] static int ZoomAt(int place);
    [[nodiscard]] static int PlaceOf(int percent);

Q_SIGNALS:
    void ZoomChosen(int percent);

private:
    void TakeSlider(int place);
    void WriteZoom(int percent);

    QLabel* m_text = nullptr;
    QSlider* m_slider = nullptr;
    int m_zoom = 100;
};

} // namespace zol
