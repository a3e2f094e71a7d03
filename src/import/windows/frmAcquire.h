// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

#include "import/ImportWork.h"
#include "import/scan/ScannerDoor.h"
#include "windowkit/LatestJob.h"

namespace Ui {
class frmAcquire;
}

namespace zol {

class ScanAreaBand;
class SettingsDoor;

/// Takes one picture from a scanner: how finely, in which colours, which part of what lies on it.
/// Modal; all work of the scanner is done beside the window. What goes wrong is said in the
/// window, which stays for another try.
class frmAcquire : public QDialog {
    Q_OBJECT

public:
    /// Door and store outlive it.
    frmAcquire(ScannerDoor& scanners, SettingsDoor& store, const ProgramContext& context,
               ScanSource source, QWidget* parent = nullptr);
    ~frmAcquire() override;

    /// What was scanned, once the window has been accepted; handed over.
    [[nodiscard]] Picture TakePicture() { return std::move(m_result); }

    /// Stops a scan first, and leaves only when none goes on.
    void reject() override;

    /// Rows of one run, with pixels of their own.
    struct Received {
        int Run = 0;
        ScanRows Rows;
        std::vector<Colour> Pixels;
    };

Q_SIGNALS:
    /// On the thread of the scan.
    void RowsCame(const std::shared_ptr<const Received>& received);

private:
    enum class Doing { Asking, Nothing, Previewing, Scanning };

    void ConnectFields();
    void ConnectChoices();
    void AskAbilities();
    void TakeAbilities(const AbilitiesFound& found);
    void FillResolutions(const std::vector<int>& resolutions);
    void FillModes(const ScanAbilities& abilities);
    void SetUpArea(const std::optional<ScanArea>& bed);

    void Preview();
    void Scan();
    void Start(Doing doing, const ScanRequest& request);
    void TakeResult(Doing was, ScanResult& result);
    void Stop();
    [[nodiscard]] std::function<void(const ScanRows&)> RowsToHere();
    void TakeRows(const std::shared_ptr<const Received>& received);
    void ShowRows(const ScanRows& rows);

    [[nodiscard]] ScanRequest RequestedScan() const;
    /// Of the whole bed, as coarsely as is enough to see what lies on it.
    [[nodiscard]] ScanRequest PreviewRequest() const;
    [[nodiscard]] ScanArea AreaInFields() const;
    void ShowAreaInFields();
    void TakeAreaFromFields();
    void ShowSize();
    void ShowPreview();
    void ShowProblem(const ScanProblem& problem);
    void Become(Doing doing);
    void StoreChoices();

    ScannerDoor& m_scanners;
    SettingsDoor& m_store;
    ScanSource m_source;
    ScanAbilities m_abilities;
    std::unique_ptr<Ui::frmAcquire> m_ui;
    ScanAreaBand* m_band = nullptr;
    Doing m_doing = Doing::Asking;
    bool m_isKnown = false; ///< the device has said what it can do
    SharedPicture m_preview;
    std::shared_ptr<Picture> m_live; ///< the picture that comes in
    int m_run = 0;                   ///< rows of earlier runs count no more
    Picture m_result;
    LatestJob m_job; ///< goes first: nothing may come in any more
};

} // namespace zol
