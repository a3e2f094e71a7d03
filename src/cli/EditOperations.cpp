// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/EditOperations.h"

#include <algorithm>
#include <cstdint>

namespace zol {

SquareRect ReadRect(EditScript::Arguments& a) {
    const int left = a.Number();
    const int top = a.Number();
    const int right = a.Number();
    const int bottom = a.Number();
    return {left, top, right, bottom};
}

SizeWords ReadSize(EditScript::Arguments& a) {
    const int width = a.Number();
    const int height = a.Number();
    const int clothCountX = a.Number(INT16_MIN, INT16_MAX);
    const int clothCountY = a.Number(INT16_MIN, INT16_MAX);
    return {width, height, clothCountX, clothCountY};
}

const EditOperation* FindEditOperation(std::string_view name) {
    for (const auto operations :
         {EditPatternOperations(), EditAreaOperations(), EditPaletteOperations()}) {
        const auto found = std::find_if(operations.begin(), operations.end(),
                                        [name](const auto& op) { return op.Name == name; });
        if (found != operations.end()) {
            return &*found;
        }
    }
    return nullptr;
}

} // namespace zol
