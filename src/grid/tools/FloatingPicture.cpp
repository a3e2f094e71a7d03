// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/FloatingPicture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "grid/painting/Cores.h"
#include "grid/painting/GridPainter.h"
#include "grid/painting/PaintColors.h"

namespace zol {

namespace {

/// A block of that many pixels is made whole, so that no move has to make more of it.
constexpr qint64 WholeUpTo = 12'000'000;
/// Of a larger one that much more than what shows.
constexpr int Beyond = 512;
/// Rows that one core takes at a time.
constexpr int BandRows = 32;
/// Pixels whose painting takes longer than to wake a helper up.
constexpr int WorthHelp = 128 * 1024;
/// Far enough from any cloth, in each of red, green and blue, to tell thread from cloth.
constexpr Colour Apart = 0x808080;
constexpr int ApartSteps = 0x80;

QRect BlockPixels(const OverlayContent& content, const GridGeometry& geometry) {
    const SquarePos at = content.At;
    return geometry.PixelsOf({at.X, at.Y, at.X + content.Block->GetPatternWidth() - 1,
                              at.Y + content.Block->GetPatternHeight() - 1});
}

QRect OnGrid(const GridGeometry& geometry) {
    return {QPoint(0, 0), geometry.GridSize()};
}

bool IsWhole(double pixels) {
    return std::abs(pixels - std::round(pixels)) < 1e-9;
}

/// Whether every square has the same size, so that a picture fits wherever it is moved.
bool HasEvenSquares(const GridScale& scale) {
    return IsWhole(scale.SquareTwipsX / scale.TwipsPerPixelX) &&
           IsWhole(scale.SquareTwipsY / scale.TwipsPerPixelY);
}

/// What covers one pixel, from how it looks on the cloth and on a ground that lies `ApartSteps`
/// away from it: the more it differs, the more of the ground shows.
QRgb WithoutGround(QRgb onCloth, QRgb onOther, QRgb cloth) {
    if (onCloth == onOther) {
        return onCloth | 0xFF000000U;
    }
    const int seen = std::max({std::abs(qRed(onCloth) - qRed(onOther)),
                               std::abs(qGreen(onCloth) - qGreen(onOther)),
                               std::abs(qBlue(onCloth) - qBlue(onOther))});
    const int alpha = 255 - std::min(255, seen * 255 / ApartSteps);
    const auto part = [alpha](int mixed, int ground) {
        return std::clamp(mixed - ground * (255 - alpha) / 255, 0, alpha);
    };
    return qRgba(part(qRed(onCloth), qRed(cloth)), part(qGreen(onCloth), qGreen(cloth)),
                 part(qBlue(onCloth), qBlue(cloth)), alpha);
}

/// Pixels that are laid in one way at the least: shorter runs cost more than they would spare.
constexpr int RunStep = 16;
/// How many runs before it is laid the cloth below one is asked for.
constexpr int RunsAhead = 5;

} // namespace

FloatingPicture::FloatingPicture() = default;
FloatingPicture::~FloatingPicture() = default;

QRect FloatingPicture::Covered(const OverlayContent& content, const GridGeometry& geometry) {
    return BlockPixels(content, geometry) & OnGrid(geometry);
}

void FloatingPicture::Clear() {
    m_painter.reset();
    m_subject = {};
    m_part = {};
    m_image = {};
    m_runs = {};
    m_firstRuns = {};
}

bool FloatingPicture::Serves(const OverlayContent& content, const GridGeometry& geometry,
                             const PaintOptions& options) const {
    const bool sameLook = m_subject.Block == content.Block && m_subject.Scale == geometry.Scale() &&
                          m_subject.Options == options;
    // Broken squares are rounded where they lie; under way a pixel more or less is not seen.
    return sameLook &&
           (m_subject.At == content.At || content.IsMoving || HasEvenSquares(geometry.Scale()));
}

QPoint FloatingPicture::Prepare(const OverlayContent& content, const GridGeometry& geometry,
                                const PaintOptions& options, const QRect& visible) {
    const QRect block = BlockPixels(content, geometry);
    if (!Serves(content, geometry, options)) {
        m_subject = {content.Block, content.At, geometry.Scale(), options};
        m_corner = block.topLeft();
        m_part = {};
    }
    const QRect whole(QPoint(0, 0), block.size());
    const QRect needed = visible.translated(-block.topLeft());
    if (!m_part.contains(needed)) {
        const bool fits = qint64{whole.width()} * whole.height() <= WholeUpTo;
        BuildEditBoxPicture(fits ? whole
                                 : needed.adjusted(-Beyond, -Beyond, Beyond, Beyond) & whole);
    }
    return block.topLeft();
}

void FloatingPicture::Paint(QImage& image, QPoint corner, const OverlayContent& content,
                            const GridGeometry& geometry, const PaintOptions& options) {
    PaintOver(image, corner, image, corner, content, geometry, options);
}

void FloatingPicture::PaintOver(const QImage& cloth, QPoint clothCorner, QImage& image,
                                QPoint corner, const OverlayContent& content,
                                const GridGeometry& geometry, const PaintOptions& options) {
    const QRect all(corner, image.size());
    const QRect visible = Covered(content, geometry) & all;
    const QPoint start =
        visible.isEmpty() ? QPoint() : Prepare(content, geometry, options, visible);
    const QPoint shift = corner - clothCorner;
    // Taken here, since an image that is shared makes its pixels its own when it is asked first.
    auto* pixels = reinterpret_cast<QRgb*>(image.bits());
    const auto stride = image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    const auto paintRow = [&](int y) {
        QRgb* to = pixels + y * stride;
        const auto* from =
            reinterpret_cast<const QRgb*>(cloth.constScanLine(y + shift.y())) + shift.x();
        const bool isBlock = y + corner.y() >= visible.top() && y + corner.y() <= visible.bottom();
        const int left = isBlock ? visible.left() - corner.x() : image.width();
        const int right = isBlock ? left + visible.width() : image.width();
        if (from != to) {
            std::copy(from, from + left, to);
            std::copy(from + right, from + image.width(), to + right);
        }
        if (isBlock) {
            PaintRow(y + corner.y() - start.y() - m_part.top(),
                     visible.left() - start.x() - m_part.left(), visible.width(), from + left,
                     to + left);
        }
    };
    const int bands = (image.height() + BandRows - 1) / BandRows;
    const bool isMuch = qint64{image.width()} * image.height() >= WorthHelp;
    Cores::Run(isMuch ? Cores::Count() : 1, bands, [&](int, int band) {
        const int end = std::min((band + 1) * BandRows, image.height());
        for (int y = band * BandRows; y < end; ++y) {
            paintRow(y);
        }
    });
}

void FloatingPicture::PaintRow(int row, int first, int count, const QRgb* cloth, QRgb* to) const {
    const auto* picture = reinterpret_cast<const QRgb*>(m_image.constScanLine(row));
    const Run* run = m_runs.data() + m_firstRuns[static_cast<std::size_t>(row)];
    const int stop = first + count;
    int x = first;
    while (x < stop) {
        while (run->End <= x) {
            ++run;
        }
        const int end = std::min(run->End, stop);
        const int later = run[RunsAhead - 1].End; // in the next row if not between x and stop
        if (run[RunsAhead].What != PictureRows::Kind::Opaque && later > x && later < stop) {
            PictureRows::Expect(cloth + (later - first), stop - later);
        }
        PictureRows::Lay(run->What, picture + x, cloth + (x - first), end - x, to + (x - first));
        x = end;
    }
}

void FloatingPicture::AddRuns(const QRgb* pixels, int count) {
    const std::size_t first = m_runs.size();
    m_firstRuns.push_back(first);
    for (int x = 0; x < count; x += RunStep) {
        const int end = std::min(x + RunStep, count);
        const PictureRows::Kind what = PictureRows::KindOf(pixels + x, end - x);
        if (m_runs.size() > first && m_runs.back().What == what) {
            m_runs.back().End = end;
        } else {
            m_runs.push_back({end, what});
        }
    }
}

void FloatingPicture::BuildEditBoxPicture(const QRect& part) {
    if (!m_painter) {
        m_painter = std::make_unique<GridPainter>();
    }
    GridView view;
    view.Source = m_subject.Block.get();
    view.Scale = m_subject.Scale;
    view.Options = m_subject.Options;
    view.Options.GridLines = false;
    view.OriginX = (m_subject.At.X - 1) * view.Scale.SquareTwipsX;
    view.OriginY = (m_subject.At.Y - 1) * view.Scale.SquareTwipsY;
    const auto paintOn = [&](Colour ground) {
        QImage image(part.size(), QImage::Format_RGB32);
        view.Options.ClothColor = ground;
        image.fill(ToRgb(ground));
        m_painter->PaintImage(image, m_corner + part.topLeft(), view, view.Everything());
        return image;
    };
    const Colour cloth = m_subject.Options.ClothColor;
    const QImage onCloth = paintOn(cloth);
    const QImage onOther = paintOn(cloth ^ Apart);
    m_image = QImage(part.size(), QImage::Format_ARGB32_Premultiplied);
    m_runs.clear();
    m_firstRuns.clear();
    for (int y = 0; y < part.height(); ++y) {
        const auto* first = reinterpret_cast<const QRgb*>(onCloth.constScanLine(y));
        const auto* second = reinterpret_cast<const QRgb*>(onOther.constScanLine(y));
        auto* made = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        for (int x = 0; x < part.width(); ++x) {
            made[x] = WithoutGround(first[x], second[x], ToRgb(cloth));
        }
        AddRuns(made, part.width());
    }
    m_runs.insert(m_runs.end(), RunsAhead, {0, PictureRows::Kind::Opaque}); // to look ahead into
    m_part = part;
}

} // namespace zol
