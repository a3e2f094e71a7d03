// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>

#include <array>
#include <memory>
#include <vector>

#include "settings/windows/OptionsPage.h"

class QLineEdit;

namespace Ui {
class PrintOptionsPage;
}

namespace zol {

/// Printouts: styles, lines, margins, fonts, and what the color key holds.
class PrintOptionsPage : public OptionsPage {
    Q_OBJECT

public:
    explicit PrintOptionsPage(const OptionsDesk& desk, QWidget* parent = nullptr);
    ~PrintOptionsPage() override;

    void FillOptionLists() override;
    void LoadOptionControls(const Options& options) override;
    void ApplyOptionControls(Options& options) const override;
    /// Says the unit, and turns what the margin fields say into it.
    void ChangeUnits(bool inches);

private:
    struct Margin {
        QLineEdit* Field;
        double Options::*Member;
    };

    [[nodiscard]] std::vector<ColorChoice> ColorChoices() const;
    [[nodiscard]] std::array<Margin, 4> MarginFields() const;
    void ChooseFont(QFont& font);
    void ShowFonts();
    void ShowUnit();

    std::unique_ptr<Ui::PrintOptionsPage> m_ui;
    bool m_inches = true;
    QFont m_infoFont;
    QFont m_symbolFont;
};

} // namespace zol
