// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>
#include <optional>

#include "import/ImportSession.h"
#include "import/ImportSize.h"
#include "import/Picture.h"
#include "model/ZOLTypes.h"

namespace zol {

/// What the screens of one import hand on to each other. Lives as long as the wizard, so that an
/// import that was left goes on where it stood.
struct ImportWork {
    explicit ImportWork(ProgramContext& context) : Session(context) {}

    /// The one picture that travels from screen to screen (`lpicTheImage`); null until the first
    /// screen was left.
    SharedPicture TheImage;
    /// Of the size screen: cloth, units, and whether the picture goes into the edit box.
    ImportSize Size;
    bool UseEditBox = false;
    /// The edit box of the design when the wizard was opened, in squares from 1; nothing without.
    std::optional<SquareRect> EditBox;
    /// Its size in squares.
    [[nodiscard]] std::optional<StitchSize> EditBoxSize() const {
        if (!EditBox) {
            return std::nullopt;
        }
        return StitchSize{std::abs(EditBox->Right - EditBox->Left) + 1,
                          std::abs(EditBox->Bottom - EditBox->Top) + 1};
    }
    /// Of the mapping screen, once it has been left forward.
    int MaxColors = 30;
    /// Candidates, preview, result.
    ImportSession Session;
};

} // namespace zol
