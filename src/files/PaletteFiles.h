// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>

#include "flosses/Palette.h"
#include "grid/tools/Undo.h"
#include "model/Doors.h"
#include "model/OpenDesign.h"
#include "model/ProgramContext.h"
#include "settings/Options.h"

namespace zol {

/// What PaletteFiles works with; all of it outlives it.
struct PaletteFilesDesk {
    DesignHolder& Open;
    ProgramContext& Context;
    const Options& Settings;
    MessageDoor& Messages;
    FileDoor& Files;
    Undo& Steps;
};

/// Palettes as files of their own: saved, loaded into a design without stitches, and kept as what
/// new patterns begin with.
class PaletteFiles {
public:
    explicit PaletteFiles(const PaletteFilesDesk& desk) : m_desk(desk) {}

    /// Whether nothing of the design holds a floss: no stitch, no knot, no line.
    [[nodiscard]] static bool IsWithoutStitches(const Pattern& design);

    /// Asks for a name. True if the palette was saved.
    bool SavePalette();
    /// Asks for a file and takes its palette, as one undo step. True if the palette is another.
    bool LoadPalette();
    /// Patterns of this run and of later ones begin with the palette of what stands open.
    bool SaveDefaultPalette();

private:
    [[nodiscard]] FileChoice Choice(const char* title) const;
    /// A file of any form, sorted as the options say. Nothing if it is none, which is told.
    [[nodiscard]] std::optional<Palette> ReadPalette(const std::filesystem::path& file) const;
    bool SaveTo(const std::filesystem::path& file);

    PaletteFilesDesk m_desk;
    std::filesystem::path m_folder; ///< where the last dialog was
};

} // namespace zol
