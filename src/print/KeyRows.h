// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <memory>
#include <vector>

#include "flosses/AvailColors.h"
#include "model/Pattern.h"
#include "print/PageFont.h"
#include "print/PrintOptions.h"

namespace zol {

/// One line of the key.
struct KeyRow {
    int Symbol = 0;    ///< code of the symbol; for backstitches the line style
    Colour Floss = 0;  ///< colour of sample, symbol or line
    QStringList Manus; ///< floss codes, one column a catalogue
    QString Desc;      ///< description and strands
};

/// One section of the key: the flosses of one kind of stitch, of the main catalogue or of others.
struct KeySection {
    bool IsOther = false;
    bool IsBackstitch = false;
    QString Title;
    std::vector<KeyRow> Rows;
};

/// The catalogue whose flosses stand in the key by their numbers alone.
struct MainCatalogue {
    std::string Short = "DMC"; ///< what a catalogue that was never loaded stands for
    std::string Desc = "DMC";

    [[nodiscard]] static MainCatalogue Of(const ProgramContext& context);
    [[nodiscard]] bool Holds(const Palette& palette, int entry) const;
};

/// What a floss is bought by: its number, behind its manufacturer where that is not the main
/// catalogue's; both numbers of a blend.
[[nodiscard]] QString FlossCodeOf(const Palette& palette, int entry, const MainCatalogue& main);

/// Widths of a section's columns in twips.
struct KeyColumns {
    std::vector<int> Manus;
    int Desc = 0;
    int Row = 0; ///< all of them with what stands between
};

/// Makes the rows of the key from a pattern, the main catalogue and those that its flosses are
/// mapped to. Paints nothing.
class KeyRows {
public:
    /// The pattern's counts must be those of CountStitches. The pattern must outlive this.
    KeyRows(const Pattern& pattern, const PrintOptions& options);

    /// The rows in the palette's display order; none where nothing is stitched.
    [[nodiscard]] KeySection MakeSection(bool isOther, bool isBackstitch) const;
    [[nodiscard]] KeyColumns MeasureKeyColumns(const KeySection& section,
                                               const PageFont& font) const;
    [[nodiscard]] int OtherManuCount() const { return static_cast<int>(m_otherManus.size()); }

private:
    [[nodiscard]] bool IsInSection(int entry, const KeySection& section) const;
    [[nodiscard]] KeyRow BuildKeyRow(int entry, const KeySection& section) const;
    [[nodiscard]] QString GetLegendTitle(bool isOther, bool isBackstitch) const;
    void LoadOtherManus();

    const Pattern* m_pattern;
    PrintOptions m_options;
    MainCatalogue m_main;
    std::vector<std::unique_ptr<AvailColors>> m_otherManus;
};

} // namespace zol
