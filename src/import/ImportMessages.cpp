// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportMessages.h"

#include "model/CodePage.h"

namespace zol::ImportMessages {

std::string Reducing(std::string_view colorWord) {
    return "Reducing " + std::string(colorWord) + "s";
}

std::string Result(int stitches, int flosses) {
    return std::to_string(stitches) + (stitches == 1 ? " stitch in " : " stitches in ") +
           std::to_string(flosses) + (flosses == 1 ? " floss" : " flosses");
}

std::string SharedSymbols(int flosses) {
    return std::to_string(flosses) + " flosses share their symbol with another one";
}

std::optional<std::string> ValidateSize(double width, double height) {
    if (!(width > 0)) {
        return std::string(WidthTooSmall);
    }
    if (!(height > 0)) {
        return std::string(HeightTooSmall);
    }
    return std::nullopt;
}

std::optional<std::string> ValidateMaxColors(int maxColors, std::optional<int> paletteCount,
                                             std::string_view colorWord) {
    const std::string word = LowerCase(colorWord);
    if (maxColors <= 0) {
        return "Pattern must contain at least one " + word;
    }
    if (maxColors > MaxImportColors) {
        return "Pattern can contain no more than " + std::to_string(MaxImportColors) + " " + word +
               "s";
    }
    if (paletteCount && maxColors < *paletteCount) {
        return "You must import to at least the " + std::to_string(*paletteCount) + " " + word +
               "s in your current palette";
    }
    return std::nullopt;
}

} // namespace zol::ImportMessages
