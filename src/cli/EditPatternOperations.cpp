// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/EditOperations.h"

#include <array>

#include "cli/CommandLine.h"

namespace zol {

namespace {

using Arguments = EditScript::Arguments;

BackStitchLine ReadLine(Arguments& a) {
    BackStitchLine line;
    for (std::int16_t* field :
         {&line.StartX, &line.StartY, &line.StartPos, &line.EndX, &line.EndY, &line.EndPos}) {
        *field = a.Short();
    }
    line.PaletteIndex = static_cast<std::uint8_t>(a.Byte());
    line.LineStyle = static_cast<std::uint8_t>(a.Byte());
    if (!IsPosition(line.StartPos) || !IsPosition(line.EndPos)) {
        throw CommandFailed("a position is not between 1 and 9");
    }
    return line;
}

template<std::string Pattern::*Property>
void SetProperty(EditScript& s, Arguments& a) {
    const std::string text = a.Text();
    a.ExpectEnd();
    s.GetPattern().*Property = text;
    s.GetPattern().SetChanged(true);
}

void Initialize(EditScript& s, Arguments& a) {
    const SizeWords size = ReadSize(a);
    a.ExpectEnd();
    s.GetPattern().Initialize(size.Width, size.Height, size.ClothCountX, size.ClothCountY);
}

/// The words of SetStitch and its like.
struct StitchWords {
    int x;
    int y;
    int kind;
    int floss;
    int position;
};

StitchWords ReadStitch(Arguments& a) {
    const int x = a.Number();
    const int y = a.Number();
    const int kind = a.Byte();
    const int floss = a.Byte();
    const int position = a.Number();
    a.ExpectEnd();
    return {x, y, kind, floss, position};
}

void SetStitch(EditScript& s, Arguments& a) {
    const StitchWords stitch = ReadStitch(a);
    s.GetPattern().SetStitch(stitch.x, stitch.y, stitch.kind, stitch.floss, stitch.position);
}

/// The twin alone; nothing while mirror mode is off.
void MirrorStitch(EditScript& s, Arguments& a) {
    const StitchWords stitch = ReadStitch(a);
    if (s.Mirror().IsMirrorActive()) {
        s.Mirror().MirrorStitch(s.GetPattern(), stitch.x, stitch.y, stitch.kind, stitch.floss,
                                stitch.position);
    }
}

void DeleteStitch(EditScript& s, Arguments& a) {
    const int x = a.Number();
    const int y = a.Number();
    const int kind = a.Byte();
    a.ExpectEnd();
    s.GetPattern().DeleteStitch(x, y, kind);
}

void SetFrenchKnotStyle(EditScript& s, Arguments& a) {
    const int style = a.Number();
    a.ExpectEnd();
    if (style < KnotNormal || style > KnotUpperRightDiagonal) {
        throw CommandFailed("there is no knot style " + std::to_string(style));
    }
    s.GetPattern().Context().FrenchKnotStyle = static_cast<std::uint8_t>(style);
}

void SetBackstitchLine(EditScript& s, Arguments& a) {
    const BackStitchLine line = ReadLine(a);
    a.ExpectEnd();
    s.GetPattern().SetBackstitchLine(line);
}

void AddBackStitchLine(EditScript& s, Arguments& a) {
    BackStitchLine line = ReadLine(a);
    a.ExpectEnd();
    s.GetPattern().AddBackStitchLine(line);
}

void RemoveBackStitchLine(EditScript& s, Arguments& a) {
    const int index = a.Number();
    a.ExpectEnd();
    s.GetPattern().RemoveBackStitchLine(index);
}

/// Changes the floss or style of one line.
template<void (Pattern::*Change)(int, int)>
void ChangeLine(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const int value = a.Byte();
    a.ExpectEnd();
    (s.GetPattern().*Change)(index, value);
}

void Changebackstitchline(EditScript& s, Arguments& a) {
    const int floss = a.Byte();
    const int picture = a.Byte();
    a.ExpectEnd();
    s.GetPattern().Changebackstitchline(floss, picture);
}

void FixBackStitchLines(EditScript& s, Arguments& a) {
    a.ExpectEnd();
    s.GetPattern().FixBackStitchLines();
}

void MirrorAxisOf(EditScript& s, Arguments& a) {
    const int axis = a.Number();
    a.ExpectEnd();
    if (axis == 0) {
        s.Mirror().ClearMirrorMode();
    } else if (axis == MirrorVertical || axis == MirrorHorizontal) {
        s.Mirror().SetMirrorMode(static_cast<MirrorAxis>(axis));
    } else {
        throw CommandFailed("there is no mirror axis " + std::to_string(axis));
    }
}

void MirrorCentre(EditScript& s, Arguments& a) {
    const int x = a.Number();
    const int y = a.Number();
    a.ExpectEnd();
    s.Mirror().SetMirrorCentre(x, y);
}

void AddPatternID(EditScript& s, Arguments& a) {
    const int id = a.Number();
    const std::string source = a.Text();
    a.ExpectEnd();
    s.GetPattern().AddPatternID(static_cast<std::uint32_t>(id), source);
}

constexpr std::array patternOperations{
    EditOperation{"Initialize", Initialize},
    EditOperation{"SetStitch", SetStitch},
    EditOperation{"DeleteStitch", DeleteStitch},
    EditOperation{"SetFrenchKnotStyle", SetFrenchKnotStyle},
    EditOperation{"SetBackstitchLine", SetBackstitchLine},
    EditOperation{"AddBackStitchLine", AddBackStitchLine},
    EditOperation{"RemoveBackStitchLine", RemoveBackStitchLine},
    EditOperation{"ChangeBSColor", ChangeLine<&Pattern::ChangeBSColor>},
    EditOperation{"ChangeBSStyle", ChangeLine<&Pattern::ChangeBSStyle>},
    EditOperation{"Changebackstitchline", Changebackstitchline},
    EditOperation{"FixBackStitchLines", FixBackStitchLines},
    EditOperation{"MirrorAxis", MirrorAxisOf},
    EditOperation{"MirrorCentre", MirrorCentre},
    EditOperation{"MirrorStitch", MirrorStitch},
    EditOperation{"AddPatternID", AddPatternID},
    EditOperation{"SetTitle", SetProperty<&Pattern::Title>},
    EditOperation{"SetAuthor", SetProperty<&Pattern::Author>},
    EditOperation{"SetCopyright", SetProperty<&Pattern::Copyright>},
    EditOperation{"SetFabric", SetProperty<&Pattern::Fabric>},
    EditOperation{"SetInstructions", SetProperty<&Pattern::Instructions>},
};

} // namespace

std::span<const EditOperation> EditPatternOperations() {
    return patternOperations;
}

} // namespace zol
