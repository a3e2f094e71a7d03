// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/basExport.h"

#include <QImageWriter>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>

#include "grid/GridOptions.h"
#include "model/CodePage.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "print/PageText.h"

namespace zol {

namespace {

constexpr int DotsPerInch = 96;

bool WriteSvg(const PatternPicture& picture, QIODevice& device, ProgressDoor* progress) {
    const QRect all(0, 0, static_cast<int>(picture.Width()), static_cast<int>(picture.Height()));
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(DotsPerInch);
    generator.setSize(all.size());
    generator.setViewBox(all);
    generator.setTitle(OneLine(picture.Source->Title));
    QPainter painter;
    return painter.begin(&generator) && picture.PaintShapes(painter, progress) && painter.end();
}

bool WritePdf(const PatternPicture& picture, QIODevice& device, ProgressDoor* progress) {
    // Readers need not show pages of more than 200 inches.
    constexpr double MostPoints = 14400;
    constexpr double PointsPerInch = 72;
    const auto width = static_cast<double>(picture.Width());
    const auto height = static_cast<double>(picture.Height());
    const double scale =
        std::min(PointsPerInch / DotsPerInch, MostPoints / std::max(width, height));
    QPdfWriter writer(&device);
    writer.setCreator(QStringLiteral("Korvanta 6"));
    writer.setTitle(OneLine(picture.Source->Title));
    writer.setPageLayout(QPageLayout(QPageSize(QSizeF(width * scale, height * scale),
                                               QPageSize::Point, QString(), QPageSize::ExactMatch),
                                     QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    QPainter painter;
    if (!painter.begin(&writer)) {
        return false;
    }
    const double unit = writer.resolution() * scale / PointsPerInch;
    painter.scale(unit, unit);
    return picture.PaintShapes(painter, progress) && painter.end();
}

} // namespace

PatternPicture basExport::PictureOf(const Pattern& source, const SquareRect& squares,
                                    const Options& options) const {
    PatternPicture picture;
    picture.Source = &source;
    picture.Squares = {std::max(squares.Left, 1), std::max(squares.Top, 1),
                       std::min(squares.Right, source.GetPatternWidth()),
                       std::min(squares.Bottom, source.GetPatternHeight())};
    picture.PixelsPerSquare = ExportZoom;
    picture.Paint = GridPaintOptions(options, TargetPicture);
    picture.Paint.StitchStyle = DisplayStyleOf(ExportDisplayAs);
    picture.Paint.GridLines = ExportGridlines;
    return picture;
}

std::vector<OptionItem> ExportStyles(const std::string& colorWord) {
    return {{colorWord + "ed Squares", PrintColorBlocks},
            {colorWord + "ed Stitches", PrintVirtualStitches},
            {"B&W Symbols", PrintBlackSymbols},
            {colorWord + "ed Symbols", PrintColorSymbols},
            {"Blocks & Symbols", PrintBlocksAndSymbols}};
}

std::string ExportProposal(const std::filesystem::path& patternFile) {
    const std::string name = PathText(patternFile.filename());
    return name.substr(0, name.find('.'));
}

PictureFormat PictureFormatOf(const std::filesystem::path& file) {
    const std::string ending = LowerCase(PathText(file.extension()));
    if (ending == ".png") {
        return PictureFormat::Png;
    }
    if (ending == ".svg") {
        return PictureFormat::Svg;
    }
    return ending == ".pdf" ? PictureFormat::Pdf : PictureFormat::Bmp;
}

bool WritePicture(const PatternPicture& picture, const QImage& raster, PictureFormat format,
                  QIODevice& device, ProgressDoor* progress) {
    if (!picture.IsPossible()) {
        throw RunTimeError(ErrOutOfMemory);
    }
    if (format == PictureFormat::Svg) {
        return WriteSvg(picture, device, progress);
    }
    if (format == PictureFormat::Pdf) {
        return WritePdf(picture, device, progress);
    }
    const QImage image = raster.isNull() ? picture.Raster(progress) : raster;
    return !image.isNull() &&
           QImageWriter(&device, format == PictureFormat::Png ? "PNG" : "BMP").write(image);
}

WholeFileResult SavePicture(const PatternPicture& picture, const QImage& raster,
                            const std::filesystem::path& file, ProgressDoor* progress) {
    return WriteWholeFile(file, [&](CheckedOutput& output) {
        return WritePicture(picture, raster, PictureFormatOf(file), output, progress) &&
               (progress == nullptr || progress->MayGoOn());
    });
}

} // namespace zol
