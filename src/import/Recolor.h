// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "import/ImportCandidates.h"
#include "import/ImportStatus.h"
#include "import/Picture.h"

namespace zol {

class ProgressDoor;

/// Matches every pixel to its nearest candidate, thins out the candidates to `maxColors`, and
/// matches every pixel again among those left: `preview` then holds exact floss colours, with
/// EraseColor where `image` is erased and WhiteStandIn for a white floss. The candidates keep who
/// is in play and what they won. Unless it is done, `preview` stays as it was.
[[nodiscard]] ImportStatus RecolorPicture(const Picture& image, ImportCandidates& candidates,
                                          int maxColors, std::string_view colorWord,
                                          ProgressDoor* progress, Picture& preview);

} // namespace zol
