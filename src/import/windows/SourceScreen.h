// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <memory>
#include <mutex>

#include "import/Imaging.h"
#include "import/windows/ImportDesk.h"
#include "import/windows/WizardScreen.h"
#include "windowkit/LatestJob.h"

namespace Ui {
class SourceScreen;
}

namespace zol {

class ScannerList;
class JobStatus;

/// Screen 0: where the picture comes from. A file, the clipboard, a scanner, or the picture of the
/// last import. Files are decoded beside the window.
class SourceScreen : public WizardScreen {
    Q_OBJECT

public:
    SourceScreen(ImportDesk& desk, QWidget* parent);
    ~SourceScreen() override;

    [[nodiscard]] QString Instruction() const override;
    void DisplayScreen(bool keepPicture) override;
    /// A file name that was typed is loaded only here.
    [[nodiscard]] bool ValidateScreen() override;
    void Suspend() override;
    void Resume() override;

    /// A file from outside, such as one that was dropped; it becomes the source once it could be
    /// read, until then the present one stays.
    void TakeFile(const std::filesystem::path& file);
    /// Shows a picture as the one to import, brought to the depth of an imported one.
    void TakePicture(Picture picture);
    [[nodiscard]] bool HasPicture() const { return m_picture != nullptr; }

private:
    void ConnectOptions();
    void SetUpScanning();
    void LookForScanners();
    void Acquire();
    void ChooseSource();
    void EnableFields();
    void Empty();
    void BecomeFile();
    void Browse();
    void PasteImage();
    void Load(const std::filesystem::path& file);
    void TakeLoaded(ImagingResult& result);
    void TellFailure(const ImagingResult& result);
    void Show(SharedPicture picture);
    void SaveLastImport();
    void OfferLastImage();

    ImportDesk& m_desk;
    std::unique_ptr<Ui::SourceScreen> m_ui;
    JobStatus* m_status = nullptr;
    ScannerList* m_scanners = nullptr; ///< null where nothing can be scanned
    SharedPicture m_picture;           ///< what LPicPreview shows
    std::filesystem::path m_lastImportFile;
    SharedPicture m_saved;  ///< what that file holds, if this screen saved or loaded it
    SharedPicture m_saving; ///< what it is to hold once the save that runs is done
    std::filesystem::path m_loading;
    bool m_takesFile = false; ///< it is to become the source
    LatestJob m_loadJob{this};
    std::mutex m_saveTurn; ///< held by the save that writes
    LatestJob m_saveJob{this};
};

} // namespace zol
