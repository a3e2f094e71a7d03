// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportSession.h"

#include <algorithm>
#include <utility>

#include "import/ImportMessages.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"

namespace zol {

namespace {

/// A copy holds primary threads only, so blends are matched and kept as those.
Palette PrimaryThreads(const Palette& palette) {
    Palette copy = Palette::Empty(palette.Context());
    palette.CreateCopy(copy);
    return copy;
}

/// All that an import takes over of a floss. The rows of the makers are each palette's own.
bool IsSameFloss(const Palette& one, const Palette& other, int index) {
    PaletteEntry entry = one.GetEntry(index);
    const PaletteEntry& with = other.GetEntry(index);
    entry.ManufacturerIndex = with.ManufacturerIndex;
    entry.BlendManufacturerIndex = with.BlendManufacturerIndex;
    return entry == with && one.GetManufShortDesc(index) == other.GetManufShortDesc(index) &&
           one.GetManufLongDesc(index) == other.GetManufLongDesc(index) &&
           one.GetBlendManufShortDesc(index) == other.GetBlendManufShortDesc(index);
}

bool HoldSameFlosses(const Palette& one, const Palette& other) {
    const int count = one.GetEntriesCount();
    bool same = count == other.GetEntriesCount() && one.GetFontName() == other.GetFontName() &&
                one.GetFontBold() == other.GetFontBold() &&
                one.GetFontItalic() == other.GetFontItalic();
    for (int i = 1; same && i <= count; ++i) {
        same = IsSameFloss(one, other, i);
    }
    return same;
}

} // namespace

ImportSession::ImportSession(ProgramContext& context)
    : m_context(&context),
      m_image(std::make_shared<const Picture>()),
      m_preview(m_image) {}

void ImportSession::SetImage(SharedPicture image) {
    m_image = image != nullptr ? std::move(image) : std::make_shared<const Picture>();
    DropPreview();
}

void ImportSession::SetImage(Picture image) {
    SetImage(std::make_shared<const Picture>(std::move(image)));
}

void ImportSession::DropPreview() {
    m_preview = std::make_shared<const Picture>();
    ++m_choices;
}

void ImportSession::UseEditBox(int left, int top, const Palette& patternPalette) {
    m_target.UseEditBox = true;
    m_target.EditBoxLeft = left;
    m_target.EditBoxTop = top;
    m_lockedPalette = patternPalette;
    BuildCandidates();
}

void ImportSession::UseWholePattern() {
    m_target = {};
    m_lockedPalette.reset();
    BuildCandidates();
}

bool ImportSession::IsUpToDateWith(const Palette& patternPalette) const {
    if (m_lockedPalette && !HoldSameFlosses(*m_lockedPalette, patternPalette)) {
        return false;
    }
    return m_from != FlossSource::Kind::CurrentPalette ||
           HoldSameFlosses(*m_sourcePalette, PrimaryThreads(patternPalette));
}

void ImportSession::ChooseCatalogue(const AvailColors& catalogue) {
    m_from = FlossSource::Kind::FlossList;
    m_flossList = catalogue;
    BuildCandidates();
}

void ImportSession::ChooseCurrentPalette(const Palette& patternPalette) {
    m_from = FlossSource::Kind::CurrentPalette;
    m_sourcePalette = PrimaryThreads(patternPalette);
    BuildCandidates();
}

void ImportSession::ChoosePalette(const Palette& palette) {
    m_from = FlossSource::Kind::SavedPalette;
    m_sourcePalette = palette;
    BuildCandidates();
}

void ImportSession::ChooseNothing() {
    m_from = FlossSource::Kind::None;
    m_flossList.reset();
    m_sourcePalette.reset();
    BuildCandidates();
}

void ImportSession::BuildCandidates() {
    DropPreview();
    m_candidates.Clear();
    if (m_lockedPalette) {
        m_candidates.AddLocked(*m_lockedPalette);
    }
    if (m_from == FlossSource::Kind::FlossList) {
        m_candidates.AddCatalogue(*m_flossList);
    } else if (m_sourcePalette) {
        m_candidates.AddPalette(*m_sourcePalette);
    }
}

FlossSource ImportSession::Source() const {
    return {m_from, m_flossList ? &*m_flossList : nullptr,
            m_sourcePalette ? &*m_sourcePalette : nullptr};
}

int ImportSession::ProposedMaxColors() const {
    constexpr int usualMost = 50;
    switch (m_from) {
    case FlossSource::Kind::FlossList:
        return std::min(usualMost, m_candidates.MaxColorLimit());
    case FlossSource::Kind::CurrentPalette:
        return m_sourcePalette->GetEntriesCount();
    case FlossSource::Kind::SavedPalette:
        return m_sourcePalette->GetEntriesCount() + m_candidates.LockedColors();
    case FlossSource::Kind::None:
        break;
    }
    constexpr int beforeAnyChoice = 30;
    return beforeAnyChoice;
}

int ImportSession::LeastMaxColors() const {
    return std::max(1, m_candidates.LockedColors());
}

std::optional<std::string> ImportSession::ValidateMapping(int maxColors, bool flossList) const {
    if (m_from == FlossSource::Kind::None) {
        return std::string(flossList ? ImportMessages::NoFlossFamily
                                     : ImportMessages::NoFlossPalette);
    }
    const std::optional<int> locked =
        m_lockedPalette ? std::optional<int>(m_lockedPalette->GetEntriesCount()) : std::nullopt;
    return ImportMessages::ValidateMaxColors(maxColors, locked, m_context->ColorWord());
}

ImportStatus ImportSession::RecolorImage(int maxColors) {
    if (const auto message = ValidateMapping(maxColors, true)) {
        return {ImportStatus::Outcome::Invalid, *message};
    }
    ImportPreview preview = PreparePreview(maxColors).Run(m_context->Progress);
    ImportStatus status = preview.Status;
    TakePreview(std::move(preview));
    return status;
}

PreviewWork ImportSession::PreparePreview(int maxColors) const {
    return {m_image, m_candidates, maxColors, m_context->ColorWord(), m_choices};
}

bool ImportSession::TakePreview(ImportPreview preview) {
    if (!preview.Status.IsDone() || preview.Choices != m_choices) {
        return false;
    }
    m_preview = std::move(preview.Squares);
    m_candidates = std::move(preview.Candidates);
    m_previewColors = preview.MaxColors;
    return true;
}

void ImportSession::DropPreviewUnlessOf(int maxColors) {
    if (m_previewColors != maxColors) {
        DropPreview();
    }
}

std::vector<PreviewFloss> ImportSession::PreviewFlosses() const {
    std::vector<PreviewFloss> flosses;
    if (m_preview->IsEmpty()) {
        return flosses;
    }
    const int locked = m_candidates.LockedColors();
    for (int i = 1; i <= m_candidates.NumColors(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (m_candidates.Stitches[at] == 0) {
            continue;
        }
        PreviewFloss floss{m_candidates.ColorRGB[at], {}, {}, m_candidates.Stitches[at]};
        if (i > locked && m_from == FlossSource::Kind::FlossList) {
            floss.Number = m_flossList->GetFlossManuID(i - locked);
            floss.Name = m_flossList->GetFlossDesc(i - locked);
        } else {
            const Palette& palette = i <= locked ? *m_lockedPalette : *m_sourcePalette;
            const int entry = i <= locked ? i : i - locked;
            floss.Number = palette.GetManufID(entry);
            floss.Name = palette.GetFlossShortDesc(entry);
        }
        flosses.push_back(std::move(floss));
    }
    return flosses;
}

ImportStatus ImportSession::CreateThePattern(Pattern& pattern, int maxColors, int clothCountX,
                                             int clothCountY,
                                             const std::function<void()>& beforeChange) {
    if (m_image->IsEmpty()) {
        return {ImportStatus::Outcome::Invalid, std::string(ImportMessages::NoImage)};
    }
    if (m_preview->IsEmpty()) {
        ImportStatus status = RecolorImage(maxColors);
        if (!status.IsDone()) {
            return status;
        }
    }
    m_target.ClothCountX = clothCountX;
    m_target.ClothCountY = clothCountY;
    return WritePattern(*m_preview, m_candidates, Source(), m_target, m_context->Progress, pattern,
                        m_figures, beforeChange);
}

} // namespace zol
