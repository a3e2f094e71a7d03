// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPainterPath>
#include <QString>

#include <array>
#include <bitset>

namespace zol {

/// What a symbol leaves to a tired eye: its cell, blurred by a pixel and judged dark or light,
/// three times: as thick, as ordinary and as thin print would have it. Measures how unlike two
/// symbols still are then.
class SymbolBlot {
public:
    static constexpr int Room = 32; ///< Pixels a side of the field that cells lie in.
    /// The shares of black above which a blurred pixel is dark. One alone would be a matter of
    /// luck: a line that just misses it in one symbol and just reaches it in another would count
    /// as a difference that nobody sees.
    static constexpr std::array<double, 3> Dark{0.35, 0.4, 0.45};

    /// @param cell square, black on white, at most Room - 8 pixels a side
    explicit SymbolBlot(const QImage& cell);

    /// In thin print, where there are the fewest.
    [[nodiscard]] int DarkPixels() const { return static_cast<int>(m_dark.back().count()); }

    /// Pixels that differ, as a share of the cell, in the print that shows the difference least,
    /// when the other symbol is moved by up to a pixel in each direction to where it is most like
    /// this one.
    [[nodiscard]] double Distance(const SymbolBlot& other) const;

private:
    int m_size = 0;
    std::array<std::bitset<Room * Room>, Dark.size()> m_dark;
};

/// A shape given in an em box of 1 by 1 with y downwards, painted black into a white cell.
[[nodiscard]] QImage ShapeInCell(const QPainterPath& shape, int size);

} // namespace zol
