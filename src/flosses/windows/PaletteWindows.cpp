// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/PaletteWindows.h"

#include <QString>

#include "flosses/windows/frmAddPalette.h"
#include "flosses/windows/frmColors.h"
#include "flosses/windows/frmDeleteColor.h"
#include "flosses/windows/frmReplaceColor.h"
#include "flosses/windows/frmSymbols.h"

namespace zol {

RemovalAnswer PaletteWindows::AskRemoval(const RemovalQuestion& question) {
    frmDeleteColor window(m_desk.Flosses, question, m_desk.Store, m_desk.Parent);
    return window.exec() == QDialog::Accepted ? window.Answer() : RemovalAnswer::Cancel;
}

std::optional<ReplacementAnswer>
PaletteWindows::AskReplacement(const ReplacementQuestion& question) {
    frmReplaceColor window(m_desk.Flosses, *m_available, question, m_desk.Store, m_desk.Parent);
    return window.exec() == QDialog::Accepted ? std::optional(window.Answer()) : std::nullopt;
}

std::optional<CustomFloss> PaletteWindows::AskCustomFloss(bool maySave) {
    constexpr Colour white = 0xFFFFFF;
    const ProgramContext& context = m_desk.Flosses.Context();
    const QString title = QString::fromStdString("Create Custom " + context.ColorWord());
    const int row = m_available->Selected();
    const int mixed = frmColors::CreateCustomColor(
        title, row > 0 ? m_available->Rows().GetFlossRGB(row) : white, m_desk.Parent,
        {&m_desk.Store, &m_available->Rows(), &context});
    if (mixed < 0) {
        return std::nullopt;
    }
    frmAddPalette window(static_cast<Colour>(mixed), maySave, context, m_desk.Store, m_desk.Parent);
    return window.exec() == QDialog::Accepted ? std::optional(window.Floss()) : std::nullopt;
}

std::optional<std::string> PaletteWindows::AskSymbol(int entry, const FlossLook& newFloss) {
    const FlossLook look = entry > 0 ? FlossLook{m_desk.Flosses.GetFlossRGB(entry),
                                                 m_desk.Flosses.GetFlossLongDesc(entry)}
                                     : newFloss;
    frmSymbols window(m_desk.Flosses, entry, look, m_desk.Messages, m_desk.Store, m_desk.Parent);
    return window.exec() == QDialog::Accepted ? std::optional(window.Symbol()) : std::nullopt;
}

} // namespace zol
