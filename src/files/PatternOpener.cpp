// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/PatternOpener.h"

#include "files/FileNameKind.h"
#include "files/PatternDesign.h"
#include "model/CodePage.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

std::string AdviceFor(int result) {
    switch (result) {
    case ErrInvalidFormat:
        return "It is no pattern of this release: it may come from an earlier release, or be "
               "another kind of file.";
    case ErrPermission:
        return "You may not read this file. Ask its owner, or copy it to a folder of your own.";
    case ErrOutOfMemory:
        return "The pattern asks for more squares than can be held.";
    default:
        return "The file is damaged. If there is a backup beside it (a file that ends in .bpt), "
               "open that one.";
    }
}

/// The title of recovered work tells both what file it was and what design it is.
std::string RecoveredTitle(const std::string& fileName, const std::string& title) {
    std::string text = fileName.empty() ? "Unsaved Pattern" : fileName;
    if (!title.empty()) {
        text += " - " + title;
    }
    return text;
}

} // namespace

DesignOpening PatternOpener::Open(const std::string& fileName, const std::string& displayName) {
    DesignOpening opening;
    opening.Result = m_pattern.Load(PathOf(fileName));
    if (opening.Result == ErrNone) {
        opening.Design = std::make_unique<PatternDesign>(m_pattern, displayName);
        return opening;
    }
    // Of a missing file the load itself tells all that there is to say.
    opening.AllTold = opening.Result == ErrNoSuchFile && m_pattern.Context().Messages != nullptr;
    opening.More = AdviceFor(opening.Result);
    return opening;
}

DesignOpening PatternOpener::Recover(const std::string& fileName, ByteReader& stream) {
    DesignOpening opening;
    opening.Result = m_pattern.Load(fileName, stream, 0, 0);
    if (opening.Result == ErrNone) {
        opening.Design =
            std::make_unique<PatternDesign>(m_pattern, RecoveredTitle(fileName, m_pattern.Title));
    }
    return opening;
}

bool UnreadFontOpener::Takes(const std::string& lowerCaseName) const {
    return KindOfFileName(lowerCaseName) == FileNameKind::StitchedFont;
}

DesignOpening UnreadFontOpener::Open(const std::string& /*fileName*/,
                                     const std::string& /*displayName*/) {
    DesignOpening opening;
    opening.Result = ErrInvalidFormat;
    opening.More = "It counts as a stitched font, since its name holds \".stf\", and this release "
                   "cannot open stitched fonts. A pattern can be opened under another name.";
    return opening;
}

DesignOpening UnreadFontOpener::Recover(const std::string& fileName, ByteReader& /*stream*/) {
    return Open(fileName, fileName);
}

} // namespace zol
