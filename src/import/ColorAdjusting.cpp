// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ColorAdjusting.h"

#include <memory>
#include <utility>

namespace zol {

void ColorAdjusting::Start(SharedPicture image) {
    m_undo.reset();
    Reset(std::move(image));
}

SharedPicture ColorAdjusting::Adjusted(const SharedPicture& original, Adjustments::Kind kind,
                                       int slider, ProgressDoor* progress) {
    auto picture = std::make_shared<Picture>(*original);
    return Adjustments::ApplyWhile(progress, *picture, kind, slider) ? picture : nullptr;
}

void ColorAdjusting::Apply() {
    m_undo = std::exchange(m_original, m_new);
}

void ColorAdjusting::Undo() {
    if (m_undo != nullptr) {
        m_original = m_undo;
        m_new = m_undo;
    }
}

void ColorAdjusting::Reset(SharedPicture image) {
    m_original = image != nullptr ? std::move(image) : std::make_shared<const Picture>();
    m_new = m_original;
}

} // namespace zol
