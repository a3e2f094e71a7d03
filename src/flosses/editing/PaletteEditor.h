// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "flosses/editing/AvailableFlosses.h"
#include "flosses/editing/PaletteDialogs.h"
#include "model/Pattern.h"

namespace zol {

/// A line style as the palette editor lists it.
struct LineStyleChoice {
    const char* Key;
    const char* Label;
    LineStyle Style;
    int Picture; ///< of Pattern::Changebackstitchline
};
inline constexpr std::array<LineStyleChoice, 6> LineStyleChoices{{
    {"STRAIGHT", "Line", LineStraight, 1},
    {"SQUIGGLE", "Squiggle", LineSquiggle, 6},
    {"DASHED", "Dashed", LineDashed, 2},
    {"DOTTED", "Dotted", LineDotted, 3},
    {"PLUS", "Plus Signs", LinePlus, 4},
    {"TRACKS", "Tracks", LineTracks, 5},
}};

/// Edits the flosses of a pattern in place, and the stitches with them: every step counts what it
/// will change and asks first. Operations answer whether anything was changed; what is selected
/// then may be another entry.
class PaletteEditor {
public:
    /// What the editor works on and through. All of it outlives the editor.
    struct Desk {
        Pattern& Design;
        MessageDoor& Messages;
        PaletteDialogs& Dialogs;
        /// The selected area of the design, if there is one.
        std::optional<SquareRect> EditBox = {};
        /// Called once, just before the first change.
        std::function<void()> BeforeFirstChange = {};
    };

    PaletteEditor(Desk desk, int selectedFloss);

    [[nodiscard]] Pattern& Design() const { return m_desk.Design; }
    [[nodiscard]] zol::Palette& Flosses() const { return m_desk.Design.GetPalette(); }
    [[nodiscard]] AvailableFlosses& Available() { return m_available; }
    [[nodiscard]] const AvailableFlosses& Available() const { return m_available; }

    /// 0: none.
    [[nodiscard]] int SelectedFloss() const { return m_selected; }
    void SelectFloss(int entry);
    [[nodiscard]] bool HasEditBox() const { return m_desk.EditBox.has_value(); }
    /// `chkEditBoxOnly`; without an edit box it stays off.
    void SetEditBoxOnly(bool on) { m_editBoxOnly = on && HasEditBox(); }
    [[nodiscard]] bool IsEditBoxOnly() const { return m_editBoxOnly; }
    [[nodiscard]] bool HasChanged() const { return m_changed; }

    /// The entry of a row of the catalogue, 0 if it is not in the palette: by master identity, or
    /// by colour where the row has none.
    [[nodiscard]] int FindInPalette(int row) const;

    /// Adds the selected floss of the catalogue and selects it.
    bool Add();
    /// Asks for a floss of the user's own and adds it.
    bool Create();
    /// Blends the selected entry with the selected floss of the catalogue, or ends its blend.
    bool ToggleBlend();
    [[nodiscard]] bool CanToggleBlend() const;
    bool Remove();
    /// Asks what takes the selected entry's place.
    bool Replace();
    /// The selected floss of the catalogue was dropped on an entry, which it replaces.
    bool DropOn(int entry);
    /// The display order of the palette; no change of the design.
    void SortPalette(int order) { Flosses().Sort(order); }

    bool ChangeSymbol();
    bool SetFlossID(const std::string& text);
    bool SetDescription(const std::string& text);
    bool SetStrands(int stitch, int backStitch);
    /// Asks whether lines that are there take the style too.
    bool SetLineStyle(const LineStyleChoice& choice);
    bool SetNonRep(Colour colour, const std::string& description);

private:
    [[nodiscard]] bool HasSelection() const { return m_selected > 0; }
    /// To be called before each change.
    void BeginChange();
    /// Stitches of an entry (0), or stitches and lines (2); in the area or everywhere.
    [[nodiscard]] int CountOf(int which, int entry, const std::optional<SquareRect>& area = {});
    [[nodiscard]] bool IsYes(const std::string& question, const std::string& title = {}) const;
    [[nodiscard]] bool MayReplace(int stitches) const;
    [[nodiscard]] bool HasRoom() const;
    [[nodiscard]] bool IsAdded(int row) const;
    /// The new entry, 0 if the user cancelled.
    int AddFloss(const CustomFloss& floss, const std::string& shortName,
                 const std::string& longName, std::int32_t masterID);
    int AddRow(int row);
    void SaveToMyColors(const CustomFloss& floss);
    bool ReplaceInPalette(int oldEntry, int newEntry);
    bool ReplaceByEntry(int entry);
    bool ReplaceByAvailable();
    void TurnInto(int entry, int row);
    [[nodiscard]] std::string ColorWord() const;
    [[nodiscard]] std::string LowerColorWord() const;

    Desk m_desk;
    AvailableFlosses m_available;
    int m_selected = 0;
    bool m_editBoxOnly = false;
    bool m_changed = false;
};

} // namespace zol
