// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string_view>

#include "cli/EditScript.h"
#include "model/ZOLTypes.h"

namespace zol {

/// One operation of a script by its name. It reads all its arguments before it acts, so that a
/// wrong line changes nothing.
struct EditOperation {
    std::string_view Name;
    void (*Run)(EditScript& script, EditScript::Arguments& arguments);
};

/// The operation of that name, or null.
[[nodiscard]] const EditOperation* FindEditOperation(std::string_view name);

// The operations by what they work on: stitches, lines and properties; many squares at once;
// the palette.
[[nodiscard]] std::span<const EditOperation> EditPatternOperations();
[[nodiscard]] std::span<const EditOperation> EditAreaOperations();
[[nodiscard]] std::span<const EditOperation> EditPaletteOperations();

/// Four numbers as a rectangle.
[[nodiscard]] SquareRect ReadRect(EditScript::Arguments& arguments);

/// A pattern's width and height, and stitches an inch both ways.
struct SizeWords {
    int Width;
    int Height;
    int ClothCountX;
    int ClothCountY;
};
[[nodiscard]] SizeWords ReadSize(EditScript::Arguments& arguments);

} // namespace zol
