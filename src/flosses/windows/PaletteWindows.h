// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "flosses/editing/AvailableFlosses.h"
#include "flosses/editing/PaletteDialogs.h"
#include "model/Doors.h"

class QWidget;

namespace zol {

class Palette;

/// The questions of the palette editor as windows over its own.
class PaletteWindows : public PaletteDialogs {
public:
    /// What the windows show; all of it outlives them.
    struct Desk {
        const Palette& Flosses;
        MessageDoor& Messages;
        SettingsDoor& Store;
        QWidget* Parent;
    };

    explicit PaletteWindows(const Desk& desk) : m_desk(desk) {}
    /// The catalogue that the editor shows; before anything is asked.
    void SetAvailable(const AvailableFlosses& available) { m_available = &available; }

    [[nodiscard]] RemovalAnswer AskRemoval(const RemovalQuestion& question) override;
    [[nodiscard]] std::optional<ReplacementAnswer>
    AskReplacement(const ReplacementQuestion& question) override;
    [[nodiscard]] std::optional<CustomFloss> AskCustomFloss(bool maySave) override;
    [[nodiscard]] std::optional<std::string> AskSymbol(int entry,
                                                       const FlossLook& newFloss) override;

private:
    Desk m_desk;
    const AvailableFlosses* m_available = nullptr;
};

} // namespace zol
