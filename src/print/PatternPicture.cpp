// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PatternPicture.h"

#include <QPainter>

#include <algorithm>

#include "grid/GridScale.h"
#include "grid/painting/GridPainter.h"
#include "grid/painting/PaintColors.h"
#include "grid/painting/ViewPass.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr std::int64_t MaxBytes = 800'000'000;
constexpr int BytesPerPixel = 4;
constexpr int DotsPerMeter = 3780; // 96 an inch, whatever the screen has
/// Pixels, or squares of shapes, that are painted between two looks at the door.
constexpr std::int64_t PixelsAtOnce = 1'000'000;
constexpr int SquaresAtOnce = 5000;

const char* const Task = "Painting Picture";

/// Begins a task and ends it, whichever way it is left.
class Steps {
public:
    Steps(ProgressDoor* door, int maximum) : m_door(door) {
        if (m_door != nullptr) {
            m_door->StartStatus(Task, maximum);
        }
    }
    ~Steps() {
        if (m_door != nullptr) {
            m_door->StopStatus();
        }
    }
    Steps(const Steps&) = delete;
    Steps& operator=(const Steps&) = delete;

    [[nodiscard]] bool Reach(int value) {
        if (m_door == nullptr) {
            return true;
        }
        m_door->UpdateStatus(value);
        return m_door->MayGoOn();
    }

private:
    ProgressDoor* m_door;
};

GridView ViewOf(const PatternPicture& picture) {
    GridView view;
    view.Source = picture.Source;
    view.Scale =
        GridScale::ForPicture(picture.PixelsPerSquare, picture.Source->GetPatternClothCountX(),
                              picture.Source->GetPatternClothCountY());
    view.Options = picture.Paint;
    return view;
}

int PixelsAcross(const GridView& view) {
    return ToPixel(view.Scale.SquareTwipsX, view.Scale.TwipsPerPixelX);
}

int PixelsDown(const GridView& view) {
    return ToPixel(view.Scale.SquareTwipsY, view.Scale.TwipsPerPixelY);
}

} // namespace

std::int64_t PatternPicture::Width() const {
    return Squares.IsEmpty()
               ? 0
               : std::int64_t{Squares.Right - Squares.Left + 1} * PixelsAcross(ViewOf(*this));
}

std::int64_t PatternPicture::Height() const {
    return Squares.IsEmpty()
               ? 0
               : std::int64_t{Squares.Bottom - Squares.Top + 1} * PixelsDown(ViewOf(*this));
}

bool PatternPicture::IsPossible() const {
    // A square's side in twips has to be a number that can be painted with, however few squares.
    constexpr int MostPixels = 1'000'000;
    return PixelsPerSquare > 0 && PixelsPerSquare <= MostPixels && Width() > 0 && Height() > 0 &&
           Height() <= MaxBytes / BytesPerPixel / Width();
}

QImage PatternPicture::Raster(ProgressDoor* progress) const {
    if (!IsPossible()) {
        throw RunTimeError(ErrOutOfMemory);
    }
    const int width = static_cast<int>(Width());
    const int height = static_cast<int>(Height());
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull()) {
        throw RunTimeError(ErrOutOfMemory);
    }
    image.setDotsPerMeterX(DotsPerMeter);
    image.setDotsPerMeterY(DotsPerMeter);
    const GridView view = ViewOf(*this);
    const QPoint corner((Squares.Left - 1) * PixelsAcross(view),
                        (Squares.Top - 1) * PixelsDown(view));
    GridPainter painter;
    painter.Symbols().SetFont(Source->GetPalette());
    const auto pass = painter.BeginImages(view, Squares, QRect(corner, image.size()));
    const int rowsAtOnce =
        static_cast<int>(std::clamp<std::int64_t>(PixelsAtOnce / width, 1, height));
    Steps steps(progress, height);
    for (int top = 0; top < height; top += rowsAtOnce) {
        const int rows = std::min(rowsAtOnce, height - top);
        QImage band(image.scanLine(top), width, rows, image.bytesPerLine(), image.format());
        pass->Paint(band, corner + QPoint(0, top));
        if (!steps.Reach(top + rows)) {
            return {};
        }
    }
    return image;
}

bool PatternPicture::PaintShapes(QPainter& painter, ProgressDoor* progress) const {
    GridView view = ViewOf(*this);
    view.OriginX = -(Squares.Left - 1) * view.Scale.SquareTwipsX;
    view.OriginY = -(Squares.Top - 1) * view.Scale.SquareTwipsY;
    const QRectF all(0, 0, static_cast<double>(Width()), static_cast<double>(Height()));
    // Knots and ends of lines reach over the squares that are wanted.
    painter.setClipRect(all);
    painter.fillRect(all, ToQColor(Paint.Ground()));
    GridPainter grid;
    grid.Symbols().SetFont(Source->GetPalette());
    if (Paint.GridLines) {
        grid.DrawGridLines(painter, view, Squares);
    }
    const int rows = Squares.Bottom - Squares.Top + 1;
    const int columnsAtOnce = std::max(1, SquaresAtOnce / std::max(1, rows));
    Steps steps(progress, Squares.Right - Squares.Left + 1);
    for (int left = Squares.Left; left <= Squares.Right; left += columnsAtOnce) {
        const int right = std::min(left + columnsAtOnce - 1, Squares.Right);
        grid.DrawStitches(painter, view, {left, Squares.Top, right, Squares.Bottom});
        if (!steps.Reach(right - Squares.Left + 1)) {
            return false;
        }
    }
    grid.DrawKnots(painter, view, Squares);
    grid.DrawBackStitchLines(painter, view, Squares);
    return true;
}

} // namespace zol
