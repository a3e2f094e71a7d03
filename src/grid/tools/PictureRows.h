// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRgb>

#include <cstdint>

namespace zol {

/// Pixels of a picture, premultiplied, that are laid row by row over opaque ones.
namespace PictureRows {

/// What the pixels of a run are, all of them.
enum class Kind : std::uint8_t {
    Through, ///< nothing, so that those below are seen
    Opaque,
    Chosen, ///< one or the other
    Mixed   ///< anything
};

[[nodiscard]] Kind KindOf(const QRgb* pixels, int count);

/// Asks for the first of these pixels to be at hand soon. Where runs of other kinds lie between
/// those that are read, the processor does not foresee which come next, and to wait for memory
/// takes longer than to lay a run.
void Expect(const QRgb* pixels, int count);

/// Lays `count` pixels of that kind over as many others; `below` and `to` may be the same.
void Lay(Kind kind, const QRgb* above, const QRgb* below, int count, QRgb* to);

} // namespace PictureRows
} // namespace zol
