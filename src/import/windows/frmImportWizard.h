// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "import/ImportFlow.h"
#include "import/ImportStatus.h"
#include "import/windows/ImportDesk.h"

namespace Ui {
class frmImportWizard;
}

namespace zol {

class SourceScreen;
class WizardScreen;
class JobStatus;

/// Leads from a picture to a design, screen by screen. Modal; it hides instead of going, so that
/// an import can be resumed where it was left. What it changes is the caller's: the design is
/// written by `CreateThePattern`.
class frmImportWizard : public QDialog {
    Q_OBJECT

public:
    /// What the wizard works with; all of it outlives it.
    struct Outside {
        ProgramContext& Context;
        const Pattern& Design;
        SettingsDoor& Store;
        const Options& Settings;
        MessageDoor& Messages;
        FileDoor& Files;
        ScannerDoor* Scanners; ///< null: nothing can be scanned
        /// Writes the import into the design, as one step that can be undone.
        std::function<ImportStatus(ImportWork& work)> CreateThePattern;
    };

    /// `editBox` in squares of the design from 1; nothing without one.
    frmImportWizard(const Outside& outside, std::optional<SquareRect> editBox,
                    QWidget* parent = nullptr);
    ~frmImportWizard() override;

    /// From 0.
    [[nodiscard]] int CurrentScreen() const { return m_flow.CurrentScreen(); }
    /// Whether there is anything that could be resumed.
    [[nodiscard]] bool HasWork() const;
    /// Whether it can be resumed over that design. With an edit box, which lies in the design that
    /// it was opened over, it cannot be over another.
    [[nodiscard]] bool CanGoOnOver(const Pattern& another) const {
        return !m_work.EditBox && &m_desk.Design == &another;
    }
    /// To be called before a wizard that was left is shown again: the design's palette may have
    /// changed.
    void Resume();
    /// Only on the first screen: a file as the source.
    void TakeFile(const std::filesystem::path& file);

Q_SIGNALS:
    /// A file was dropped onto the first screen.
    void FileDropped(const QString& file);

public Q_SLOTS:
    /// The wizard hides with all its work, but for what still runs.
    void done(int result) override;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void SetupVariables(std::optional<SquareRect> editBox);
    void AddScreens();
    void DisplayScreen(int screen, bool keepPicture);
    void ShowFrame(int screen);
    template<typename Step>
    void Try(const Step& step);
    void DisplayNextScreen();
    void DisplayLastScreen();
    [[nodiscard]] bool ValidateScreen();
    void GoOn();
    void GoBack();
    void Finish();
    void ShowReplaceNote();

    Outside m_outside;
    ImportWork m_work;
    ImportDesk m_desk;
    ImportFlow m_flow;
    std::unique_ptr<Ui::frmImportWizard> m_ui;
    JobStatus* m_status = nullptr;
    SourceScreen* m_source = nullptr;
    std::vector<WizardScreen*> m_screens; ///< by their numbers
};

} // namespace zol
