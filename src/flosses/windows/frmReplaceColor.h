// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

#include "flosses/editing/AvailableFlosses.h"
#include "flosses/editing/PaletteDialogs.h"

namespace Ui {
class frmReplaceColor;
}

namespace zol {

class Palette;
class SettingsDoor;

/// Asks what takes the place of a floss: another one of the palette, or the selected one of the
/// catalogue.
class frmReplaceColor : public QDialog {
    Q_OBJECT

public:
    frmReplaceColor(const Palette& palette, const AvailableFlosses& available,
                    const ReplacementQuestion& question, SettingsDoor& store,
                    QWidget* parent = nullptr);
    ~frmReplaceColor() override;

    /// What was chosen, for a window that was accepted.
    [[nodiscard]] ReplacementAnswer Answer() const;

private:
    /// The other entries, in the display order.
    void LoadImageList(const Palette& palette, int except);
    void ShowAvailable(const AvailableFlosses& available, int row);
    void EnableParts();

    std::unique_ptr<Ui::frmReplaceColor> m_ui;
};

} // namespace zol
