// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>

#include "flosses/windows/frmSymbols.h"
#include "grid/tools/ToolDesk.h"
#include "grid/windows/Workshop.h"

class QWidget;

namespace zol {

class DrawModes;
class MainCommands;

/// The palette editor on the design that stands open: what is done there is one undo step. Also
/// lets every palette of the program ask for the symbol of a new floss.
class PaletteCommands {
public:
    /// What the window does about it.
    struct Followers {
        std::function<void()> EndTool; ///< before: a line under way is let go
        std::function<void()> Changed; ///< after: stitches and flosses may be others
    };

    /// `window` is what the editor stands over; all of it outlives this.
    PaletteCommands(MainCommands& commands, const Workshop& workshop, DrawModes& modes,
                    const DrawingChoice& choice, QWidget& window, Followers followers);
    ~PaletteCommands();
    PaletteCommands(const PaletteCommands&) = delete;
    PaletteCommands& operator=(const PaletteCommands&) = delete;

private:
    void EditPalette();
    /// The selected area, if there is one. What floats over the design is written into it first, as
    /// its stitches are to be counted and changed with the others; the area stays selected.
    [[nodiscard]] std::optional<SquareRect> TakeArea();

    Workshop m_workshop;
    DrawModes& m_modes;
    const DrawingChoice& m_choice;
    QWidget& m_window;
    Followers m_followers;
    SymbolWindow m_symbols;
};

} // namespace zol
