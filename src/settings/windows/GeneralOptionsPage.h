// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "settings/windows/OptionsPage.h"

namespace Ui {
class GeneralOptionsPage;
}

namespace zol {

/// Units, the parts of the main window, tips and updates.
class GeneralOptionsPage : public OptionsPage {
    Q_OBJECT

public:
    explicit GeneralOptionsPage(const OptionsDesk& desk, QWidget* parent = nullptr);
    ~GeneralOptionsPage() override;

    void FillOptionLists() override;
    void LoadOptionControls(const Options& options) override;
    void ApplyOptionControls(Options& options) const override;
    [[nodiscard]] bool UsesInches() const;

Q_SIGNALS:
    void UnitsChanged(bool inches);

private:
    std::unique_ptr<Ui::GeneralOptionsPage> m_ui;
};

} // namespace zol
