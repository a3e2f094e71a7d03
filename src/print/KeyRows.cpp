// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/KeyRows.h"

#include <algorithm>

#include "flosses/CatalogueList.h"
#include "flosses/Palette.h"

namespace zol {

namespace {

QString Q(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

} // namespace

MainCatalogue MainCatalogue::Of(const ProgramContext& context) {
    MainCatalogue main;
    if (context.CurrentCatalogue != nullptr && !context.CurrentCatalogue->GetShortDesc().empty()) {
        main.Short = context.CurrentCatalogue->GetShortDesc();
        main.Desc = main.Short;
    }
    if (context.CurrentCatalogue != nullptr && !context.CurrentCatalogue->GetManuDesc().empty()) {
        main.Desc = context.CurrentCatalogue->GetManuDesc();
    }
    return main;
}

bool MainCatalogue::Holds(const Palette& palette, int entry) const {
    return !palette.IsBlended(entry) && palette.GetManufShortDesc(entry) == Short;
}

QString FlossCodeOf(const Palette& palette, int entry, const MainCatalogue& main) {
    const QString code = Q(palette.GetManufID(entry));
    if (palette.IsBlended(entry)) {
        return code + QStringLiteral("/") + Q(palette.GetBlendManufID(entry));
    }
    return main.Holds(palette, entry)
               ? code
               : Q(palette.GetManufShortDesc(entry)) + QStringLiteral(" ") + code;
}

KeyRows::KeyRows(const Pattern& pattern, const PrintOptions& options)
    : m_pattern(&pattern),
      m_options(options),
      m_main(MainCatalogue::Of(pattern.Context())) {
    LoadOtherManus();
}

void KeyRows::LoadOtherManus() {
    if (!m_pattern->AllowFlossMapping()) {
        return;
    }
    const ProgramContext& context = m_pattern->Context();
    for (const std::string& name : SplitMapFlosses(m_options.MapFlosses)) {
        auto catalogue = std::make_unique<AvailColors>(context);
        if (catalogue->Initialize(name)) {
            m_otherManus.push_back(std::move(catalogue));
        }
    }
}

KeySection KeyRows::MakeSection(bool isOther, bool isBackstitch) const {
    KeySection section;
    section.IsOther = isOther;
    section.IsBackstitch = isBackstitch;
    section.Title = GetLegendTitle(isOther, isBackstitch);
    const Palette& palette = m_pattern->GetPalette();
    for (int position = 1; position <= palette.GetEntriesCount(); ++position) {
        const int entry = palette.GetSortIndex(position);
        if (IsInSection(entry, section)) {
            section.Rows.push_back(BuildKeyRow(entry, section));
        }
    }
    return section;
}

bool KeyRows::IsInSection(int entry, const KeySection& section) const {
    if (m_pattern->GetColorCount(section.IsBackstitch ? 1 : 0, entry) == 0) {
        return false;
    }
    return m_main.Holds(m_pattern->GetPalette(), entry) != section.IsOther;
}

KeyRow KeyRows::BuildKeyRow(int entry, const KeySection& section) const {
    const Palette& palette = m_pattern->GetPalette();
    KeyRow row;
    row.Floss = palette.GetFlossRGB(entry);
    row.Symbol =
        section.IsBackstitch ? palette.GetDefaultBSType(entry) : palette.GetFlossSymbol(entry);
    row.Manus.append(FlossCodeOf(palette, entry, m_main));
    if (!section.IsOther) {
        const std::int32_t masterID = palette.GetFlossMasterID(entry);
        for (const auto& catalogue : m_otherManus) {
            // An identity of 0 is none; it would find the first floss a user made.
            const int found = masterID == 0 ? -1 : catalogue->GetMapIndex(masterID);
            row.Manus.append(found > 0 ? Q(catalogue->GetFlossManuID(found)) : QStringLiteral(" "));
        }
    }
    if (m_options.PrintManuDesc) {
        row.Desc = Q(palette.GetFlossShortDesc(entry));
    }
    if (m_options.PrintStrands) {
        const int strands = section.IsBackstitch ? palette.GetFlossBackStitchStrands(entry)
                                                 : palette.GetFlossStitchStrands(entry);
        row.Desc += QStringLiteral(" (") + QString::number(strands) + QStringLiteral(")");
    }
    return row;
}

QString KeyRows::GetLegendTitle(bool isOther, bool isBackstitch) const {
    QString title = isBackstitch ? QStringLiteral("Backstitches: ") : QStringLiteral("Legend: ");
    if (isOther) {
        title += QStringLiteral("Other Manufacturers");
    } else {
        title += Q(m_main.Desc);
        if (m_options.PrintManuID) {
            for (const auto& catalogue : m_otherManus) {
                title += QStringLiteral(" / ") + Q(catalogue->GetManuDesc());
            }
        }
    }
    if (m_options.PrintStrands) {
        title += QStringLiteral(" (strands)");
    }
    return title;
}

KeyColumns KeyRows::MeasureKeyColumns(const KeySection& section, const PageFont& font) const {
    KeyColumns columns;
    const std::size_t manus =
        m_options.PrintManuID ? (section.IsOther ? 1 : 1 + m_otherManus.size()) : 0;
    columns.Manus.assign(manus, 0);
    for (const KeyRow& row : section.Rows) {
        for (std::size_t i = 0; i < manus; ++i) {
            columns.Manus[i] =
                std::max(columns.Manus[i], font.TextWidth(row.Manus[static_cast<qsizetype>(i)]));
        }
        // Empty unless descriptions or strands are printed.
        columns.Desc = std::max(columns.Desc, font.TextWidth(row.Desc));
    }
    const int blank = font.TextWidth(QStringLiteral(" "));
    const int slash = font.TextWidth(QStringLiteral(" / "));
    columns.Row = (manus > 0 ? columns.Manus[0] : 0) + blank;
    for (std::size_t i = 1; i < manus; ++i) {
        columns.Row += slash + columns.Manus[i];
    }
    columns.Row += blank + columns.Desc;
    return columns;
}

} // namespace zol
