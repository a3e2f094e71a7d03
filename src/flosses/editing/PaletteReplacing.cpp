// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What rewrites stitches: one floss gives way to another, or leaves the palette.

#include <algorithm>

#include "flosses/editing/PaletteEditor.h"

namespace zol {

namespace {

constexpr int stitchesAlone = 0;
constexpr int stitchesAndLines = 2;

/// Where flosses go when one takes the place of another that leaves the palette. One walk over the
/// pattern does then what changing the floss and removing it would take two for.
std::vector<std::uint8_t> MapOf(int oldEntry, int newEntry) {
    std::vector<std::uint8_t> map(NoFloss);
    for (std::size_t floss = 0; floss < map.size(); ++floss) {
        const int target = static_cast<int>(floss) == oldEntry ? newEntry : static_cast<int>(floss);
        map[floss] = static_cast<std::uint8_t>(target > oldEntry ? target - 1 : target);
    }
    return map;
}

} // namespace

int PaletteEditor::CountOf(int which, int entry, const std::optional<SquareRect>& area) {
    if (area) {
        m_desk.Design.CountStitches(area->Left, area->Top, area->Right, area->Bottom);
    } else {
        m_desk.Design.CountStitches();
    }
    return static_cast<int>(m_desk.Design.GetColorCount(which, entry));
}

bool PaletteEditor::MayReplace(int stitches) const {
    return stitches == 0 || IsYes("The Floss you are about to change the " + LowerColorWord() +
                                      " of " + std::to_string(stitches) +
                                      " stitches in your current pattern.  \n"
                                      "Do you wish to continue?",
                                  "Replace Floss " + ColorWord());
}

bool PaletteEditor::ReplaceInPalette(int oldEntry, int newEntry) {
    if (oldEntry == newEntry) {
        return false;
    }
    BeginChange();
    if (m_editBoxOnly) {
        const SquareRect& area = *m_desk.EditBox;
        m_desk.Design.ChangeColor(oldEntry, newEntry, area.Left, area.Top, area.Right, area.Bottom);
        SelectFloss(newEntry);
        return true;
    }
    m_desk.Design.MapPalette(MapOf(oldEntry, newEntry));
    Flosses().RemovePaletteEntry(oldEntry);
    SelectFloss(newEntry > oldEntry ? newEntry - 1 : newEntry);
    return true;
}

bool PaletteEditor::Remove() {
    if (!HasSelection()) {
        return false;
    }
    if (Flosses().GetEntriesCount() == 1) {
        m_desk.Messages.Tell("Your palette must contain at least one " + LowerColorWord(),
                             MessageIcon::Information, "Remove Floss");
        return false;
    }
    const int stitches = CountOf(stitchesAndLines, m_selected);
    if (stitches > 0) {
        const int closest = Flosses().GetClosest(Flosses().GetFlossRGB(m_selected), m_selected);
        const RemovalAnswer answer = m_desk.Dialogs.AskRemoval(
            {m_selected, closest,
             "There are currently " + std::to_string(stitches) + " stitches of this " +
                 LowerColorWord() + " in your pattern."});
        if (answer == RemovalAnswer::Cancel) {
            return false;
        }
        if (answer == RemovalAnswer::ReplaceStitches) {
            return ReplaceInPalette(m_selected, closest);
        }
    }
    BeginChange();
    m_desk.Design.RemoveColor(m_selected, Pattern::WholePattern, 0, 0, 0);
    SelectFloss(std::min(m_selected, Flosses().GetEntriesCount()));
    return true;
}

bool PaletteEditor::Replace() {
    if (!HasSelection()) {
        return false;
    }
    const std::optional<ReplacementAnswer> answer =
        m_desk.Dialogs.AskReplacement({m_selected, m_available.Selected()});
    if (!answer) {
        return false;
    }
    return answer->PaletteEntry > 0 ? ReplaceByEntry(answer->PaletteEntry) : ReplaceByAvailable();
}

bool PaletteEditor::DropOn(int entry) {
    SelectFloss(entry);
    return HasSelection() && ReplaceByAvailable();
}

bool PaletteEditor::ReplaceByEntry(int entry) {
    return entry != m_selected && MayReplace(CountOf(stitchesAndLines, m_selected)) &&
           ReplaceInPalette(m_selected, entry);
}

bool PaletteEditor::ReplaceByAvailable() {
    const int row = m_available.Selected();
    if (row == 0) {
        return false;
    }
    const int replaced = m_selected;
    if (!m_editBoxOnly) {
        if (!MayReplace(CountOf(stitchesAlone, replaced))) {
            return false;
        }
        TurnInto(replaced, row);
        return true;
    }
    if (!MayReplace(CountOf(stitchesAlone, replaced, m_desk.EditBox))) {
        return false;
    }
    int target = FindInPalette(row);
    if (target == 0) {
        target = AddRow(row);
    }
    return target > 0 && ReplaceInPalette(replaced, target);
}

void PaletteEditor::TurnInto(int entry, int row) {
    const AvailColors& rows = m_available.Rows();
    BeginChange();
    Flosses().ChangePaletteEntry(entry, rows.GetFlossRGB(row), rows.GetFlossManuID(row),
                                 rows.GetFlossDesc(row), rows.GetShortDesc(),
                                 rows.GetFlossMasterID(row), Palette::KeepStrands,
                                 Palette::KeepStrands);
    // The text that is shown follows its floss; a blend's names both of its threads.
    if (!Flosses().IsBlended(entry)) {
        Flosses().SetFlossDesc(entry, rows.GetFlossDesc(row));
        return;
    }
    const PaletteEntry blend = Flosses().GetEntry(entry);
    Flosses().BlendFloss(entry, blend.BlendRGB, blend.BlendFlossID.Text(),
                         Flosses().GetBlendManufShortDesc(entry), blend.BlendDescription.Text(),
                         blend.BlendMasterID);
}

} // namespace zol
