// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "flosses/AvailColors.h"
#include "flosses/Palette.h"
#include "import/ImportCandidates.h"
#include "import/ImportStatus.h"
#include "import/Picture.h"

namespace zol {

class Pattern;
class ProgressDoor;
struct ProgramContext;

/// Where the candidates behind the locked ones come from.
struct FlossSource {
    enum class Kind { None, FlossList, CurrentPalette, SavedPalette };

    Kind From = Kind::None;
    const AvailColors* Catalogue = nullptr; ///< of a floss list
    const Palette* Flosses = nullptr;       ///< of a palette
};

/// Where the picture goes: over the whole of a new pattern, or into the edit box of the old one.
struct ImportTarget {
    bool UseEditBox = false;
    int EditBoxLeft = 0; ///< from 0
    int EditBoxTop = 0;
    int ClothCountX = 14; ///< of a new pattern
    int ClothCountY = 14;
};

/// What an import made.
struct ImportFigures {
    struct FlossUse {
        int PaletteIndex = 0;
        int Stitches = 0;

        friend bool operator==(const FlossUse&, const FlossUse&) = default;
    };

    /// The flosses that were stitched, by their numbers.
    std::vector<FlossUse> Flosses;
    int Stitches = 0;
    /// Flosses of the palette whose symbol another one has too.
    int FlossesSharingSymbol = 0;
};

/// Gives the survivors of a reduction a place in a palette that already holds the locked ones.
/// `palette` comes as it was before the import.
void BuildImportPalette(const ProgramContext& context, const ImportCandidates& candidates,
                        const FlossSource& source, bool useEditBox, Palette& palette);

/// Writes a recoloured picture as full stitches. Nothing of the pattern changes unless it is
/// done: all squares are worked out before `beforeChange` is called and the first one is set.
/// `beforeChange` may still add flosses to the pattern.
[[nodiscard]] ImportStatus WritePattern(const Picture& preview, const ImportCandidates& candidates,
                                        const FlossSource& source, const ImportTarget& target,
                                        ProgressDoor* progress, Pattern& pattern,
                                        ImportFigures& figures,
                                        const std::function<void()>& beforeChange = {});

} // namespace zol
