// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "flosses/AvailColors.h"
#include "flosses/CatalogueList.h"
#include "flosses/editing/PaletteDialogs.h"

namespace zol {

/// The flosses that can be taken into a palette: one catalogue of those on the disk, in the order
/// in which it is shown, with one row selected. A selected floss stays selected when rows move.
class AvailableFlosses {
public:
    explicit AvailableFlosses(const ProgramContext& context);

    [[nodiscard]] const std::vector<CatalogueName>& Catalogues() const { return m_names; }
    /// Looks at the disk again.
    void RefreshCatalogues();
    [[nodiscard]] bool IsListed(const std::string& fileName) const;
    /// Shows a catalogue by its file name and selects its first row; false if it cannot be read,
    /// which leaves an empty list.
    bool Show(const std::string& fileName);
    /// The file name of the shown catalogue, lower case.
    [[nodiscard]] const std::string& Shown() const { return m_shown; }
    /// 1 by number, 2 by description, 3 by hue. Later catalogues come in the same order.
    void Sort(int order);

    [[nodiscard]] const AvailColors& Rows() const { return m_rows; }
    /// 0: none.
    [[nodiscard]] int Selected() const { return m_selected; }
    void Select(int row);
    /// Selects the first row of that number, whatever the case of its letters. False if there is
    /// none; the selection then stays.
    bool Find(const std::string& number);
    /// The same for a row of that number, which may be empty, and colour.
    bool Find(const std::string& number, Colour rgb);

    /// What a window shows of a row: "310 - black".
    [[nodiscard]] FlossLook LookOf(int row) const;

private:
    template<typename Test>
    bool SelectFirst(Test fits);

    const ProgramContext& m_context;
    std::vector<CatalogueName> m_names;
    AvailColors m_rows;
    std::string m_shown;
    int m_order = 1;
    int m_selected = 0;
};

} // namespace zol
