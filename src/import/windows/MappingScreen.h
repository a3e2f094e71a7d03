// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include <memory>
#include <vector>

#include "import/FlossChoices.h"
#include "import/windows/ImportDesk.h"
#include "import/windows/WizardScreen.h"
#include "windowkit/LatestJob.h"

namespace Ui {
class MappingScreen;
}

namespace zol {

class PreviewFlossModel;

/// The screen that maps the picture to flosses: which ones and how many, and beside the picture
/// how it will be stitched, with the flosses used.
///
/// The import's session stays on the window's thread. A preview works on a copy of what it reads
/// and is handed to the session when it is done, which does not take it if the flosses are others
/// by then.
class MappingScreen : public WizardScreen {
    Q_OBJECT

public:
    MappingScreen(ImportDesk& desk, QWidget* parent);
    ~MappingScreen() override;

    [[nodiscard]] QString Instruction() const override;
    void DisplayScreen(bool keepPicture) override;
    [[nodiscard]] bool ValidateScreen() override;
    void Suspend() override;
    void Resume() override;

private:
    void SetUpViews();
    void SetUpFlosses();
    void ConnectControls();
    void FillFamilies();
    void ChooseFlosses();
    [[nodiscard]] bool LoadChoice(const FlossChoice& line);
    void TakeImage();
    [[nodiscard]] int MaxColors() const;
    [[nodiscard]] bool CheckFields();
    void PreviewPattern();
    [[nodiscard]] bool IsLive() const;
    void PreviewSoon();
    [[nodiscard]] QString EmptyText() const;
    void PreviewQuietly();
    void StartPreview(bool tellFailure);
    void TakePreview(ImportPreview preview, bool tellFailure);
    void ShowPreview();
    void Warn(const std::string& text);

    ImportDesk& m_desk;
    std::unique_ptr<Ui::MappingScreen> m_ui;
    std::vector<FlossChoice> m_choices; ///< the lines of the list
    PreviewFlossModel* m_flosses = nullptr;
    QTimer m_soon;
    LatestJob m_job; ///< last, so that it ends before what it delivers to
};

} // namespace zol
