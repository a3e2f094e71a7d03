// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <filesystem>
#include <memory>
#include <optional>

#include "print/basExport.h"
#include "print/windows/PrintDesk.h"
#include "windowkit/LatestJob.h"

namespace Ui {
class frmExportWizard;
}

namespace zol {

/// Gives out the design as a picture or its legend as rich text, into files or onto the clipboard.
/// Once a picture has been exported it follows the settings. It is painted beside the window, which
/// nobody can draw in meanwhile.
class frmExportWizard : public QDialog {
    Q_OBJECT

public:
    /// The settings are taken from `chosen` and kept there. What the desk refers to must outlive
    /// the window.
    frmExportWizard(PrintDesk desk, basExport& chosen, QWidget* parent = nullptr);
    ~frmExportWizard() override;

    /// Stops what is being written first, and stays.
    void reject() override;

private:
    void SetUpControls();
    void ConnectControls();
    void ConnectJob();

    void ReadSettings();
    /// By the settings as they stand.
    [[nodiscard]] PatternPicture Wanted() const;
    void Follow();
    void Export();
    void PaintPicture(const PatternPicture& wanted);
    void ShowPicture(const PatternPicture& picture, const QImage& image);

    void SaveImage();
    void WriteImage(const std::filesystem::path& file);
    void SaveInfo();
    void CopyInfo();
    [[nodiscard]] std::optional<std::filesystem::path> AskFile(FileChoice choice);
    void TellFailure(int number);
    void TellNoMemory();

    void ShowSize();
    void ShowState();
    void SetBusy(bool busy);

    PrintDesk m_desk;
    basExport& m_chosen;
    std::optional<SelectedArea> m_selection;
    std::unique_ptr<Ui::frmExportWizard> m_ui;
    std::optional<PatternPicture> m_shown; ///< what picPattern shows
    bool m_isOutdated = false;             ///< the settings are others by now
    bool m_isSaving = false;
    LatestJob m_job; ///< last, as what it runs uses the rest
};

} // namespace zol
