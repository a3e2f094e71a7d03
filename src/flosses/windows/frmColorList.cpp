// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmColorList.h"

#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

#include "flosses/windows/ColorSample.h"
#include "flosses/windows/frmColorListItem.h"
#include "flosses/windows/ui_frmColorList.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"

namespace zol {

frmColorList::frmColorList(SettingsDoor& store, MessageDoor& messages,
                           const ProgramContext& context, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmColorList>()),
      m_store(store),
      m_messages(messages),
      m_context(context),
      m_lines(ColorLists::LoadNonRepColors(store)) {
    m_ui->setupUi(this);
    Spell(*this, context);
    m_ui->buttonBox->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("cmdClose"));
    m_ui->picList->verticalScrollBar()->setObjectName(QStringLiteral("vsbList"));
    connect(m_ui->cmdAdd, &QPushButton::clicked, this, &frmColorList::Add);
    connect(m_ui->cmdChange, &QPushButton::clicked, this, &frmColorList::Change);
    connect(m_ui->cmdDelete, &QPushButton::clicked, this, &frmColorList::Delete);
    connect(m_ui->picList, &QListWidget::itemDoubleClicked, this, &frmColorList::Change);
    ShowList(0);
    resize(sizeHint());
    RememberSize(*this, store);
}

frmColorList::~frmColorList() = default;

void frmColorList::ShowList(int selected) {
    m_ui->picList->clear();
    for (const ColorLists::NamedColor& line : m_lines) {
        new QListWidgetItem(SwatchIcon(line.Value), QString::fromStdString(line.Description),
                            m_ui->picList);
    }
    m_ui->picList->setCurrentRow(std::min(selected, m_ui->picList->count() - 1));
    m_ui->cmdChange->setEnabled(!m_lines.empty());
    m_ui->cmdDelete->setEnabled(!m_lines.empty());
}

std::optional<ColorLists::NamedColor>
frmColorList::AskLine(const std::optional<ColorLists::NamedColor>& line) {
    frmColorListItem dialog(line, m_messages, m_context, this);
    return dialog.exec() == Accepted ? std::optional(dialog.Line()) : std::nullopt;
}

void frmColorList::Add() {
    if (const auto line = AskLine(std::nullopt)) {
        m_lines.push_back(*line);
        ShowList(static_cast<int>(m_lines.size()) - 1);
    }
}

void frmColorList::Change() {
    const int row = m_ui->picList->currentRow();
    if (row < 0) {
        return;
    }
    ColorLists::NamedColor& present = m_lines[static_cast<std::size_t>(row)];
    if (const auto line = AskLine(present)) {
        present = *line;
        ShowList(row);
    }
}

void frmColorList::Delete() {
    const int row = m_ui->picList->currentRow();
    if (row >= 0) {
        m_lines.erase(m_lines.begin() + row);
        ShowList(row);
    }
}

void frmColorList::done(int result) {
    ColorLists::SaveNonRepColors(m_store, m_lines);
    QDialog::done(result);
}

} // namespace zol
