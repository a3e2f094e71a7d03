// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QBuffer>
#include <QImage>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "grid/GridOptions.h"
#include "grid/painting/GridPainter.h"
#include "model/CodePage.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr std::int64_t maxPictureBytes = 800'000'000;
constexpr int maxPixelsPerSquare = 200;
constexpr int defaultPixelsPerSquare = 10;

const char* FormatOf(const std::string& fileName) {
    const std::string name = LowerCase(fileName);
    if (name.ends_with(".bmp")) {
        return "BMP";
    }
    if (name.ends_with(".png") || fileName == "-") {
        return "PNG";
    }
    throw CommandFailed("no picture format is known by the ending of " + fileName);
}

SquareRect AreaOf(const CommandLine& line, const Pattern& pattern) {
    const SquareRect whole{1, 1, pattern.GetPatternWidth(), pattern.GetPatternHeight()};
    const auto text = line.Value("--area");
    if (!text) {
        return whole;
    }
    const auto numbers = CommandLine::ParseList(*text);
    if (!numbers || numbers->size() != 4) {
        throw WrongUsage("option --area takes four numbers: X1,Y1,X2,Y2");
    }
    std::array<int, 4> sides{};
    for (std::size_t i = 0; i < sides.size(); ++i) {
        sides[i] = static_cast<int>(std::clamp((*numbers)[i], -1e6, 1e6));
    }
    const SquareRect area{sides[0], sides[1], sides[2], sides[3]};
    if (area.IsEmpty() || area.Left < 1 || area.Top < 1 || area.Right > whole.Right ||
        area.Bottom > whole.Bottom) {
        throw CommandFailed("the area does not lie in the pattern");
    }
    return area;
}

PaintOptions OptionsFor(const Options& options, int style, bool gridLines) {
    PaintOptions paint = GridPaintOptions(options, TargetPicture);
    paint.StitchStyle = style;
    paint.GridLines = gridLines;
    return paint;
}

QImage PaintPicture(const GridView& view, const SquareRect& area) {
    const int pixelsX = ToPixel(view.Scale.SquareTwipsX, view.Scale.TwipsPerPixelX);
    const int pixelsY = ToPixel(view.Scale.SquareTwipsY, view.Scale.TwipsPerPixelY);
    const std::int64_t width = std::int64_t{pixelsX} * (area.Right - area.Left + 1);
    const std::int64_t height = std::int64_t{pixelsY} * (area.Bottom - area.Top + 1);
    if (width * height * 4 > maxPictureBytes) {
        throw RunTimeError(ErrOutOfMemory);
    }
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
    if (image.isNull()) {
        throw RunTimeError(ErrOutOfMemory);
    }
    GridPainter painter;
    painter.Symbols().SetFont(view.Source->GetPalette());
    painter.PaintImage(image, QPoint((area.Left - 1) * pixelsX, (area.Top - 1) * pixelsY), view,
                       area);
    return image;
}

} // namespace

void RunRender(Environment& environment, const CommandWords& words) {
    const CommandLine line(words, {{"-o", true, "--output"},
                                   {"--style", true},
                                   {"--pixels-per-square", true},
                                   {"--grid"},
                                   {"--area", true}});
    line.ExpectFiles(1, 1);
    const std::string output = line.Required("-o");
    const auto style = line.Integer("--style", ShowColorSquares, ShowVStitches);
    const auto pixels = line.Integer("--pixels-per-square", 1, maxPixelsPerSquare);
    const char* format = FormatOf(output);

    Pattern pattern(environment.Context());
    environment.LoadPattern(pattern, line.Files()[0]);
    const SquareRect area = AreaOf(line, pattern);
    GridView view;
    view.Source = &pattern;
    view.Scale =
        GridScale::ForPicture(static_cast<int>(pixels.value_or(defaultPixelsPerSquare)),
                              pattern.GetPatternClothCountX(), pattern.GetPatternClothCountY());
    view.Options =
        OptionsFor(environment.GetOptions(), static_cast<int>(style.value_or(ShowColorSquares)),
                   line.Has("--grid"));
    const QImage image = PaintPicture(view, area);
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format)) {
        throw CommandFailed("the picture cannot be encoded");
    }
    const QByteArray& bytes = buffer.data();
    WriteOutput(output, {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                         static_cast<std::size_t>(bytes.size())});
}

} // namespace zol
