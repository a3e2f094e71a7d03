// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "settings/windows/OptionsPage.h"

namespace Ui {
class PatternOptionsPage;
}

namespace zol {

/// What new patterns begin with.
class PatternOptionsPage : public OptionsPage {
    Q_OBJECT

public:
    explicit PatternOptionsPage(const OptionsDesk& desk, QWidget* parent = nullptr);
    ~PatternOptionsPage() override;

    void FillOptionLists() override;

private:
    std::unique_ptr<Ui::PatternOptionsPage> m_ui;
};

} // namespace zol
