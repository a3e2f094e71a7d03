// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/SourceScreen.h"

#include <QButtonGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QStandardPaths>

#include <utility>

#include "import/ImportMessages.h"
#include "import/PictureFiles.h"
#include "import/PictureOps.h"
#include "import/windows/ImagePicture.h"
#include "import/windows/ScannerList.h"
#include "import/windows/WithinMemory.h"
#include "import/windows/WizardProgress.h"
#include "import/windows/ui_SourceScreen.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "settings/tmpFiles.h"
#include "windowkit/FilePreviewPane.h"
#include "windowkit/JobStatus.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

constexpr const char* Section = "Import";
constexpr const char* FolderName = "LastFolder";

QString QtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string PicturesFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation).toStdString();
}

} // namespace

SourceScreen::SourceScreen(ImportDesk& desk, QWidget* parent)
    : WizardScreen(parent),
      m_desk(desk),
      m_ui(std::make_unique<Ui::SourceScreen>()),
      m_lastImportFile(tmpFiles(desk.Context.AppPath).GetTempFolder() /
                       PictureFiles::LastImportName) {
    m_ui->setupUi(this);
    m_ui->LPicPreview->SetEmpty(PictureLevels::Empty::Transparent);
    m_ui->LPicPreview->SetEmptyText(tr("No picture yet"));
    m_ui->zoomBox->Attach(*m_ui->LPicPreview);
    m_ui->zoomBox->FollowInTabOrder(*m_ui->LPicPreview);
    m_status = new JobStatus(this);
    m_status->Follow(m_loadJob, QtText(ImportMessages::LoadingPicture));
    connect(&m_loadJob, &LatestJob::Failed, this, [this](const QString& text) {
        TellFailure({{}, ErrOutOfMemory, text.toStdString()});
    });
    m_loadJob.setObjectName(QStringLiteral("loadPicture"));
    m_saveJob.setObjectName(QStringLiteral("saveLastImport"));
    connect(&m_saveJob, &LatestJob::Failed, this, [this] { m_saving = nullptr; });
    SetUpScanning();
    ConnectOptions();
    EnableFields();
    Show(nullptr);
}

SourceScreen::~SourceScreen() = default;

void SourceScreen::ConnectOptions() {
    auto* options = new QButtonGroup(this);
    for (QRadioButton* option :
         {m_ui->optFile, m_ui->optClipboard, m_ui->optScan, m_ui->optLastImage}) {
        options->addButton(option);
    }
    // Also for the option that is chosen already: the clipboard may hold another image by now.
    connect(options, &QButtonGroup::buttonClicked, this,
            [this] { WithinMemory(m_desk.Messages, [this] { ChooseSource(); }); });
    connect(m_ui->cmdBrowse, &QPushButton::clicked, this, &SourceScreen::Browse);
    // A name that is longer than the field can be read in full.
    connect(m_ui->txtFileName, &QLineEdit::textChanged, m_ui->txtFileName, &QWidget::setToolTip);
    // What is typed names another picture than the one that is shown.
    connect(m_ui->txtFileName, &QLineEdit::textEdited, this, [this] {
        m_loadJob.Cancel();
        Show(nullptr);
    });
}

void SourceScreen::SetUpScanning() {
    if (m_desk.Scanners != nullptr) {
        m_scanners =
            new ScannerList({*m_desk.Scanners, m_desk.Context, m_desk.Store, m_desk.Messages},
                            *m_ui->cmbScanSource, *m_ui->cmdAcquire, this);
        connect(m_ui->cmdAcquire, &QPushButton::clicked, this,
                [this] { WithinMemory(m_desk.Messages, [this] { Acquire(); }); });
    }
}

void SourceScreen::LookForScanners() {
    if (m_scanners != nullptr) {
        m_scanners->Look();
    }
}

void SourceScreen::Acquire() {
    if (auto picture = m_scanners->Acquire(this)) {
        TakePicture(std::move(*picture));
    }
}

QString SourceScreen::Instruction() const {
    return QStringLiteral("Select from where you wish to get the image to import");
}

void SourceScreen::DisplayScreen(bool keepPicture) {
    if (!keepPicture && m_desk.Work.TheImage != nullptr) {
        Show(m_desk.Work.TheImage);
    }
    OfferLastImage();
    Resume();
    if (m_ui->txtFileName->isEnabled()) {
        m_ui->txtFileName->setFocus();
    }
}

void SourceScreen::OfferLastImage() {
    m_ui->optLastImage->setEnabled(m_saved != nullptr ||
                                   PictureFile(m_lastImportFile).GetError().IsGood());
}

void SourceScreen::Suspend() {
    m_loadJob.Cancel();
    if (m_scanners != nullptr) {
        m_scanners->Leave();
    }
}

void SourceScreen::Resume() {
    if (m_scanners != nullptr && m_ui->optScan->isChecked()) {
        m_scanners->ComeBack();
    }
}

bool SourceScreen::ValidateScreen() {
    const QString name = m_ui->txtFileName->text().trimmed();
    if (!name.isEmpty() && !HasPicture() && !m_loadJob.IsRunning()) {
        Load(PathOf(name.toStdString()));
    }
    if (m_loadJob.IsRunning()) {
        const SharedPicture before = m_picture;
        AwaitJob(m_loadJob, *m_status);
        if (m_picture == before) {
            return false; // cancelled, or failed
        }
    }
    if (!HasPicture()) {
        m_desk.Messages.Tell(std::string(ImportMessages::NoImage), MessageIcon::Exclamation,
                             ImportMessages::Title);
        if (m_ui->txtFileName->isEnabled()) {
            m_ui->txtFileName->setFocus();
        }
        return false;
    }
    m_desk.Work.TheImage = m_picture;
    SaveLastImport();
    return true;
}

void SourceScreen::ChooseSource() {
    Empty();
    EnableFields();
    if (m_ui->optFile->isChecked()) {
        m_ui->txtFileName->setFocus();
    } else if (m_ui->optClipboard->isChecked()) {
        PasteImage();
    } else if (m_ui->optScan->isChecked()) {
        LookForScanners();
    } else {
        Load(m_lastImportFile);
    }
}

void SourceScreen::EnableFields() {
    const bool file = m_ui->optFile->isChecked();
    m_ui->txtFileName->setEnabled(file);
    m_ui->cmdBrowse->setEnabled(file);
    const bool scan = m_ui->optScan->isChecked();
    m_ui->cmbScanSource->setEnabled(scan);
    m_ui->cmdAcquire->setEnabled(scan && m_scanners != nullptr && m_scanners->Chosen().has_value());
}

void SourceScreen::Empty() {
    Suspend();
    Show(nullptr);
    m_ui->txtFileName->clear();
}

void SourceScreen::Browse() {
    FileChoice choice;
    choice.Title = "Select a Picture";
    choice.Filter = PictureFiles::DialogFilter();
    choice.Folder = PathOf(m_desk.Store.ReadSetting(Section, FolderName, PicturesFolder()));
    choice.Preview = [](const fs::path& file, ProgressDoor& progress) {
        return PictureFiles::Preview(file, FilePreviewPane::Side, progress);
    };
    if (const auto file = m_desk.Files.AskOpenFile(choice)) {
        m_desk.Store.WriteSetting(Section, FolderName, PathText(file->parent_path()));
        TakeFile(*file);
    }
}

void SourceScreen::TakeFile(const fs::path& file) {
    Load(file);
    m_takesFile = true;
}

/// The file that was loaded becomes the source.
void SourceScreen::BecomeFile() {
    m_ui->optFile->setChecked(true);
    Empty();
    EnableFields();
    m_ui->txtFileName->setText(QtText(PathText(m_loading)));
}

void SourceScreen::PasteImage() {
    const QImage image = QGuiApplication::clipboard()->image();
    if (image.isNull()) {
        m_desk.Messages.TellMore("There is no image on the clipboard.",
                                 "Copy an image in another program, then choose the clipboard "
                                 "again.",
                                 MessageIcon::Exclamation, ImportMessages::Title);
        return;
    }
    TakePicture(PictureOf(image));
}

void SourceScreen::TakePicture(Picture picture) {
    ReduceDepth(picture);
    Show(std::make_shared<const Picture>(std::move(picture)));
}

void SourceScreen::Load(const fs::path& file) {
    m_loading = file;
    m_takesFile = false;
    m_loadJob.Start(
        [file](ProgressDoor& progress) {
            progress.StartStatus(std::string(ImportMessages::LoadingPicture), 100);
            return LoadImage(file, &progress);
        },
        [this](ImagingResult result) { TakeLoaded(result); });
}

void SourceScreen::TakeLoaded(ImagingResult& result) {
    if (!result.IsGood()) {
        TellFailure(result);
        return;
    }
    auto picture = std::make_shared<const Picture>(std::move(result.Image));
    if (m_takesFile) {
        BecomeFile();
    }
    if (m_loading == m_lastImportFile) {
        m_saved = picture;
    }
    Show(std::move(picture));
}

void SourceScreen::TellFailure(const ImagingResult& result) {
    const char* const kept = m_takesFile && HasPicture()
                                 ? "\nThe picture that is there stays."
                                 : "\nChoose another picture; the design is as it was.";
    m_desk.Messages.TellMore(PictureFiles::LoadFailure(result), PathText(m_loading) + kept,
                             MessageIcon::Exclamation, ImportMessages::Title);
    if (!m_takesFile && m_ui->txtFileName->isEnabled()) {
        m_ui->txtFileName->setFocus();
        m_ui->txtFileName->selectAll();
    }
}

void SourceScreen::Show(SharedPicture picture) {
    m_picture = std::move(picture);
    m_ui->LPicPreview->ShowPicture(m_picture);
    m_ui->LPicPreview->ZoomToFit();
    m_ui->zoomBox->setEnabled(HasPicture());
    m_ui->lblImageInfo->setText(
        m_picture == nullptr
            ? QString()
            : QtText(PictureFiles::SizeWords(m_picture->ImageWidth(), m_picture->ImageHeight())));
}

void SourceScreen::SaveLastImport() {
    // Saved once: a JPEG that is saved over and over loses a little each time.
    const SharedPicture& latest = m_saving != nullptr ? m_saving : m_saved;
    if (latest == m_picture) {
        return;
    }
    m_saving = m_picture;
    m_saveJob.Start(
        [this, picture = m_picture, file = m_lastImportFile](ProgressDoor& progress) {
            // One at a time: an older save on its way out must not put its picture over this one.
            const std::lock_guard turn(m_saveTurn);
            return SaveImage(*picture, file, &progress);
        },
        [this](int status) {
            // A failure costs no more than the offer to take this picture again.
            const SharedPicture saved = std::exchange(m_saving, nullptr);
            if (status == ErrNone) {
                m_saved = saved;
            }
            OfferLastImage();
        });
}

} // namespace zol
