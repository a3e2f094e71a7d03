// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QCursor>
#include <QRectF>
#include <QRegion>

#include <optional>
#include <vector>

#include "import/PictureRegion.h"
#include "import/windows/PicturePlace.h"

class QPainter;

/// What lies over a picture while it is worked on: bands, outlines, the eraser's ring. Painters
/// count in pixels of the device.
namespace zol::PictureMarks {

/// A band with handles at its corners and sides; what lies outside of it is dimmed.
void DrawBand(QPainter& painter, const PicturePlace& place, const QRectF& band,
              const QColor& accent);
/// The device pixels that differ when one band takes the place of another; an empty one for none.
[[nodiscard]] QRegion BandChange(const PicturePlace& place, const QRectF& before,
                                 const QRectF& after);

/// A dashed outline that is seen on any ground.
void DrawRect(QPainter& painter, const PicturePlace& place, const QRectF& rect);
void DrawOval(QPainter& painter, const PicturePlace& place, const QRectF& rect);
/// `closed` lines are dashed; one that is being drawn is not, so that its end can grow.
void DrawLine(QPainter& painter, const PicturePlace& place, const std::vector<PicturePoint>& line,
              bool closed);

/// How far a ring reaches round the disc that it shows, in device pixels.
inline constexpr int RingReach = 3;
/// A ring round a disc of the picture.
void DrawRing(QPainter& painter, const PicturePlace& place, QPointF middle, int across);
/// The same as a pointer; nothing if it would be too large for one.
[[nodiscard]] std::optional<QCursor> RingPointer(const PicturePlace& place, int across);

} // namespace zol::PictureMarks
