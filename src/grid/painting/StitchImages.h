// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "model/ZOLTypes.h"

namespace zol {

/// The pictures of a stitch in each floss on each cloth, made on demand from a grey template and
/// kept by floss colour and cloth colour, so that a change of either is seen. Slots stay valid for
/// the store's life.
class StitchImages {
public:
    StitchImages();

    /// Slot of the image of a floss on a cloth.
    [[nodiscard]] int SlotOf(Colour floss, Colour cloth);
    /// The image in a slot; a null image for slots that were never given.
    [[nodiscard]] QImage Image(int slot) const;
    [[nodiscard]] const QImage& Template() const { return m_template; }

    /// The template tinted: a pixel whose mean is 125 or more takes the floss colour scaled by it,
    /// any other the cloth's.
    [[nodiscard]] static QImage Tint(const QImage& picture, Colour floss, Colour cloth);

private:
    QImage m_template;
    std::vector<QImage> m_images;
    std::unordered_map<std::uint64_t, int> m_slots;
};

} // namespace zol
