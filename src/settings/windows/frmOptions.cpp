// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/frmOptions.h"

#include <QLayout>
#include <QPushButton>
#include <QScrollArea>

#include <utility>

#include "settings/basOptions.h"
#include "settings/windows/GeneralOptionsPage.h"
#include "settings/windows/GridOptionsPage.h"
#include "settings/windows/PaletteOptionsPage.h"
#include "settings/windows/PatternOptionsPage.h"
#include "settings/windows/PrintOptionsPage.h"
#include "settings/windows/ui_frmOptions.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"
#include "windowkit/TabOrder.h"
#include "windowkit/WaitCursor.h"

namespace zol {

namespace {

/// Holds a page. On a small screen the page is scrolled rather than cut off.
class PageFrame : public QScrollArea {
public:
    explicit PageFrame(QWidget& page) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(&page);
        // The ground is the tab's, as in every other window with tabs.
        viewport()->setAutoFillBackground(false);
        page.setAutoFillBackground(false);
    }
    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
};

} // namespace

frmOptions::frmOptions(OptionsDesk desk, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmOptions>()),
      m_desk(std::move(desk)) {
    m_ui->setupUi(this);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    QPushButton* apply = m_ui->buttonBox->button(QDialogButtonBox::Apply);
    apply->setObjectName(QStringLiteral("cmdApply"));
    AddPages();
    MoveBehindInTabOrder(*m_ui->chkDefault);
    MoveBehindInTabOrder(*m_ui->buttonBox);
    Spell(*this, m_desk.Context);
    FillOptionLists();
    LoadOptionControls();
    m_ui->tbsOptions->setCurrentIndex(0);
    connect(apply, &QPushButton::clicked, this, &frmOptions::Apply);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &frmOptions::accept);
    // Pages that were never shown still think of their lists as empty.
    for (QLayout* layout : findChildren<QLayout*>()) {
        layout->invalidate();
    }
    resize(sizeHint());
    RememberSize(*this, m_desk.Store);
}

frmOptions::~frmOptions() = default;

void frmOptions::AddPages() {
    auto* print = new PrintOptionsPage(m_desk);
    auto* general = new GeneralOptionsPage(m_desk);
    m_pages = {new GridOptionsPage(m_desk), print, new PatternOptionsPage(m_desk),
               new PaletteOptionsPage(m_desk), general};
    const char* const titles[] = {"Design Grid", "Printouts", "Pattern Properties", "Floss Palette",
                                  "General"};
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        m_pages[i]->setObjectName(QStringLiteral("fraOptions") +
                                  QString::number(static_cast<int>(i)));
        m_ui->tbsOptions->addTab(new PageFrame(*m_pages[i]), QLatin1String(titles[i]));
    }
    m_ui->tbsOptions->setTabToolTip(DesignGridPage,
                                    QStringLiteral("Options for the Screen Design Grid"));
    m_ui->tbsOptions->setTabToolTip(PrintoutsPage,
                                    QStringLiteral("Options for your pattern print outs"));
    connect(general, &GeneralOptionsPage::UnitsChanged, print, &PrintOptionsPage::ChangeUnits);
}

void frmOptions::ShowPage(Page page) {
    m_ui->tbsOptions->setCurrentIndex(page);
}

void frmOptions::FillOptionLists() {
    for (OptionsPage* page : m_pages) {
        page->FillOptionLists();
    }
}

void frmOptions::LoadOptionControls() {
    for (OptionsPage* page : m_pages) {
        page->LoadOptionControls(m_desk.Settings);
    }
}

void frmOptions::ApplyOptionControls() {
    Options& options = m_desk.Settings;
    for (const OptionsPage* page : m_pages) {
        page->ApplyOptionControls(options);
    }
    basOptions::FollowChoices(m_desk.Store, options, m_desk.Context);
}

void frmOptions::SaveOptionControls() {
    basOptions::SaveOptions(m_desk.Settings, m_desk.Store);
}

void frmOptions::Apply() {
    const WaitCursor wait;
    m_desk.Settings = basOptions::LoadOptions(m_desk.Store, m_desk.Context);
    ApplyOptionControls();
    m_desk.Applied();
}

void frmOptions::accept() {
    const WaitCursor wait;
    const auto hold = [this](bool on) {
        if (m_desk.HoldPainting) {
            m_desk.HoldPainting(on);
        }
    };
    hold(true);
    hide();
    Apply();
    if (m_ui->chkDefault->isChecked()) {
        SaveOptionControls();
        m_desk.Settings = basOptions::LoadOptions(m_desk.Store, m_desk.Context);
        m_desk.Applied();
    }
    hold(false);
    QDialog::accept();
}

} // namespace zol
