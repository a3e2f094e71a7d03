// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/FrenchKnot.h"

namespace zol {

void FrenchKnot::Load(ByteReader& stream) {
    X = stream.ReadI16();
    Y = stream.ReadI16();
    m_paletteIndex = stream.ReadU8();
    Orientation = KnotNormal;
}

void FrenchKnot::Save(ByteWriter& stream) const {
    stream.WriteI16(X);
    stream.WriteI16(Y);
    stream.WriteU8(m_paletteIndex);
}

} // namespace zol
