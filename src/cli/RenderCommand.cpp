// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QBuffer>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "grid/GridOptions.h"
#include "model/CodePage.h"
#include "model/SafeFile.h"
#include "print/basExport.h"

namespace zol {

namespace {

constexpr int maxPixelsPerSquare = 200;
constexpr int defaultPixelsPerSquare = 10;

PictureFormat FormatOf(const std::string& fileName) {
    const std::string name = LowerCase(fileName);
    for (const char* ending : {".bmp", ".png", ".svg", ".pdf"}) {
        if (name.ends_with(ending)) {
            return PictureFormatOf(PathOf(fileName));
        }
    }
    if (fileName == "-") {
        return PictureFormat::Png;
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
    const PictureFormat format = FormatOf(output);

    Pattern pattern(environment.Context());
    environment.LoadPattern(pattern, line.Files()[0]);
    PatternPicture picture;
    picture.Source = &pattern;
    picture.Squares = AreaOf(line, pattern);
    picture.PixelsPerSquare = static_cast<int>(pixels.value_or(defaultPixelsPerSquare));
    picture.Paint = GridPaintOptions(environment.GetOptions(), TargetPicture);
    picture.Paint.StitchStyle = static_cast<int>(style.value_or(ShowColorSquares));
    picture.Paint.GridLines = line.Has("--grid");
    if (!picture.IsPossible()) {
        throw CommandFailed(ExportMemoryText);
    }
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly) ||
        !WritePicture(picture, {}, format, buffer, environment.Context().Progress)) {
        throw CommandFailed("the picture cannot be encoded");
    }
    const QByteArray& bytes = buffer.data();
    WriteOutput(output, {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                         static_cast<std::size_t>(bytes.size())});
}

} // namespace zol
