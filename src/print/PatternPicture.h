// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <cstdint>

#include "grid/painting/PaintOptions.h"
#include "model/Doors.h"
#include "model/Pattern.h"

class QPainter;

namespace zol {

/// A picture of a pattern: which squares, how large and how they look. The export wizard and the
/// command line make theirs here. The pattern must outlive it.
struct PatternPicture {
    const Pattern* Source = nullptr;
    SquareRect Squares;       ///< cut to the pattern; empty: an empty picture
    int PixelsPerSquare = 10; ///< a square's width; its height follows from the cloth
    PaintOptions Paint;       ///< with the target of pictures

    /// In pixels.
    [[nodiscard]] std::int64_t Width() const;
    [[nodiscard]] std::int64_t Height() const;
    /// False if the picture has no pixels or more of them than a program should ask for.
    [[nodiscard]] bool IsPossible() const;

    /// Paints in steps. Null if `progress`, which may be null, says stop. Throws RunTimeError 7 if
    /// there is not enough memory. Needs a QGuiApplication.
    [[nodiscard]] QImage Raster(ProgressDoor* progress) const;
    /// The same as shapes, one unit a pixel, from the painter's origin on. False if stopped.
    bool PaintShapes(QPainter& painter, ProgressDoor* progress) const;
};

} // namespace zol
