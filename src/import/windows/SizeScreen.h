// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "import/Imaging.h"
#include "import/SizeFields.h"
#include "import/windows/ImportDesk.h"
#include "import/windows/WizardScreen.h"
#include "windowkit/LatestJob.h"

namespace Ui {
class SizeScreen;
}

namespace zol {

class NumericFilter;
class JobStatus;

/// Screen 3: how large the picture is stitched, and whether it goes into the edit box. Shows it in
/// that size, a pixel a stitch.
class SizeScreen : public WizardScreen {
    Q_OBJECT

public:
    SizeScreen(ImportDesk& desk, QWidget* parent);
    ~SizeScreen() override;

    [[nodiscard]] QString Instruction() const override;
    /// What is resized is the picture that came in forward: coming back does not make a small
    /// picture large again.
    void DisplayScreen(bool keepPicture) override;
    [[nodiscard]] bool ValidateScreen() override;
    void Suspend() override { m_job.Cancel(); }
    void Resume() override { ResizeImage(); }

private:
    /// What a resized picture was made of.
    struct Wanted {
        SharedPicture Source;
        StitchSize Size;
        bool SmoothColors = true;

        friend bool operator==(const Wanted&, const Wanted&) = default;
    };

    void SetUpFields();
    void ConnectFields();
    void ConnectChoices();
    /// All but the field that is typed into, whose text is the user's.
    void ShowFields(const QWidget* typedIn);
    /// The fields, then the picture.
    void Follow(const QWidget* typedIn = nullptr);
    void ResizeImage();
    void TakeResized(ImagingResult& result);
    void ShowAtRealSize();
    void TellFault(const SizeFields::Fault& fault);
    void HandOn();

    ImportDesk& m_desk;
    std::unique_ptr<Ui::SizeScreen> m_ui;
    JobStatus* m_status = nullptr;
    NumericFilter* m_widthFilter = nullptr;
    NumericFilter* m_heightFilter = nullptr;
    SizeFields m_fields;
    bool m_showing = false; ///< the fields change by themselves
    SharedPicture m_source;
    SharedPicture m_resized; ///< what lpicResized shows; null while the fields want another one
    Wanted m_wanted;
    LatestJob m_job;
};

} // namespace zol
