// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/frmImportWizard.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

#include <string>

#include "import/ImportMessages.h"
#include "import/windows/ColorScreen.h"
#include "import/windows/CropScreen.h"
#include "import/windows/EraseScreen.h"
#include "import/windows/MappingScreen.h"
#include "import/windows/SizeScreen.h"
#include "import/windows/SourceScreen.h"
#include "import/windows/WithinMemory.h"
#include "import/windows/WizardProgress.h"
#include "import/windows/WizardScreen.h"
#include "import/windows/ui_frmImportWizard.h"
#include "model/Pattern.h"
#include "model/SafeFile.h"
#include "windowkit/DialogSize.h"
#include "windowkit/JobStatus.h"
#include "windowkit/Spelling.h"

namespace zol {

frmImportWizard::frmImportWizard(const Outside& outside, std::optional<SquareRect> editBox,
                                 QWidget* parent)
    : QDialog(parent),
      m_outside(outside),
      m_work(outside.Context),
      m_desk{m_work,           outside.Context,  outside.Design, outside.Store,
             outside.Settings, outside.Messages, outside.Files,  outside.Scanners},
      m_ui(std::make_unique<Ui::frmImportWizard>()) {
    m_ui->setupUi(this);
    Spell(*this, m_desk.Context); // the screens, which show names of flosses too, see to themselves
    setAcceptDrops(true);
    m_status = new JobStatus(this);
    SetupVariables(editBox);
    AddScreens();
    connect(m_ui->cmdNext, &QPushButton::clicked, this, &frmImportWizard::GoOn);
    connect(m_ui->cmdBack, &QPushButton::clicked, this, &frmImportWizard::GoBack);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmImportWizard::reject);
    // The program that the file comes from waits until the drop returns, and a message may follow.
    connect(
        this, &frmImportWizard::FileDropped, this,
        [this](const QString& file) { TakeFile(PathOf(file.toStdString())); },
        Qt::QueuedConnection);
    DisplayScreen(m_flow.CurrentScreen(), false);
    RememberSize(*this, m_desk.Store);
}

frmImportWizard::~frmImportWizard() = default;

void frmImportWizard::SetupVariables(std::optional<SquareRect> editBox) {
    m_work.EditBox = editBox;
    m_work.Size.UseUnits = true;
    m_work.Size.ClothCountX = m_desk.Design.GetPatternClothCountX();
    m_work.Size.ClothCountY = m_desk.Design.GetPatternClothCountY();
    m_work.Size.CmPerUnit = m_desk.Settings.UsesInches() ? CmPerUnitInches : CmPerUnitCentimetres;
}

void frmImportWizard::AddScreens() {
    m_source = new SourceScreen(m_desk, this);
    m_screens = {m_source,
                 new CropScreen(m_desk, this),
                 new EraseScreen(m_desk, this),
                 new SizeScreen(m_desk, this),
                 new ColorScreen(m_desk, this),
                 new MappingScreen(m_desk, this)};
    for (WizardScreen* screen : m_screens) {
        m_ui->fraWiz->addWidget(screen);
    }
}

void frmImportWizard::DisplayScreen(int screen, bool keepPicture) {
    ShowFrame(screen);
    m_screens[static_cast<std::size_t>(screen)]->DisplayScreen(keepPicture);
}

void frmImportWizard::ShowFrame(int screen) {
    WizardScreen& shown = *m_screens[static_cast<std::size_t>(screen)];
    m_ui->lblInstruction->setText(shown.Instruction());
    m_ui->cmdBack->setEnabled(m_flow.CanGoBack());
    const bool last = m_flow.IsOnLastScreen();
    m_ui->cmdNext->setText(last ? QStringLiteral("&Finish") : QStringLiteral("&Next"));
    ShowReplaceNote();
    m_ui->fraWiz->setCurrentWidget(&shown);
}

void frmImportWizard::ShowReplaceNote() {
    m_ui->lblReplaces->setText(m_flow.IsOnLastScreen() && !m_work.UseEditBox
                                   ? QStringLiteral("Finish replaces the whole design. Only Undo "
                                                    "brings it back.")
                                   : QString());
}

void frmImportWizard::DisplayNextScreen() {
    if (m_flow.IsOnLastScreen()) {
        Finish();
    } else if (const auto change = m_flow.Next(true)) {
        DisplayScreen(change->Screen, change->KeepPicture);
    }
}

void frmImportWizard::DisplayLastScreen() {}

bool frmImportWizard::ValidateScreen() {
    return m_screens[static_cast<std::size_t>(m_flow.CurrentScreen())]->ValidateScreen();
}

/// Leaves a screen. Where the next one finds no memory for its picture, the one that was left still
/// has its own and comes back.
template<typename Step>
void frmImportWizard::Try(const Step& step) {
    const ImportFlow flow = m_flow;
    const SharedPicture travelling = m_work.TheImage;
    if (!WithinMemory(m_desk.Messages, step)) {
        m_flow = flow;
        m_work.TheImage = travelling;
        ShowFrame(m_flow.CurrentScreen());
    }
}

void frmImportWizard::GoOn() {
    Try([this] {
        if (ValidateScreen()) {
            DisplayNextScreen();
        }
    });
}

void frmImportWizard::GoBack() {
    Try([this] {
        if (const auto change = m_flow.Back(ValidateScreen())) {
            DisplayScreen(change->Screen, change->KeepPicture);
        }
    });
}

void frmImportWizard::Finish() {
    const WizardProgress progress(*m_status, m_desk.Context.Progress);
    const ImportStatus status = m_outside.CreateThePattern(m_work);
    switch (status.Result) {
    case ImportStatus::Outcome::Done:
        accept();
        break;
    case ImportStatus::Outcome::Cancelled:
        break;
    case ImportStatus::Outcome::Invalid:
    case ImportStatus::Outcome::Failed:
        m_desk.Messages.Tell(status.Message, MessageIcon::Exclamation, ImportMessages::Title);
        break;
    }
}

bool frmImportWizard::HasWork() const {
    return m_work.TheImage != nullptr || m_source->HasPicture();
}

void frmImportWizard::done(int result) {
    for (WizardScreen* screen : m_screens) {
        screen->Suspend();
    }
    QDialog::done(result);
}

void frmImportWizard::Resume() {
    m_screens[static_cast<std::size_t>(m_flow.CurrentScreen())]->Resume();
    // Flosses that changed meanwhile are taken anew: an import of the old ones would put them back.
    if (m_flow.IsOnLastScreen() && !m_work.Session.IsUpToDateWith(m_desk.Design.GetPalette())) {
        DisplayScreen(m_flow.CurrentScreen(), false);
    }
}

void frmImportWizard::TakeFile(const std::filesystem::path& file) {
    m_source->TakeFile(file);
}

void frmImportWizard::dragEnterEvent(QDragEnterEvent* event) {
    // Further on a drop would take the place of work that was done on another picture.
    const QList<QUrl> urls = event->mimeData()->urls();
    if (m_flow.CurrentScreen() == ImportScreens::Source && urls.size() == 1 &&
        urls.first().isLocalFile()) {
        // A move would let the program that the file comes from delete it.
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void frmImportWizard::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The other program may have taken back by now what it offered when the pointer came in.
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty()) {
        Q_EMIT FileDropped(urls.first().toLocalFile());
    }
}

} // namespace zol
