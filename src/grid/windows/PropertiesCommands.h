// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>

#include "grid/windows/Workshop.h"
#include "model/PatternInfo.h"
#include "model/windows/frmPatternInfo.h"

namespace zol {

class MainCommands;

/// The properties of the design that stands open, changed as one undo step, and those of a new
/// pattern.
class PropertiesCommands {
public:
    /// What the window does about a change.
    struct Followers {
        std::function<void()> EndTool; ///< before: what floats over the design is let go
        std::function<void()> Changed; ///< after: size, cloth and texts may be others
    };

    /// `window` is what the dialog stands over; it outlives this.
    PropertiesCommands(MainCommands& commands, const Workshop& workshop, QWidget& window,
                       Followers followers);

    /// Nothing means cancelled.
    [[nodiscard]] std::optional<PatternInfo> AskNewPattern(const PatternInfo& defaults);

private:
    [[nodiscard]] std::optional<PatternInfo> Ask(frmPatternInfo::Uses use,
                                                 const PatternInfo& present);
    void ChangeProperties();
    void GiveToDesign(const PatternInfo& wanted);

    Workshop m_workshop;
    QWidget& m_window;
    Followers m_followers;
};

} // namespace zol
