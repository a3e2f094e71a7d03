// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/editing/AvailableFlosses.h"

#include <algorithm>

#include "flosses/PaletteEntry.h"
#include "model/ProgramContext.h"

namespace zol {

namespace {

constexpr int orderOfFiles = 1; ///< a catalogue is sorted by number when it is read

bool IsSame(const CatalogueRow& one, const CatalogueRow& other) {
    return one.FlossID == other.FlossID && one.Description == other.Description &&
           one.MasterID == other.MasterID && one.Red == other.Red && one.Green == other.Green &&
           one.Blue == other.Blue;
}

} // namespace

AvailableFlosses::AvailableFlosses(const ProgramContext& context)
    : m_context(context),
      m_names(ListCatalogues(context)),
      m_rows(context) {}

void AvailableFlosses::RefreshCatalogues() {
    m_names = ListCatalogues(m_context);
}

bool AvailableFlosses::IsListed(const std::string& fileName) const {
    return std::any_of(m_names.begin(), m_names.end(),
                       [wanted = LowerCase(fileName)](const CatalogueName& name) {
                           return name.FileName == wanted;
                       });
}

bool AvailableFlosses::Show(const std::string& fileName) {
    m_shown = LowerCase(fileName);
    const bool whole = m_rows.Initialize(fileName);
    if (m_order != orderOfFiles) {
        m_rows.SortByCategory(m_order);
    }
    m_selected = m_rows.GetFlossCount() > 0 ? 1 : 0;
    return whole;
}

void AvailableFlosses::Sort(int order) {
    m_order = order;
    if (m_selected == 0) {
        m_rows.SortByCategory(order);
        return;
    }
    const CatalogueRow kept = m_rows.GetRow(m_selected);
    m_rows.SortByCategory(order);
    m_selected = 1;
    while (m_selected < m_rows.GetFlossCount() && !IsSame(m_rows.GetRow(m_selected), kept)) {
        ++m_selected;
    }
}

void AvailableFlosses::Select(int row) {
    m_selected = row >= 1 && row <= m_rows.GetFlossCount() ? row : 0;
}

bool AvailableFlosses::Find(const std::string& number) {
    return SelectFirst([this, wanted = UpperCase(Trimmed(number))](int row) {
        return UpperCase(m_rows.GetFlossManuID(row)) == wanted;
    });
}

bool AvailableFlosses::Find(const std::string& number, Colour rgb) {
    return SelectFirst([this, rgb, wanted = UpperCase(Trimmed(number))](int row) {
        return UpperCase(m_rows.GetFlossManuID(row)) == wanted && m_rows.GetFlossRGB(row) == rgb;
    });
}

template<typename Test>
bool AvailableFlosses::SelectFirst(Test fits) {
    for (int row = 1; row <= m_rows.GetFlossCount(); ++row) {
        if (fits(row)) {
            m_selected = row;
            return true;
        }
    }
    return false;
}

FlossLook AvailableFlosses::LookOf(int row) const {
    return {m_rows.GetFlossRGB(row),
            NumberAndName(m_rows.GetFlossManuID(row), m_rows.GetFlossDesc(row))};
}

} // namespace zol
