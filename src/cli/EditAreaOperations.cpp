// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/EditOperations.h"

#include <array>

#include "cli/CommandLine.h"
#include "grid/RowsAndColumns.h"
#include "grid/basEditBox.h"

namespace zol {

namespace {

using Arguments = EditScript::Arguments;

using RowsAndColumns::Band;

void MoveArea(EditScript& s, Arguments& a) {
    const SquareRect rect = ReadRect(a);
    const int deltaX = a.Number();
    const int deltaY = a.Number();
    a.ExpectEnd();
    s.GetPattern().MoveArea(rect.Left, rect.Top, rect.Right, rect.Bottom, deltaX, deltaY);
}

void Center(EditScript& s, Arguments& a) {
    const int mode = a.Number();
    a.ExpectEnd();
    s.GetPattern().Center(mode);
}

void ShrinkToFit(EditScript& s, Arguments& a) {
    a.ExpectEnd();
    s.GetPattern().ShrinkToFit();
}

void Resize(EditScript& s, Arguments& a) {
    const SizeWords size = ReadSize(a);
    a.ExpectEnd();
    s.GetPattern().Resize(size.Width, size.Height, size.ClothCountX, size.ClothCountY);
    s.GetPattern().SetChanged(true);
}

void Paint(EditScript& s, Arguments& a) {
    const int x = a.Number();
    const int y = a.Number();
    const int kind = a.Byte();
    const int newFloss = a.Byte();
    const int oldFloss = a.Byte();
    a.ExpectEnd();
    s.GetPattern().Paint(x, y, kind, newFloss, oldFloss);
}

void RemoveColor(EditScript& s, Arguments& a) {
    const int floss = a.Byte();
    const SquareRect rect = ReadRect(a);
    a.ExpectEnd();
    s.GetPattern().RemoveColor(floss, rect.Left, rect.Top, rect.Right, rect.Bottom);
}

void ChangeColor(EditScript& s, Arguments& a) {
    const int oldFloss = a.Byte();
    const int newFloss = a.Byte();
    const SquareRect rect = ReadRect(a);
    a.ExpectEnd();
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
    a.ExpectEnd();
    s.GetPattern().ClearUnusedPaletteColors();
}

void EraseArea(EditScript& s, Arguments& a) {
    const SquareRect rect = ReadRect(a);
    a.ExpectEnd();
    basEditBox::EraseArea(s.GetPattern(), rect);
}

template<Band Which, bool Deleting>
void SizeBand(EditScript& s, Arguments& a) {
    const int start = a.Number();
    const int howMany = a.Number();
    a.ExpectEnd();
    if (start < 0 || howMany < 0) {
        throw CommandFailed("a count cannot be negative");
    }
    const auto fault =
        RowsAndColumns::ValidateAddRows(s.GetPattern(), Which, Deleting, start, howMany);
    if (fault) {
        throw CommandFailed(fault->Text);
    }
    if (Deleting) {
        RowsAndColumns::Delete(s.GetPattern(), Which, start, howMany);
    } else {
        RowsAndColumns::Add(s.GetPattern(), Which, start, howMany);
    }
}

void Transform(EditScript& s, Arguments& a) {
    const SquareRect rect = ReadRect(a);
    const int operation = a.Number();
    a.ExpectEnd();
    if (operation < 1 || operation > 5) {
        throw CommandFailed("there is no transform " + std::to_string(operation));
    }
    basEditBox::TransformArea(s.GetPattern(), rect, static_cast<TransformOperation>(operation));
}

void CopyPaste(EditScript& s, Arguments& a) {
    const SquareRect rect = ReadRect(a);
    const int left = a.Number();
    const int top = a.Number();
    a.ExpectEnd();
    const Pattern content = basEditBox::PickUpSelection(s.GetPattern(), rect);
    basEditBox::WriteBack(content, s.GetPattern(), left, top);
}

constexpr std::array areaOperations{
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
    EditOperation{"Transform", Transform},
    EditOperation{"CopyPaste", CopyPaste},
};

} // namespace

std::span<const EditOperation> EditAreaOperations() {
    return areaOperations;
}

} // namespace zol
