// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QWidget>

#include <vector>

#include "model/ZOLTypes.h"

namespace zol {

/// A picture of colours in which a place is one colour. Mouse and arrow keys choose the place.
class ColorField : public QWidget {
    Q_OBJECT

public:
    explicit ColorField(QWidget* parent = nullptr);

    /// Marks the place of that colour, or the one that comes nearest to it; says nothing.
    virtual void ShowColor(Colour color) = 0;

Q_SIGNALS:
    void ColorPicked(zol::Colour color);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// A place outside the field counts as the nearest inside.
    virtual void PickAt(QPointF place) = 0;
    /// An arrow key: one step, or a large one.
    virtual void Step(QPoint direction, bool large) = 0;
    /// Rings the chosen place so that it shows on any colour, and in the accent with the keys.
    void PaintMark(QPainter& painter, const QRectF& mark) const;
};

/// `picColor`: every hue across and every saturation down, both at full brightness.
class HueField : public ColorField {
    Q_OBJECT

public:
    explicit HueField(QWidget* parent = nullptr);

    void ShowColor(Colour color) override;
    [[nodiscard]] QSize sizeHint() const override { return {360, 200}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void PickAt(QPointF place) override;
    void Step(QPoint direction, bool large) override;

private:
    QImage m_picture;
    double m_hue = 0;        ///< 0 to 1
    double m_saturation = 0; ///< 0 to 1
};

/// `pic256Color` and `picDMC3`: a table of single colours.
class SwatchField : public ColorField {
    Q_OBJECT

public:
    explicit SwatchField(QWidget* parent = nullptr);

    /// Row by row; `columns` at least 1.
    void SetColors(std::vector<Colour> colors, int columns);
    void ShowColor(Colour color) override;
    [[nodiscard]] QSize sizeHint() const override { return {360, 200}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void PickAt(QPointF place) override;
    void Step(QPoint direction, bool large) override;

private:
    [[nodiscard]] int Rows() const;
    [[nodiscard]] QRect CellOf(int index) const;
    void Pick(int index);

    std::vector<Colour> m_colors;
    int m_columns = 1;
    int m_chosen = -1;
};

} // namespace zol
