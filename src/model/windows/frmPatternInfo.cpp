// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/windows/frmPatternInfo.h"

#include <QLineEdit>
#include <QPushButton>

#include "model/LengthUnits.h"
#include "model/windows/InstructionsEditor.h"
#include "model/windows/ui_frmPatternInfo.h"
#include "settings/basCommonFunctions.h"
#include "windowkit/DialogSize.h"
#include "windowkit/NumericFilter.h"
#include "windowkit/TabOrder.h"

namespace zol {

namespace {

using basCommonFunctions::FieldText;
using basCommonFunctions::FieldValue;

constexpr const char* MessageTitle = "Pattern Information";
constexpr int LargestListedCount = 40;
constexpr int SizeFigures = 5;
constexpr int LengthPlaces = 3;

void FillCounts(QComboBox& box, int count) {
    for (int listed = 1; listed <= LargestListedCount; ++listed) {
        box.addItem(QString::number(listed));
    }
    box.setCurrentIndex(box.findText(QString::number(count)));
    box.setEditText(QString::number(count));
    QLineEdit& field = *box.lineEdit();
    new NumericFilter(&field, 3, 0);
    // The arrow keys go on from what was typed.
    QObject::connect(&field, &QLineEdit::textEdited, &box, [&box, &field](const QString& text) {
        const int place = field.cursorPosition();
        if (const int listed = box.findText(text); listed >= 0) {
            box.setCurrentIndex(listed);
            field.setCursorPosition(place);
        }
    });
}

} // namespace

frmPatternInfo::frmPatternInfo(Uses use, const PatternInfo& present, const Desk& desk,
                               QWidget* parent)
    : QDialog(parent),
      m_use(use),
      m_present(present),
      m_chosen(present),
      m_desk(desk),
      m_ui(std::make_unique<Ui::frmPatternInfo>()) {
    m_ui->setupUi(this);
    SetUpFields();
    FillFields();
    ConnectFields();
    ShowOtherSize();
    m_ui->txtTitle->setFocus();
    RememberSize(*this, m_desk.Store);
}

frmPatternInfo::~frmPatternInfo() = default;

void frmPatternInfo::SetUpFields() {
    const bool isNew = m_use == Uses::New;
    setWindowTitle(isNew ? QStringLiteral("New Pattern") : QStringLiteral("Pattern Properties"));
    QPushButton& ok = *m_ui->buttonBox->button(QDialogButtonBox::Ok);
    ok.setObjectName(QStringLiteral("cmdOK"));
    if (isNew) {
        ok.setText(QStringLiteral("C&reate"));
    }
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    if (!m_desk.UseInches) {
        m_ui->optUnits->setText(QStringLiteral("Ce&ntimetres"));
    }
    m_widthFilter = new NumericFilter(m_ui->txtWidth, SizeFigures, 0);
    m_heightFilter = new NumericFilter(m_ui->txtHeight, SizeFigures, 0);
    m_editor = new InstructionsEditor(m_desk.InstructionsFont, m_desk.Messages, m_desk.Context,
                                      m_ui->picInfo1);
    m_ui->instructionsLayout->addWidget(m_editor);
    MoveBehindInTabOrder(*m_ui->buttonBox);
    // Whoever comes to that page wants to write, so its text has the keys before its bar.
    m_editor->setFocus();
}

void frmPatternInfo::FillFields() {
    m_ui->txtTitle->setText(QString::fromStdString(m_present.Title));
    m_ui->txtAuthor->setText(QString::fromStdString(m_present.Author));
    m_ui->txtCopyright->setText(QString::fromStdString(m_present.Copyright));
    m_ui->txtFabric->setText(QString::fromStdString(m_present.Fabric));
    FillCounts(*m_ui->cmbClothCountX, m_present.ClothCountX);
    FillCounts(*m_ui->cmbClothCountY, m_present.ClothCountY);
    PatternSizeFields fields;
    fields.Width = m_present.Width;
    fields.Height = m_present.Height;
    ShowSize(fields);
    const bool isSquare = m_present.ClothCountX == m_present.ClothCountY;
    m_ui->chkSquare->setChecked(isSquare);
    TieClothCounts(isSquare);
    m_editor->SetInstructions(m_present.Instructions);
}

void frmPatternInfo::ConnectFields() {
    connect(m_ui->optUnits, &QRadioButton::toggled, this, &frmPatternInfo::SwitchUnits);
    connect(m_ui->chkSquare, &QCheckBox::toggled, this, &frmPatternInfo::TieClothCounts);
    connect(m_ui->cmbClothCountX, &QComboBox::editTextChanged, this,
            &frmPatternInfo::FollowClothCount);
    for (QLineEdit* field : {m_ui->txtWidth, m_ui->txtHeight, m_ui->cmbClothCountX->lineEdit(),
                             m_ui->cmbClothCountY->lineEdit()}) {
        connect(field, &QLineEdit::textChanged, this, &frmPatternInfo::ShowOtherSize);
    }
}

// --- Size and cloth -----------------------------------------------------------------------

PatternSizeFields frmPatternInfo::Fields() const {
    PatternSizeFields fields;
    fields.Width = FieldValue(m_ui->txtWidth->text());
    fields.Height = FieldValue(m_ui->txtHeight->text());
    fields.ClothCountX = FieldValue(m_ui->cmbClothCountX->currentText());
    fields.ClothCountY = FieldValue(m_ui->cmbClothCountY->currentText());
    fields.UseUnits = m_usesUnits;
    fields.UnitsPerInch = m_desk.UseInches ? 1 : CentimetresPerInch;
    return fields;
}

void frmPatternInfo::ShowSize(const PatternSizeFields& fields) {
    m_usesUnits = fields.UseUnits;
    for (NumericFilter* filter : {m_widthFilter, m_heightFilter}) {
        filter->SetLimits(SizeFigures, m_usesUnits ? LengthPlaces : 0);
    }
    m_ui->txtWidth->setText(FieldText(fields.FieldText(fields.Width)));
    m_ui->txtHeight->setText(FieldText(fields.FieldText(fields.Height)));
}

void frmPatternInfo::ShowOtherSize() {
    PatternSizeFields fields = Fields();
    if (fields.FindFault(m_present)) {
        m_ui->lblOtherSize->clear();
        return;
    }
    fields.SwitchUnits(!fields.UseUnits);
    QString text = FieldText(fields.FieldText(fields.Width));
    text += QStringLiteral(" x ");
    text += FieldText(fields.FieldText(fields.Height));
    text += !fields.UseUnits   ? QStringLiteral(" stitches")
            : m_desk.UseInches ? QStringLiteral(" inches")
                               : QStringLiteral(" centimetres");
    m_ui->lblOtherSize->setText(text);
}

void frmPatternInfo::SwitchUnits(bool useUnits) {
    PatternSizeFields fields = Fields();
    if (useUnits == fields.UseUnits) {
        return;
    }
    if (const auto fault = fields.ClothFault()) {
        (useUnits ? m_ui->optStitches : m_ui->optUnits)->setChecked(true);
        Tell(*fault);
        return;
    }
    fields.SwitchUnits(useUnits);
    ShowSize(fields);
    ShowOtherSize();
}

void frmPatternInfo::TieClothCounts(bool square) {
    m_ui->cmbClothCountY->setEnabled(!square);
    m_ui->lblVertClothCount->setEnabled(!square);
    FollowClothCount();
}

void frmPatternInfo::FollowClothCount() {
    if (m_ui->chkSquare->isChecked()) {
        m_ui->cmbClothCountY->setCurrentText(m_ui->cmbClothCountX->currentText());
    }
}

// --- OK -----------------------------------------------------------------------------------

QWidget& frmPatternInfo::FieldOf(PatternInfoField field) const {
    switch (field) {
    case PatternInfoField::Width:
        return *m_ui->txtWidth;
    case PatternInfoField::Height:
        return *m_ui->txtHeight;
    case PatternInfoField::ClothCountX:
        return *m_ui->cmbClothCountX->lineEdit();
    case PatternInfoField::ClothCountY:
        return m_ui->chkSquare->isChecked() ? *m_ui->cmbClothCountX->lineEdit()
                                            : *m_ui->cmbClothCountY->lineEdit();
    case PatternInfoField::Instructions:
        break;
    }
    return *m_editor;
}

void frmPatternInfo::Tell(const PatternInfoFault& fault) {
    m_desk.Messages.TellMore(fault.Text, fault.More, MessageIcon::Stop, MessageTitle);
    const bool isText = fault.Where == PatternInfoField::Instructions;
    m_ui->tbsPatternInfo->setCurrentWidget(isText ? m_ui->picInfo1 : m_ui->picInfo0);
    QWidget& field = FieldOf(fault.Where);
    field.setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(&field)) {
        line->selectAll();
    }
}

PatternInfo frmPatternInfo::InFields(const PatternSizeFields& fields) const {
    PatternInfo info;
    fields.PutInto(info);
    info.Title = m_ui->txtTitle->text().toStdString();
    info.Author = m_ui->txtAuthor->text().toStdString();
    info.Copyright = m_ui->txtCopyright->text().toStdString();
    info.Fabric = m_ui->txtFabric->text().toStdString();
    info.Instructions = m_editor->Instructions();
    return info;
}

bool frmPatternInfo::MayResize(const PatternInfo& wanted) {
    return m_use == Uses::New || !wanted.CutsInto(m_present) ||
           m_desk.Messages.Ask(ResizeWarning, MessageIcon::Exclamation, MessageButtons::YesNo,
                               MessageTitle) == MessageAnswer::Yes;
}

void frmPatternInfo::accept() {
    const PatternSizeFields fields = Fields();
    if (const auto fault = fields.FindFault(m_present)) {
        Tell(*fault);
        return;
    }
    if (!m_editor->TakeTypedSize()) {
        return;
    }
    const PatternInfo wanted = InFields(fields);
    if (const auto fault = InstructionsFault(wanted, m_present)) {
        Tell(*fault);
        return;
    }
    if (MayResize(wanted)) {
        m_chosen = wanted;
        QDialog::accept();
    }
}

void frmPatternInfo::reject() {
    const bool isWritten = m_editor->Instructions() != m_present.Instructions;
    if (!isWritten || m_desk.Messages.Ask("The instructions were changed.\n"
                                          "Do you wish to leave without keeping them?",
                                          MessageIcon::Exclamation, MessageButtons::YesNo,
                                          MessageTitle) == MessageAnswer::Yes) {
        QDialog::reject();
    }
}

} // namespace zol
