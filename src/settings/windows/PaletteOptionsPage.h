// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include "settings/windows/OptionsPage.h"

namespace Ui {
class PaletteOptionsPage;
}

namespace zol {

/// The floss family, the families to map to, and the palette strip.
class PaletteOptionsPage : public OptionsPage {
    Q_OBJECT

public:
    explicit PaletteOptionsPage(const OptionsDesk& desk, QWidget* parent = nullptr);
    ~PaletteOptionsPage() override;

    void FillOptionLists() override;
    void LoadOptionControls(const Options& options) override;
    void ApplyOptionControls(Options& options) const override;

private:
    /// Offers every catalogue but that of the family chosen, ticked if the option names it.
    void SetupMappingList(const std::string& mapped);
    [[nodiscard]] std::string MapFlosses() const;
    void ChangeFamily();

    std::unique_ptr<Ui::PaletteOptionsPage> m_ui;
    std::string m_mapped; ///< the option that the list was made from
    std::string m_hidden; ///< the family's own file, which the list leaves out
};

} // namespace zol
