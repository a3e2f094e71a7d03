// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "model/PatternInfo.h"

namespace zol {

/// What the user wants of a new pattern.
using NewPattern = PatternInfo;

/// What the file commands ask of the window. The window finds what stands open in the
/// DesignHolder.
class FileCommandsView {
public:
    virtual ~FileCommandsView() = default;

    /// The wait cursor on or off; calls come in pairs and may nest.
    virtual void SetBusy(bool busy) = 0;
    /// What floats over the grid lands in the design: what is asked about and saved is what the
    /// user sees.
    virtual void SettleFloating() {}
    /// Before another design comes onto the grid: strokes, selections and floating blocks are let
    /// go, not written back.
    virtual void ResetTools() = 0;
    /// Another design stands open: scroll to square 1, 1 and show grid, rulers, palette strip and
    /// the menus' enabling anew.
    virtual void ShowDesign() = 0;
    /// `name` is what follows the program's title and " - ".
    virtual void SetWindowTitle(const std::string& name) = 0;
    /// For the status bar: the design's title, its size and its flosses.
    virtual void ShowSummary(const std::string& text) = 0;

    /// Lets the user choose the properties of a new pattern; nothing means cancelled. A window
    /// without the dialog answers the defaults.
    [[nodiscard]] virtual std::optional<NewPattern> AskNewPattern(const NewPattern& defaults) = 0;

    [[nodiscard]] virtual bool IsInTextMode() const { return false; }
    /// Leaves text mode and discards the text in progress.
    virtual void LeaveTextMode() {}
};

} // namespace zol
