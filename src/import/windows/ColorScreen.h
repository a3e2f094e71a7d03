// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "import/Adjustments.h"
#include "import/ColorAdjusting.h"
#include "import/windows/ImportDesk.h"
#include "import/windows/WizardScreen.h"
#include "windowkit/LatestJob.h"

namespace Ui {
class ColorScreen;
}

namespace zol {

class JobStatus;

/// The screen that adjusts colors: the picture as it was last applied, and beside it what the
/// slider makes of it, worked out beside the window.
class ColorScreen : public WizardScreen {
    Q_OBJECT

public:
    ColorScreen(ImportDesk& desk, QWidget* parent);
    ~ColorScreen() override;

    [[nodiscard]] QString Instruction() const override;
    void DisplayScreen(bool keepPicture) override;
    [[nodiscard]] bool ValidateScreen() override;
    void Suspend() override;

private:
    void SetUpViews();
    void ConnectControls();
    [[nodiscard]] const Adjustments::Item& Item() const;
    void ChooseAdjustment();
    void SetSlider(int value);
    void Adjust();
    void TakeAdjusted(SharedPicture adjusted, int value);
    void ApplyColor();
    void UndoColor();
    void ResetColor();
    void StartAgain();
    void KeepShown();
    void ShowPictures();
    void ShowButtons();

    ImportDesk& m_desk;
    std::unique_ptr<Ui::ColorScreen> m_ui;
    ColorAdjusting m_adjusting;
    int m_shownValue = 0; ///< of the slider, for what is shown as new
    JobStatus* m_status = nullptr;
    LatestJob m_job; ///< last, so that it ends before what it delivers to
};

} // namespace zol
