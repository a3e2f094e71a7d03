// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QWidget>

#include <optional>

#include "model/ZOLTypes.h"

namespace zol {

/// A patch of one colour with a fine edge.
class ColorSample : public QWidget {
    Q_OBJECT

public:
    explicit ColorSample(QWidget* parent = nullptr);

    /// Nothing: the patch is empty.
    void SetColor(std::optional<Colour> color);
    [[nodiscard]] std::optional<Colour> Color() const { return m_color; }
    [[nodiscard]] QSize sizeHint() const override { return {48, 36}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<Colour> m_color;
};

/// The patch for a line of a list.
[[nodiscard]] QIcon SwatchIcon(Colour color);

/// `picBrightness`: from black over the colour itself, in the middle, to twice its brightness, with
/// the pointer `picArrow` below. Mouse, arrow keys and the wheel move the pointer.
class BrightnessStrip : public QWidget {
    Q_OBJECT

public:
    explicit BrightnessStrip(QWidget* parent = nullptr);

    /// The colour itself, at 100 percent.
    void SetColor(Colour color);
    /// Says nothing.
    void SetPercent(int percent);
    [[nodiscard]] int Percent() const { return m_percent; }
    [[nodiscard]] QSize sizeHint() const override { return {360, 36}; }

Q_SIGNALS:
    void PercentChosen(int percent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Choose(int percent);
    void PlaceArrow();
    [[nodiscard]] int PercentAt(double x) const;

    QWidget* m_arrow;
    Colour m_color = 0;
    int m_percent = 100;
};

} // namespace zol
