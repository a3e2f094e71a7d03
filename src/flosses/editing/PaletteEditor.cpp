// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/editing/PaletteEditor.h"

#include <algorithm>
#include <utility>

#include "flosses/editing/MyColors.h"

namespace zol {

namespace {

constexpr Colour colourMask = 0xFFFFFF;

} // namespace

PaletteEditor::PaletteEditor(Desk desk, int selectedFloss)
    : m_desk(std::move(desk)),
      m_available(m_desk.Design.Context()) {
    SelectFloss(selectedFloss);
}

std::string PaletteEditor::ColorWord() const {
    return m_desk.Design.Context().ColorWord();
}

std::string PaletteEditor::LowerColorWord() const {
    return LowerCase(ColorWord());
}

void PaletteEditor::SelectFloss(int entry) {
    m_selected = entry >= 1 && entry <= Flosses().GetEntriesCount() ? entry : 0;
}

void PaletteEditor::BeginChange() {
    if (!m_changed) {
        m_changed = true;
        if (m_desk.BeforeFirstChange) {
            m_desk.BeforeFirstChange();
        }
    }
    m_desk.Design.SetChanged(true);
}

bool PaletteEditor::IsYes(const std::string& question, const std::string& title) const {
    return m_desk.Messages.Ask(question, MessageIcon::Question, MessageButtons::YesNo, title) ==
           MessageAnswer::Yes;
}

int PaletteEditor::FindInPalette(int row) const {
    const std::int32_t masterID = m_available.Rows().GetFlossMasterID(row);
    const Colour colour = m_available.Rows().GetFlossRGB(row);
    for (int entry = 1; entry <= Flosses().GetEntriesCount(); ++entry) {
        const bool found = masterID != 0 ? Flosses().GetFlossMasterID(entry) == masterID
                                         : (Flosses().GetFlossRGB(entry) & colourMask) == colour;
        if (found) {
            return entry;
        }
    }
    return 0;
}

// --- Adding -------------------------------------------------------------------------------------

bool PaletteEditor::HasRoom() const {
    if (Flosses().GetEntriesCount() < Palette::MostFlosses) {
        return true;
    }
    m_desk.Messages.Tell("A palette holds at most " + std::to_string(Palette::MostFlosses) +
                             " flosses.",
                         MessageIcon::Information, "Floss Palette");
    return false;
}

bool PaletteEditor::IsAdded(int row) const {
    const std::string number = m_available.Rows().GetFlossManuID(row);
    const std::string manufacturer = m_available.Rows().GetShortDesc();
    const std::string refusal =
        manufacturer + " " + number + " has already been added to your palette.";
    for (int entry = 1; entry <= Flosses().GetEntriesCount(); ++entry) {
        if (!Flosses().IsBlended(entry) && Flosses().GetManufID(entry) == number &&
            Flosses().GetManufShortDesc(entry) == manufacturer) {
            m_desk.Messages.Tell(refusal, MessageIcon::Exclamation, {});
            return true;
        }
    }
    return false;
}

int PaletteEditor::AddFloss(const CustomFloss& floss, const std::string& shortName,
                            const std::string& longName, std::int32_t masterID) {
    // Asked here and not by the palette, so that a cancelled floss has changed nothing. With every
    // symbol taken the new entry has none, and nobody is asked.
    std::string symbol;
    if (!Flosses().GetNextAvailableSymbol().empty()) {
        const std::optional<std::string> chosen = m_desk.Dialogs.AskSymbol(
            0, {floss.RGB, NumberAndName(floss.FlossID, floss.Description)});
        if (!chosen || chosen->empty()) {
            return 0;
        }
        symbol = *chosen;
    }
    BeginChange();
    const PaletteAddStatus status =
        Flosses().AddPaletteEntry(floss.RGB, floss.FlossID, floss.Description, shortName, symbol, 0,
                                  0, 0, masterID, LineStraight, longName);
    return status == PaletteAdded ? Flosses().GetEntriesCount() : 0;
}

int PaletteEditor::AddRow(int row) {
    const AvailColors& rows = m_available.Rows();
    if (row < 1 || row > rows.GetFlossCount() || IsAdded(row) || !HasRoom()) {
        return 0;
    }
    return AddFloss({rows.GetFlossRGB(row), rows.GetFlossManuID(row), rows.GetFlossDesc(row)},
                    rows.GetShortDesc(), rows.GetManuDesc(), rows.GetFlossMasterID(row));
}

bool PaletteEditor::Add() {
    const int entry = AddRow(m_available.Selected());
    if (entry == 0) {
        return false;
    }
    SelectFloss(entry);
    return true;
}

void PaletteEditor::SaveToMyColors(const CustomFloss& floss) {
    if (!MyColors::Save(m_desk.Design.Context(), floss, std::chrono::system_clock::now())) {
        m_desk.Messages.TellMore(
            "The floss could not be saved to \"My Colors\".",
            "It can be used in this pattern all the same. Look whether the folder \"Flosses\" can "
            "be written to.",
            MessageIcon::Exclamation, "Floss Palette");
        return;
    }
    const bool wasListed = m_available.IsListed(MyColors::FileName);
    m_available.RefreshCatalogues();
    // Somebody who works in another catalogue goes on there.
    if (!wasListed || m_available.Shown() == LowerCase(MyColors::FileName)) {
        m_available.Show(MyColors::FileName);
        m_available.Find(floss.FlossID, floss.RGB);
    }
}

bool PaletteEditor::Create() {
    if (!HasRoom()) {
        return false;
    }
    const std::optional<CustomFloss> floss =
        m_desk.Dialogs.AskCustomFloss(MyColors::CanSave(m_desk.Design.Context()));
    if (!floss) {
        return false;
    }
    if (floss->SaveToMyColors) {
        SaveToMyColors(*floss);
    }
    const int entry = AddFloss(*floss, MyColors::ShortName, MyColors::LongName, 0);
    if (entry == 0) {
        return false;
    }
    SelectFloss(entry);
    return true;
}

// --- Blending -----------------------------------------------------------------------------------

bool PaletteEditor::CanToggleBlend() const {
    return HasSelection() && (Flosses().IsBlended(m_selected) || m_available.Selected() > 0);
}

bool PaletteEditor::ToggleBlend() {
    if (!CanToggleBlend()) {
        return false;
    }
    if (m_editBoxOnly &&
        !IsYes("Blending cannot be turned on and off only within a selected area.\n"
               "Do you wish to affect this palette entry for the entire pattern?")) {
        return false;
    }
    const int stitches = CountOf(0, m_selected);
    if (stitches > 0 && !IsYes("You are about to change " + std::to_string(stitches) +
                                   " stitches in your current pattern.  \n"
                                   "Do you wish to continue?",
                               "Blend Floss " + ColorWord())) {
        return false;
    }
    BeginChange();
    if (Flosses().IsBlended(m_selected)) {
        Flosses().RemoveBlend(m_selected);
        return true;
    }
    const AvailColors& rows = m_available.Rows();
    const int row = m_available.Selected();
    Flosses().BlendFloss(m_selected, rows.GetFlossRGB(row), rows.GetFlossManuID(row),
                         rows.GetShortDesc(), rows.GetFlossDesc(row), rows.GetFlossMasterID(row));
    return true;
}

// --- The selected floss -------------------------------------------------------------------------

bool PaletteEditor::ChangeSymbol() {
    if (!HasSelection()) {
        return false;
    }
    const std::optional<std::string> symbol = m_desk.Dialogs.AskSymbol(m_selected, {});
    if (!symbol || symbol->empty() ||
        Palette::SymbolCodeOf(*symbol) == Flosses().GetFlossSymbol(m_selected)) {
        return false;
    }
    BeginChange();
    Flosses().SetFlossSymbol(m_selected, *symbol);
    return true;
}

bool PaletteEditor::SetFlossID(const std::string& text) {
    if (!HasSelection() || Trimmed(text) == Flosses().GetManufID(m_selected)) {
        return false;
    }
    BeginChange();
    Flosses().SetFlossManuIDs(m_selected, text);
    return true;
}

bool PaletteEditor::SetDescription(const std::string& text) {
    if (!HasSelection() || Trimmed(text) == Flosses().GetFlossShortDesc(m_selected)) {
        return false;
    }
    BeginChange();
    Flosses().SetFlossDesc(m_selected, text);
    return true;
}

bool PaletteEditor::SetStrands(int stitch, int backStitch) {
    if (!HasSelection() || (Flosses().GetFlossStitchStrands(m_selected) == stitch &&
                            Flosses().GetFlossBackStitchStrands(m_selected) == backStitch)) {
        return false;
    }
    BeginChange();
    Flosses().SetFlossStrands(m_selected, stitch, backStitch);
    return true;
}

bool PaletteEditor::SetLineStyle(const LineStyleChoice& choice) {
    if (!HasSelection()) {
        return false;
    }
    if (Flosses().GetDefaultBSType(m_selected) != choice.Style) {
        BeginChange();
        Flosses().SetDefaultBSType(m_selected, choice.Style);
    }
    if (IsYes("Would you like to like to change the line style for all  -  " +
              Flosses().GetFlossLongDesc(m_selected) + " backstitches in pattern")) {
        BeginChange();
        m_desk.Design.Changebackstitchline(m_selected, choice.Picture);
    }
    return true;
}

bool PaletteEditor::SetNonRep(Colour colour, const std::string& description) {
    if (!HasSelection() || (Flosses().GetNonRepColor(m_selected) == colour &&
                            Flosses().GetNonRepDesc(m_selected) == description)) {
        return false;
    }
    BeginChange();
    Flosses().SetNonRepColor(m_selected, colour);
    Flosses().SetNonRepDesc(m_selected, description);
    return true;
}

} // namespace zol
