// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportPreview.h"

#include <memory>
#include <utility>

#include "import/Recolor.h"

namespace zol {

ImportPreview PreviewWork::Run(ProgressDoor* progress) const {
    ImportPreview preview{{}, {}, Candidates, MaxColors, Choices};
    Picture squares;
    preview.Status =
        RecolorPicture(*Image, preview.Candidates, MaxColors, ColorWord, progress, squares);
    preview.Squares = std::make_shared<const Picture>(std::move(squares));
    return preview;
}

} // namespace zol
