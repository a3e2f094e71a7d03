// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "flosses/AvailColors.h"
#include "flosses/Palette.h"
#include "import/ImportCandidates.h"
#include "import/ImportPreview.h"
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
    void SetImage(SharedPicture image);
    void SetImage(Picture image);
    [[nodiscard]] const Picture& Image() const { return *m_image; }

    /// The square of the pattern (from 0) that the picture's first pixel falls on, and the
    /// pattern's palette, whose flosses are locked. Drops the preview; flosses chosen already are
    /// chosen anew.
    void UseEditBox(int left, int top, const Palette& patternPalette);
    void UseWholePattern();
    /// Whether what was taken from the pattern's palette, for the edit box or as the flosses to
    /// choose from, is what that palette holds now.
    [[nodiscard]] bool IsUpToDateWith(const Palette& patternPalette) const;

    void ChooseCatalogue(const AvailColors& catalogue);
    void ChooseCurrentPalette(const Palette& patternPalette);
    void ChoosePalette(const Palette& palette);
    /// No flosses are chosen any more.
    void ChooseNothing();

    [[nodiscard]] const ImportCandidates& Candidates() const { return m_candidates; }
    /// What the number of colours becomes when flosses have been chosen.
    [[nodiscard]] int ProposedMaxColors() const;
    /// As few colours as may be asked for: with an edit box those of the pattern's palette stay.
    [[nodiscard]] int LeastMaxColors() const;
    /// What is wrong with the mapping screen; nothing if it will do. `flossList` says which of
    /// the two lists the user was to choose from.
    [[nodiscard]] std::optional<std::string> ValidateMapping(int maxColors, bool flossList) const;

    [[nodiscard]] ImportStatus RecolorImage(int maxColors);
    /// The same in two steps, so that the work between them may run on another thread: it has a
    /// copy of all it reads, and the session stays on its own thread, whatever happens to it
    /// meanwhile. The choices are to be validated first.
    [[nodiscard]] PreviewWork PreparePreview(int maxColors) const;
    /// Takes over what that work came to. False, with all as it was, if it was not done or if
    /// picture or candidates are others now.
    bool TakePreview(ImportPreview preview);
    /// A preview of another number of colours does not count any more.
    void DropPreviewUnlessOf(int maxColors);
    /// Makes the preview first if there is none. Cloth counts are those of a new pattern.
    /// `beforeChange` is called once nothing can come between any more, for the undo step.
    [[nodiscard]] ImportStatus CreateThePattern(Pattern& pattern, int maxColors, int clothCountX,
                                                int clothCountY,
                                                const std::function<void()>& beforeChange = {});

    /// Empty until RecolorImage has run for the flosses chosen.
    [[nodiscard]] const Picture& Preview() const { return *m_preview; }
    /// The same, to be shown.
    [[nodiscard]] const SharedPicture& PreviewPicture() const { return m_preview; }
    /// The flosses of the preview that have stitches, by their candidates.
    [[nodiscard]] std::vector<PreviewFloss> PreviewFlosses() const;
    /// Of the last CreateThePattern that was done.
    [[nodiscard]] const ImportFigures& Figures() const { return m_figures; }

private:
    void BuildCandidates();
    void DropPreview();
    [[nodiscard]] FlossSource Source() const;

    ProgramContext* m_context;
    SharedPicture m_image;   ///< never null
    SharedPicture m_preview; ///< never null
    int m_previewColors = 0; ///< asked for when the preview was made
    int m_choices = 0;       ///< counts changes of picture and candidates
    ImportTarget m_target;
    std::optional<Palette> m_lockedPalette;
    FlossSource::Kind m_from = FlossSource::Kind::None;
    std::optional<AvailColors> m_flossList;
    std::optional<Palette> m_sourcePalette;
    ImportCandidates m_candidates;
    ImportFigures m_figures;
};

} // namespace zol
