// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/EditOperations.h"

#include <algorithm>
#include <array>

#include "cli/CommandLine.h"
#include "grid/RowsAndColumns.h"
#include "grid/basEditBox.h"

namespace zol {

namespace {

using Arguments = EditScript::Arguments;

/// Every operation reads its arguments before it acts, so a wrong line changes nothing.
void ExpectEnd(const Arguments& arguments) {
    if (!arguments.IsEmpty()) {
        throw CommandFailed("there is an argument too many");
    }
}

SquareRect ReadRect(Arguments& a) {
    const int left = a.Number();
    const int top = a.Number();
    const int right = a.Number();
    const int bottom = a.Number();
    return {left, top, right, bottom};
}

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
    ExpectEnd(a);
    s.GetPattern().*Property = text;
    s.GetPattern().SetChanged(true);
}

// --- Stitches and lines ------------------------------------------------------------------

void Initialize(EditScript& s, Arguments& a) {
    const SquareRect size = ReadRect(a);
    ExpectEnd(a);
    s.GetPattern().Initialize(size.Left, size.Top, size.Right, size.Bottom);
}

void SetStitch(EditScript& s, Arguments& a) {
    const int x = a.Number();
    const int y = a.Number();
    const int kind = a.Byte();
    const int floss = a.Byte();
    const int position = a.Number();
    ExpectEnd(a);
    s.GetPattern().SetStitch(x, y, kind, floss, position);
}

void MirrorStitch(EditScript& s, Arguments& a) {
    const int x = a.Number();
    const int y = a.Number();
    const int kind = a.Byte();
    const int floss = a.Byte();
    const int position = a.Number();
    ExpectEnd(a);
    if (s.Mirror().IsMirrorActive()) {
        s.Mirror().MirrorStitch(s.GetPattern(), x, y, kind, floss, position);
    }
}

void DeleteStitch(EditScript& s, Arguments& a) {
    const int x = a.Number();
    const int y = a.Number();
    const int kind = a.Byte();
    ExpectEnd(a);
    s.GetPattern().DeleteStitch(x, y, kind);
}

void SetFrenchKnotStyle(EditScript& s, Arguments& a) {
    const int style = a.Number();
    ExpectEnd(a);
    if (style < KnotNormal || style > KnotUpperRightDiagonal) {
        throw CommandFailed("there is no knot style " + std::to_string(style));
    }
    s.GetPattern().Context().FrenchKnotStyle = static_cast<std::uint8_t>(style);
}

void SetBackstitchLine(EditScript& s, Arguments& a) {
    const BackStitchLine line = ReadLine(a);
    ExpectEnd(a);
    s.GetPattern().SetBackstitchLine(line);
}

void AddBackStitchLine(EditScript& s, Arguments& a) {
    BackStitchLine line = ReadLine(a);
    ExpectEnd(a);
    s.GetPattern().AddBackStitchLine(line);
}

void RemoveBackStitchLine(EditScript& s, Arguments& a) {
    const int index = a.Number();
    ExpectEnd(a);
    s.GetPattern().RemoveBackStitchLine(index);
}

template<void (Pattern::*Change)(int, int)>
void ChangeTwo(EditScript& s, Arguments& a) {
    const int first = a.Number();
    const int second = a.Number();
    ExpectEnd(a);
    (s.GetPattern().*Change)(first, second);
}

void FixBackStitchLines(EditScript& s, Arguments& a) {
    ExpectEnd(a);
    s.GetPattern().FixBackStitchLines();
}

// --- Areas -------------------------------------------------------------------------------

void MoveArea(EditScript& s, Arguments& a) {
    const SquareRect rect = ReadRect(a);
    const int deltaX = a.Number();
    const int deltaY = a.Number();
    ExpectEnd(a);
    s.GetPattern().MoveArea(rect.Left, rect.Top, rect.Right, rect.Bottom, deltaX, deltaY);
}

void Center(EditScript& s, Arguments& a) {
    const int mode = a.Number();
    ExpectEnd(a);
    s.GetPattern().Center(mode);
}

void ShrinkToFit(EditScript& s, Arguments& a) {
    ExpectEnd(a);
    s.GetPattern().ShrinkToFit();
}

void Resize(EditScript& s, Arguments& a) {
    const SquareRect size = ReadRect(a);
    ExpectEnd(a);
    s.GetPattern().Resize(size.Left, size.Top, size.Right, size.Bottom);
    s.GetPattern().SetChanged(true);
}

void Paint(EditScript& s, Arguments& a) {
    const int x = a.Number();
    const int y = a.Number();
    const int kind = a.Byte();
    const int newFloss = a.Byte();
    const int oldFloss = a.Byte();
    ExpectEnd(a);
    s.GetPattern().Paint(x, y, kind, newFloss, oldFloss);
}

void RemoveColor(EditScript& s, Arguments& a) {
    const int floss = a.Byte();
    const SquareRect rect = ReadRect(a);
    ExpectEnd(a);
    s.GetPattern().RemoveColor(floss, rect.Left, rect.Top, rect.Right, rect.Bottom);
}

void ChangeColor(EditScript& s, Arguments& a) {
    const int oldFloss = a.Byte();
    const int newFloss = a.Byte();
    const SquareRect rect = ReadRect(a);
    ExpectEnd(a);
    s.GetPattern().ChangeColor(oldFloss, newFloss, rect.Left, rect.Top, rect.Right, rect.Bottom);
}

void MapPalette(EditScript& s, Arguments& a) {
    std::vector<std::uint8_t> map{0};
    while (!a.IsEmpty()) {
        map.push_back(static_cast<std::uint8_t>(a.Byte()));
    }
    s.GetPattern().MapPalette(map);
}

void ClearUnusedPaletteColors(EditScript& s, Arguments& a) {
    ExpectEnd(a);
    s.GetPattern().ClearUnusedPaletteColors();
}

void EraseArea(EditScript& s, Arguments& a) {
    const SquareRect rect = ReadRect(a);
    ExpectEnd(a);
    basEditBox::EraseArea(s.GetPattern(), rect);
}

template<RowsAndColumns::Band Band, bool Deleting>
void SizeBand(EditScript& s, Arguments& a) {
    const int start = a.Number();
    const int howMany = a.Number();
    ExpectEnd(a);
    if (start < 0 || howMany < 0) {
        throw CommandFailed("a count cannot be negative");
    }
    const auto fault =
        RowsAndColumns::ValidateAddRows(s.GetPattern(), Band, Deleting, start, howMany);
    if (fault) {
        throw CommandFailed(fault->Text);
    }
    if (Deleting) {
        RowsAndColumns::Delete(s.GetPattern(), Band, start, howMany);
    } else {
        RowsAndColumns::Add(s.GetPattern(), Band, start, howMany);
    }
}

void MirrorAxisOf(EditScript& s, Arguments& a) {
    const int axis = a.Number();
    ExpectEnd(a);
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
    ExpectEnd(a);
    s.Mirror().SetMirrorCentre(x, y);
}

void Transform(EditScript& s, Arguments& a) {
    const SquareRect rect = ReadRect(a);
    const int operation = a.Number();
    ExpectEnd(a);
    if (operation < 1 || operation > 5) {
        throw CommandFailed("there is no transform " + std::to_string(operation));
    }
    basEditBox::TransformArea(s.GetPattern(), rect, static_cast<TransformOperation>(operation));
}

void CopyPaste(EditScript& s, Arguments& a) {
    const SquareRect rect = ReadRect(a);
    const int left = a.Number();
    const int top = a.Number();
    ExpectEnd(a);
    const Pattern content = basEditBox::PickUpSelection(s.GetPattern(), rect);
    basEditBox::WriteBack(content, s.GetPattern(), left, top);
}

// --- Palette -----------------------------------------------------------------------------

void AddPaletteEntry(EditScript& s, Arguments& a) {
    const int rgb = a.Number();
    const std::string id = a.Text();
    const std::string description = a.Text();
    const std::string manufacturer = a.Text();
    const std::string symbol = a.Text();
    const int strands = a.Number();
    const int backStrands = a.Number();
    const int tag = a.Number();
    const int masterID = a.Number();
    const int lineStyle = a.Byte();
    const std::string longManufacturer = a.Text();
    ExpectEnd(a);
    Palette& palette = s.GetPattern().GetPalette();
    const int status =
        palette.AddPaletteEntry(static_cast<Colour>(rgb), id, description, manufacturer, symbol,
                                strands, backStrands, tag, masterID, lineStyle, longManufacturer);
    if (status != PaletteAdded) {
        throw CommandFailed("the floss was not added");
    }
}

void ChangePaletteEntry(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const int rgb = a.Number();
    const std::string id = a.Text();
    const std::string description = a.Text();
    const std::string manufacturer = a.Text();
    const int masterID = a.Number();
    const int strands = a.Number();
    const int backStrands = a.Number();
    ExpectEnd(a);
    s.GetPattern().GetPalette().ChangePaletteEntry(index, static_cast<Colour>(rgb), id, description,
                                                   manufacturer, masterID, strands, backStrands);
}

void RemovePaletteEntry(EditScript& s, Arguments& a) {
    const int index = a.Number();
    ExpectEnd(a);
    s.GetPattern().GetPalette().RemovePaletteEntry(index);
}

void BlendFloss(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const int rgb = a.Number();
    const std::string id = a.Text();
    const std::string manufacturer = a.Text();
    const std::string description = a.Text();
    const int masterID = a.Number();
    ExpectEnd(a);
    s.GetPattern().GetPalette().BlendFloss(index, static_cast<Colour>(rgb), id, manufacturer,
                                           description, masterID);
}

void RemoveBlend(EditScript& s, Arguments& a) {
    const int index = a.Number();
    ExpectEnd(a);
    s.GetPattern().GetPalette().RemoveBlend(index);
}

void SortPalette(EditScript& s, Arguments& a) {
    const int order = a.Number();
    ExpectEnd(a);
    s.GetPattern().GetPalette().Sort(order);
}

void SetFlossSymbol(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const std::string symbol = a.Text();
    ExpectEnd(a);
    s.GetPattern().GetPalette().SetFlossSymbol(index, symbol);
}

void SetFlossDesc(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const std::string text = a.Text();
    ExpectEnd(a);
    s.GetPattern().GetPalette().SetFlossDesc(index, text);
}

void AddPatternID(EditScript& s, Arguments& a) {
    const int id = a.Number();
    const std::string source = a.Text();
    ExpectEnd(a);
    s.GetPattern().AddPatternID(static_cast<std::uint32_t>(id), source);
}

using RowsAndColumns::Band;

constexpr std::array operations{
    EditOperation{"Initialize", Initialize},
    EditOperation{"SetStitch", SetStitch},
    EditOperation{"DeleteStitch", DeleteStitch},
    EditOperation{"SetFrenchKnotStyle", SetFrenchKnotStyle},
    EditOperation{"SetBackstitchLine", SetBackstitchLine},
    EditOperation{"AddBackStitchLine", AddBackStitchLine},
    EditOperation{"RemoveBackStitchLine", RemoveBackStitchLine},
    EditOperation{"ChangeBSColor", ChangeTwo<&Pattern::ChangeBSColor>},
    EditOperation{"ChangeBSStyle", ChangeTwo<&Pattern::ChangeBSStyle>},
    EditOperation{"Changebackstitchline", ChangeTwo<&Pattern::Changebackstitchline>},
    EditOperation{"FixBackStitchLines", FixBackStitchLines},
    EditOperation{"MoveArea", MoveArea},
    EditOperation{"Center", Center},
    EditOperation{"ShrinkToFit", ShrinkToFit},
    EditOperation{"Resize", Resize},
    EditOperation{"Paint", Paint},
    EditOperation{"RemoveColor", RemoveColor},
    EditOperation{"ChangeColor", ChangeColor},
    EditOperation{"MapPalette", MapPalette},
    EditOperation{"ClearUnusedPaletteColors", ClearUnusedPaletteColors},
    EditOperation{"EraseArea", EraseArea},
    EditOperation{"AddRows", SizeBand<Band::Rows, false>},
    EditOperation{"AddColumns", SizeBand<Band::Columns, false>},
    EditOperation{"DeleteRows", SizeBand<Band::Rows, true>},
    EditOperation{"DeleteColumns", SizeBand<Band::Columns, true>},
    EditOperation{"MirrorAxis", MirrorAxisOf},
    EditOperation{"MirrorCentre", MirrorCentre},
    EditOperation{"MirrorStitch", MirrorStitch},
    EditOperation{"Transform", Transform},
    EditOperation{"CopyPaste", CopyPaste},
    EditOperation{"AddPaletteEntry", AddPaletteEntry},
    EditOperation{"ChangePaletteEntry", ChangePaletteEntry},
    EditOperation{"RemovePaletteEntry", RemovePaletteEntry},
    EditOperation{"BlendFloss", BlendFloss},
    EditOperation{"RemoveBlend", RemoveBlend},
    EditOperation{"SortPalette", SortPalette},
    EditOperation{"SetFlossSymbol", SetFlossSymbol},
    EditOperation{"SetFlossDesc", SetFlossDesc},
    EditOperation{"AddPatternID", AddPatternID},
    EditOperation{"SetTitle", SetProperty<&Pattern::Title>},
    EditOperation{"SetAuthor", SetProperty<&Pattern::Author>},
    EditOperation{"SetCopyright", SetProperty<&Pattern::Copyright>},
    EditOperation{"SetFabric", SetProperty<&Pattern::Fabric>},
    EditOperation{"SetInstructions", SetProperty<&Pattern::Instructions>},
};

} // namespace

const EditOperation* FindEditOperation(std::string_view name) {
    const auto* found = std::find_if(operations.begin(), operations.end(),
                                     [name](const auto& op) { return op.Name == name; });
    return found == operations.end() ? nullptr : found;
}

} // namespace zol
