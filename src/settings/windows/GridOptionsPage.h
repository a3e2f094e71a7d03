// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include "settings/windows/OptionsPage.h"

namespace Ui {
class GridOptionsPage;
}

namespace zol {

/// The design grid on the screen: how stitches, cloth and lines are shown and drawn.
class GridOptionsPage : public OptionsPage {
    Q_OBJECT

public:
    explicit GridOptionsPage(const OptionsDesk& desk, QWidget* parent = nullptr);
    ~GridOptionsPage() override;

    void FillOptionLists() override;

private:
    [[nodiscard]] std::vector<ColorChoice> ColorChoices() const;

    std::unique_ptr<Ui::GridOptionsPage> m_ui;
};

} // namespace zol
