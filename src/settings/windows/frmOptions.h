// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>
#include <vector>

#include "settings/windows/OptionsDesk.h"

namespace Ui {
class frmOptions;
}

namespace zol {

class GeneralOptionsPage;
class OptionsPage;

/// Edits the options. Apply and OK change the running program; only OK with "Save as defaults"
/// ticked writes them to the store.
class frmOptions : public QDialog {
    Q_OBJECT

public:
    /// The pages in the order of their tabs.
    enum Page {
        DesignGridPage,
        PrintoutsPage,
        PatternPropertiesPage,
        FlossPalettePage,
        GeneralPage
    };

    explicit frmOptions(OptionsDesk desk, QWidget* parent = nullptr);
    ~frmOptions() override;

    void ShowPage(Page page);

    void accept() override;

private:
    void AddPages();
    void ConnectUnits(GeneralOptionsPage& general);
    void FillOptionLists();
    void LoadOptionControls();
    void ApplyOptionControls();
    void SaveOptionControls();
    void Apply();

    std::unique_ptr<Ui::frmOptions> m_ui;
    OptionsDesk m_desk;
    std::vector<OptionsPage*> m_pages;
};

} // namespace zol
