// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "flosses/AvailColors.h"
#include "flosses/Palette.h"
#include "import/ImportCandidates.h"
#include "import/ImportStatus.h"
#include "import/PatternFromPicture.h"
#include "import/Picture.h"

namespace zol {

class Pattern;
struct ProgramContext;

/// One import from the picture at its stitched size to the pattern: the flosses chosen, the
/// preview, the result. Owned by the wizard or by the command line; shows nothing itself.
class ImportSession {
public:
    /// The context must outlive it; its progress door is used.
    explicit ImportSession(ProgramContext& context);

    /// The picture to match: one pixel a stitch, pure white where it is erased. A preview of an
    /// earlier one is dropped.
    void SetImage(Picture image);
    [[nodiscard]] const Picture& Image() const { return m_image; }

    /// The square of the pattern (from 0) that the picture's first pixel falls on, and the
    /// pattern's palette, whose flosses are locked. Drops the preview; flosses chosen already are
    /// chosen anew.
    void UseEditBox(int left, int top, const Palette& patternPalette);
    void UseWholePattern();

    void ChooseCatalogue(const AvailColors& catalogue);
    void ChooseCurrentPalette(const Palette& patternPalette);
    void ChoosePalette(const Palette& palette);

    [[nodiscard]] const ImportCandidates& Candidates() const { return m_candidates; }
    /// What the number of colours becomes when flosses have been chosen.
    [[nodiscard]] int ProposedMaxColors() const;
    /// What is wrong with the mapping screen; nothing if it will do. `flossList` says which of
    /// the two lists the user was to choose from.
    [[nodiscard]] std::optional<std::string> ValidateMapping(int maxColors, bool flossList) const;

    [[nodiscard]] ImportStatus RecolorImage(int maxColors);
    /// Makes the preview first if there is none. Cloth counts are those of a new pattern.
    [[nodiscard]] ImportStatus CreateThePattern(Pattern& pattern, int maxColors, int clothCountX,
                                                int clothCountY);

    /// Empty until RecolorImage has run for the flosses chosen.
    [[nodiscard]] const Picture& Preview() const { return m_preview; }
    /// Of the last CreateThePattern that was done.
    [[nodiscard]] const ImportFigures& Figures() const { return m_figures; }

private:
    void BuildCandidates();
    [[nodiscard]] FlossSource Source() const;

    ProgramContext* m_context;
    Picture m_image;
    Picture m_preview;
    ImportTarget m_target;
    std::optional<Palette> m_lockedPalette;
    FlossSource::Kind m_from = FlossSource::Kind::None;
    std::optional<AvailColors> m_flossList;
    std::optional<Palette> m_sourcePalette;
    ImportCandidates m_candidates;
    ImportFigures m_figures;
};

} // namespace zol
