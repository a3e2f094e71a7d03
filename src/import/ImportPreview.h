// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "import/ImportCandidates.h"
#include "import/ImportStatus.h"
#include "import/Picture.h"
#include "model/Doors.h"

namespace zol {

/// A picture as it would be stitched, and the candidates with those in play that it is stitched
/// in.
struct ImportPreview {
    ImportStatus Status; ///< the rest holds if it is done
    SharedPicture Squares;
    ImportCandidates Candidates;
    int MaxColors = 0;
    int Choices = 0; ///< of the work it comes from
};

/// All that a preview is worked out from, by value or never changed: so it may run on any thread,
/// beside anything.
struct PreviewWork {
    SharedPicture Image;
    ImportCandidates Candidates;
    int MaxColors = 0;
    std::string ColorWord;
    int Choices = 0; ///< which picture and candidates of the session these are

    /// The door may be null.
    [[nodiscard]] ImportPreview Run(ProgressDoor* progress) const;
};

/// A floss of a preview.
struct PreviewFloss {
    Colour ColorRGB = 0;
    std::string Number;
    std::string Name;
    int Stitches = 0;

    friend bool operator==(const PreviewFloss&, const PreviewFloss&) = default;
};

} // namespace zol
