// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/FlossInfoPanel.h"

#include "flosses/editing/PaletteEditor.h"
#include "flosses/windows/NonRepColors.h"
#include "flosses/windows/frmColorList.h"
#include "flosses/windows/ui_FlossInfoPanel.h"
#include "grid/painting/SymbolText.h"
#include "windowkit/EnterTakes.h"

namespace zol {

namespace {

constexpr int MostStrands = 12; ///< two lengths of six; a floss that has more shows it all the same

QString Colon(const std::string& name) {
    return QString::fromStdString(name) + QLatin1Char(':');
}

} // namespace

FlossInfoPanel::FlossInfoPanel(QWidget* parent)
    : QWidget(parent),
      m_ui(std::make_unique<Ui::FlossInfoPanel>()) {
    m_ui->setupUi(this);
    m_ui->tbFlossInfo->tabBar()->setObjectName(QStringLiteral("tbsFlossInfo"));
}

FlossInfoPanel::~FlossInfoPanel() = default;

void FlossInfoPanel::SetEditor(PaletteEditor& editor, SettingsDoor& store, MessageDoor& messages,
                               QObject& whole) {
    m_editor = &editor;
    m_store = &store;
    m_messages = &messages;
    FillLists();
    ConnectFields(whole);
    ConnectParts();
}

void FlossInfoPanel::FillLists() {
    for (int strands = 1; strands <= MostStrands; ++strands) {
        m_ui->cmbStitchStrands->addItem(QString::number(strands), strands);
        m_ui->cmbBackStitchStrands->addItem(QString::number(strands), strands);
    }
    for (const LineStyleChoice& choice : LineStyleChoices) {
        m_ui->cmbBSSymbol->addItem(QString::fromLatin1(choice.Label),
                                   QString::fromLatin1(choice.Key));
    }
    LoadNonRepColors(*m_ui->cmbNonRepColors, *m_store, true, 0);
}

void FlossInfoPanel::SayIf(bool edited) {
    if (edited) {
        Q_EMIT Edited();
    }
}

void FlossInfoPanel::ConnectFields(QObject& whole) {
    for (QLineEdit* field : {m_ui->txtFlossID, m_ui->txtFlossDescription}) {
        // As leaving the field does.
        new EnterTakes(*field, [field] {
            Q_EMIT field->editingFinished();
            field->selectAll();
        });
    }
    connect(m_ui->txtFlossID, &QLineEdit::editingFinished, &whole,
            [this] { SayIf(m_editor->SetFlossID(m_ui->txtFlossID->text().toStdString())); });
    connect(m_ui->txtFlossDescription, &QLineEdit::editingFinished, &whole, [this] {
        SayIf(m_editor->SetDescription(m_ui->txtFlossDescription->text().toStdString()));
    });
}

void FlossInfoPanel::ConnectParts() {
    connect(m_ui->cmdChangeSymbol, &QPushButton::clicked, this, [this] {
        SayIf(m_editor->ChangeSymbol());
        ShowSymbol(m_editor->SelectedFloss());
    });
    // What a list shows changes with the entry; only the user's choices count.
    connect(m_ui->cmbStitchStrands, &QComboBox::activated, this, &FlossInfoPanel::SetStrands);
    connect(m_ui->cmbBackStitchStrands, &QComboBox::activated, this, &FlossInfoPanel::SetStrands);
    connect(m_ui->cmbBSSymbol, &QComboBox::activated, this, &FlossInfoPanel::SetLineStyle);
    connect(m_ui->cmbNonRepColors, &QComboBox::activated, this, &FlossInfoPanel::SetNonRep);
    connect(m_ui->cmdCustNonRepColor, &QPushButton::clicked, this,
            &FlossInfoPanel::CustomizeNonRep);
}

void FlossInfoPanel::ShowFlossInfo() {
    const int entry = m_editor->SelectedFloss();
    const Palette& flosses = m_editor->Flosses();
    setEnabled(entry > 0);
    ShowTexts(entry);
    ShowSymbol(entry);
    ShowStrands(*m_ui->cmbStitchStrands, flosses.GetFlossStitchStrands(entry));
    ShowStrands(*m_ui->cmbBackStitchStrands, flosses.GetFlossBackStitchStrands(entry));
    ShowLineStyle(flosses.GetDefaultBSType(entry));
    LoadNonRepColors(*m_ui->cmbNonRepColors, *m_store, false, flosses.GetNonRepColor(entry));
    m_ui->picNonRepColor->SetColor(flosses.GetNonRepColor(entry));
}

void FlossInfoPanel::ShowTexts(int entry) {
    const Palette& flosses = m_editor->Flosses();
    // Beside a field of its own a label takes a single ampersand for a mnemonic.
    m_ui->lblManuf->setText(
        Colon(flosses.GetManufShortDesc(entry)).replace(QLatin1Char('&'), QLatin1String("&&")));
    m_ui->txtFlossID->setText(QString::fromStdString(flosses.GetManufID(entry)));
    m_ui->txtFlossDescription->setText(QString::fromStdString(flosses.GetFlossShortDesc(entry)));
    const bool blended = flosses.IsBlended(entry);
    for (QWidget* part :
         {static_cast<QWidget*>(m_ui->lblBlendedWith), static_cast<QWidget*>(m_ui->lblManufB),
          static_cast<QWidget*>(m_ui->txtFlossIDB)}) {
        part->setVisible(blended);
    }
    m_ui->lblManufB->setText(Colon(flosses.GetBlendManufShortDesc(entry)));
    m_ui->txtFlossIDB->setText(blended ? QString::fromStdString(flosses.GetBlendManufID(entry))
                                       : QString());
}

void FlossInfoPanel::ShowSymbol(int entry) {
    const int code = m_editor->Flosses().GetFlossSymbol(entry);
    m_ui->picSymbol->SetSymbol(m_editor->Flosses(), code);
    const char32_t sign = SymbolText::ToUnicode(code);
    m_ui->txtSymbol->setText(code != 0 ? QString::fromUcs4(&sign, 1) : QString());
}

void FlossInfoPanel::ShowStrands(QComboBox& list, int strands) {
    if (list.findData(strands) < 0 && m_editor->SelectedFloss() > 0) {
        list.addItem(QString::number(strands), strands);
    }
    list.setCurrentIndex(list.findData(strands));
}

void FlossInfoPanel::ShowLineStyle(int style) {
    int line = -1;
    for (std::size_t i = 0; i < LineStyleChoices.size(); ++i) {
        if (LineStyleChoices[i].Style == style) {
            line = static_cast<int>(i);
        }
    }
    m_ui->cmbBSSymbol->setCurrentIndex(line);
}

void FlossInfoPanel::SetStrands() {
    m_editor->SetStrands(m_ui->cmbStitchStrands->currentData().toInt(),
                         m_ui->cmbBackStitchStrands->currentData().toInt());
}

void FlossInfoPanel::SetLineStyle(int line) {
    m_editor->SetLineStyle(LineStyleChoices[static_cast<std::size_t>(line)]);
}

void FlossInfoPanel::SetNonRep(int line) {
    const Colour colour = m_ui->cmbNonRepColors->itemData(line).toUInt();
    m_editor->SetNonRep(colour, m_ui->cmbNonRepColors->itemText(line).toStdString());
    m_ui->picNonRepColor->SetColor(colour);
}

void FlossInfoPanel::CustomizeNonRep() {
    frmColorList window(*m_store, *m_messages, m_editor->Flosses().Context(), this);
    window.exec();
    LoadNonRepColors(*m_ui->cmbNonRepColors, *m_store, true,
                     m_editor->Flosses().GetNonRepColor(m_editor->SelectedFloss()));
}

} // namespace zol
