// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmPalette.h"

#include <QKeyEvent>
#include <QScrollBar>

#include "flosses/windows/ui_frmPalette.h"
#include "settings/OptionLists.h"
#include "windowkit/ComboItems.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"

namespace zol {

namespace {

bool IsOver(const QWidget& widget, const QPoint& globalPos) {
    return widget.rect().contains(widget.mapFromGlobal(globalPos));
}

} // namespace

frmPalette::frmPalette(const PaletteDesk& desk, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmPalette>()),
      m_messages(desk.Messages),
      m_store(desk.Store),
      m_windows({desk.Design.GetPalette(), desk.Messages, desk.Store, this}),
      m_editor({desk.Design, desk.Messages, m_windows, desk.EditBox, desk.BeforeFirstChange},
               desk.SelectedFloss) {
    m_ui->setupUi(this);
    FillOwnLists();
    Spell(*this, desk.Design.Context());
    m_windows.SetAvailable(m_editor.Available());
    m_ui->buttonBox->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("cmdOK"));
    m_ui->paletteArea->verticalScrollBar()->setObjectName(QStringLiteral("vsbPalette"));
    m_ui->chkEditBoxOnly->setEnabled(m_editor.HasEditBox());
    m_ui->flossInfo->SetEditor(m_editor, m_store, m_messages, m_whole);
    m_editor.Available().Show(desk.Catalogue);
    m_ui->picAvailable->SetFlosses(m_editor.Available());
    ShowCatalogues();
    ConnectAvailable();
    ConnectPalette();
    ConnectDragging();
    m_ui->picPalette->SetPalette(m_editor.Flosses());
    BuildDisplayGrid();
    m_ui->picAvailable->setFocus();
    RememberSize(*this, m_store);
}

frmPalette::~frmPalette() = default;

void frmPalette::FillOwnLists() {
    for (const char* style : {"Numbers & Descriptions", "Numbers & Colors", "Colors Only"}) {
        m_ui->cmbListStyle->addItem(QString::fromLatin1(style));
    }
    m_ui->cmbSortBy->addItem(QStringLiteral("Floss ID"), 1);
    m_ui->cmbSortBy->addItem(QStringLiteral("Color"), 3);
    m_ui->cmbSortBy->addItem(QStringLiteral("Description"), 2);
    FillCombo(*m_ui->cmbSortPaletteBy, OptionLists::SortOrders("Color"));
    SetCombo(*m_ui->cmbSortPaletteBy, m_editor.Flosses().GetSortOrder());
}

void frmPalette::ShowCatalogues() {
    const AvailableFlosses& available = m_editor.Available();
    m_ui->cmbCategory->clear();
    for (const CatalogueName& name : available.Catalogues()) {
        m_ui->cmbCategory->addItem(QString::fromStdString(name.Name),
                                   QString::fromStdString(name.FileName));
    }
    m_ui->cmbCategory->setCurrentIndex(
        m_ui->cmbCategory->findData(QString::fromStdString(available.Shown())));
}

void frmPalette::ConnectAvailable() {
    connect(m_ui->cmbCategory, &QComboBox::activated, this, [this](int line) {
        m_editor.Available().Show(m_ui->cmbCategory->itemData(line).toString().toStdString());
        LoadAvailableColorsList();
    });
    connect(m_ui->cmbListStyle, &QComboBox::activated, this,
            [this](int line) { m_ui->picAvailable->SetListStyle(static_cast<ListStyle>(line)); });
    connect(m_ui->cmbSortBy, &QComboBox::activated, this, [this](int line) {
        m_editor.Available().Sort(m_ui->cmbSortBy->itemData(line).toInt());
        LoadAvailableColorsList();
    });
    connect(m_ui->cmdSearch, &QPushButton::clicked, this, &frmPalette::Search);
    connect(m_ui->picAvailable, &AvailableList::RowSelected, this, &frmPalette::SelectAvailable);
    connect(m_ui->picAvailable, &AvailableList::AddRequested, m_ui->cmdAdd, &QPushButton::click);
}

void frmPalette::ConnectPalette() {
    const auto onClick = [this](QPushButton* button, bool (PaletteEditor::*work)()) {
        connect(button, &QPushButton::clicked, this, [this, work] {
            (m_editor.*work)();
            BuildDisplayGrid();
        });
    };
    onClick(m_ui->cmdAdd, &PaletteEditor::Add);
    onClick(m_ui->cmdReplaceColor, &PaletteEditor::Replace);
    onClick(m_ui->cmdRemoveColor, &PaletteEditor::Remove);
    connect(m_ui->cmbBlend, &QPushButton::clicked, this, &frmPalette::ToggleBlend);
    connect(m_ui->cmdCreate, &QPushButton::clicked, this, [this] {
        m_editor.Create();
        ShowCatalogues();
        LoadAvailableColorsList();
        BuildDisplayGrid();
    });
    connect(m_ui->chkEditBoxOnly, &QCheckBox::toggled, this,
            [this](bool on) { m_editor.SetEditBoxOnly(on); });
    connect(m_ui->cmbSortPaletteBy, &QComboBox::activated, this, [this](int line) {
        m_editor.SortPalette(m_ui->cmbSortPaletteBy->itemData(line).toInt());
        BuildDisplayGrid();
    });
    connect(m_ui->picPalette, &PaletteGrid::EntrySelected, this, [this](int entry) {
        m_editor.SelectFloss(entry);
        m_ui->flossInfo->ShowFlossInfo();
        EnableParts();
    });
    connect(m_ui->picPalette, &PaletteGrid::RemoveRequested, m_ui->cmdRemoveColor,
            &QPushButton::click);
    connect(m_ui->picPalette, &PaletteGrid::Reached, this, [this](const QRect& rect) {
        m_ui->paletteArea->ensureVisible(rect.center().x(), rect.center().y(), rect.width(),
                                         rect.height());
    });
    connect(m_ui->flossInfo, &FlossInfoPanel::Edited, this,
            [this] { m_ui->picPalette->Refresh(m_editor.SelectedFloss()); });
}

void frmPalette::ConnectDragging() {
    connect(m_ui->picAvailable, &AvailableList::DraggedOver, this,
            [this](const QPoint& at) { m_ui->picPalette->ShowDropTarget(EntryUnder(at)); });
    connect(m_ui->picAvailable, &AvailableList::DragEnded, this,
            [this] { m_ui->picPalette->ShowDropTarget(0); });
    connect(m_ui->picAvailable, &AvailableList::DroppedAt, this, &frmPalette::DropAvailable);
    connect(m_ui->picPalette, &PaletteGrid::DroppedAt, this, [this](int entry, const QPoint& at) {
        if (IsOver(*m_ui->picAvailable, at)) {
            m_editor.SelectFloss(entry);
            m_editor.Remove();
            BuildDisplayGrid();
        }
    });
}

int frmPalette::EntryUnder(const QPoint& globalPos) const {
    return IsOver(*m_ui->paletteArea->viewport(), globalPos)
               ? m_ui->picPalette->EntryAt(m_ui->picPalette->mapFromGlobal(globalPos))
               : 0;
}

void frmPalette::DropAvailable(const QPoint& globalPos) {
    const int entry = EntryUnder(globalPos);
    if (entry > 0) {
        m_editor.DropOn(entry);
        BuildDisplayGrid();
    } else if (IsOver(*m_ui->paletteArea->viewport(), globalPos)) {
        m_ui->cmdAdd->click();
    }
}

void frmPalette::LoadAvailableColorsList() {
    m_ui->picAvailable->Refresh();
    EnableParts();
}

void frmPalette::BuildDisplayGrid() {
    m_ui->picPalette->Refresh(m_editor.SelectedFloss());
    m_ui->flossInfo->ShowFlossInfo();
    EnableParts();
}

void frmPalette::EnableParts() {
    const int entry = m_editor.SelectedFloss();
    const bool offered = m_editor.Available().Selected() > 0;
    m_ui->cmdAdd->setEnabled(offered);
    m_ui->cmdReplaceColor->setEnabled(entry > 0);
    m_ui->cmdRemoveColor->setEnabled(entry > 0);
    m_ui->cmbBlend->setEnabled(m_editor.CanToggleBlend());
    m_ui->cmbBlend->setText(m_editor.Flosses().IsBlended(entry)
                                ? QStringLiteral("Remove &Blend")
                                : QStringLiteral("&Blend Current with Available"));
}

void frmPalette::Search() {
    if (m_editor.Available().Find(m_ui->txtSearch->text().toStdString())) {
        m_ui->picAvailable->ShowSelected();
    }
    m_ui->txtSearch->selectAll();
}

void frmPalette::ToggleBlend() {
    try {
        m_editor.ToggleBlend();
    } catch (const std::exception&) {
        // The window stays open with what it shows; whatever stood in the way left the pattern.
        QGuiApplication::restoreOverrideCursor();
    }
    BuildDisplayGrid();
}

void frmPalette::SelectAvailable(int row) {
    m_editor.Available().Select(row);
    EnableParts();
}

void frmPalette::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_ui->txtSearch->hasFocus()) {
        Search();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace zol
