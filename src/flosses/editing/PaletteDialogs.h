// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "model/ZOLTypes.h"

namespace zol {

/// A floss that is about to enter a palette, as far as a window shows it.
struct FlossLook {
    Colour RGB = 0;
    std::string Description; ///< number and name
};

/// A floss in use is about to leave the palette.
struct RemovalQuestion {
    int Entry = 0;
    int Closest = 0;  ///< the entry of the nearest colour
    std::string Text; ///< how many stitches there are
};
enum class RemovalAnswer { Cancel, ReplaceStitches, DeleteStitches };

/// An entry is about to give way to another floss.
struct ReplacementQuestion {
    int Entry = 0;
    int AvailableRow = 0; ///< 0: the catalogue offers none
};
struct ReplacementAnswer {
    int PaletteEntry = 0; ///< 0: the selected floss of the catalogue
};

/// A floss that the user has mixed.
struct CustomFloss {
    Colour RGB = 0;
    std::string FlossID;
    std::string Description;
    bool SaveToMyColors = false;
};

/// The questions of the palette editor that take more than a message box. Nothing means that the
/// user cancelled.
class PaletteDialogs {
public:
    virtual ~PaletteDialogs() = default;
    [[nodiscard]] virtual RemovalAnswer AskRemoval(const RemovalQuestion& question) = 0;
    [[nodiscard]] virtual std::optional<ReplacementAnswer>
    AskReplacement(const ReplacementQuestion& question) = 0;
    /// `maySave`: flosses can be written to "My Colors".
    [[nodiscard]] virtual std::optional<CustomFloss> AskCustomFloss(bool maySave) = 0;
    /// For an entry of the palette, or with entry 0 for a new one that looks like that. The
    /// answer's first character is the symbol.
    [[nodiscard]] virtual std::optional<std::string> AskSymbol(int entry,
                                                               const FlossLook& newFloss) = 0;
};

} // namespace zol
