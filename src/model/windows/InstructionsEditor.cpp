// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/windows/InstructionsEditor.h"

#include <QLabel>
#include <QTextEdit>
#include <QVBoxLayout>

#include "model/windows/FormatToolBar.h"
#include "print/RTFFuncs.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr double TabInches = 0.5; // where readers of rich text set their tabs
constexpr double PixelsPerInch = 96;

} // namespace

InstructionsEditor::InstructionsEditor(const QFont& textFont, MessageDoor& messages,
                                       const ProgramContext& context, QWidget* parent)
    : QWidget(parent),
      m_text(new QTextEdit(this)),
      m_leftOut(new QLabel(this)),
      m_bar(nullptr) {
    SetUpPaper(textFont);
    SetUpLeftOut();
    m_bar = new FormatToolBar(*m_text, messages, context, this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addWidget(m_bar);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_leftOut);
    setFocusProxy(m_text);
    m_bar->setMinimumWidth(m_bar->sizeHint().width()); // all keys in reach
}

void InstructionsEditor::SetUpPaper(const QFont& textFont) {
    m_text->setObjectName(QStringLiteral("rtxtInstructions"));
    m_text->setAccessibleName(QStringLiteral("Instructions"));
    m_text->setPalette(Theme::Palette(Theme::Look::Light));
    m_text->setFont(textFont);
    m_text->setTabStopDistance(TabInches * PixelsPerInch);
    m_text->document()->setDocumentMargin(12);
}

void InstructionsEditor::SetUpLeftOut() {
    m_leftOut->setObjectName(QStringLiteral("lblLeftOut"));
    m_leftOut->setText(QStringLiteral(
        "Parts of this text cannot be shown here and are not kept when it is edited."));
    m_leftOut->setWordWrap(true);
    m_leftOut->hide();
}

void InstructionsEditor::SetInstructions(const std::string& instructions) {
    m_before = instructions;
    m_leftOut->setVisible(RTFFuncs::LoadInstructions(*m_text->document(), instructions));
    m_text->moveCursor(QTextCursor::Start);
}

std::string InstructionsEditor::Instructions() const {
    return RTFFuncs::SaveInstructions(*m_text->document(), m_before);
}

bool InstructionsEditor::TakeTypedSize() {
    return m_bar->TakeTypedSize();
}

} // namespace zol
