// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportSession.h"

#include <algorithm>
#include <utility>

#include "import/ImportMessages.h"
#include "import/Recolor.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"

namespace zol {

ImportSession::ImportSession(ProgramContext& context) : m_context(&context) {}

void ImportSession::SetImage(Picture image) {
    m_image = std::move(image);
    m_preview = {};
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

void ImportSession::ChooseCatalogue(const AvailColors& catalogue) {
    m_from = FlossSource::Kind::FlossList;
    m_flossList = catalogue;
    BuildCandidates();
}

void ImportSession::ChooseCurrentPalette(const Palette& patternPalette) {
    m_from = FlossSource::Kind::CurrentPalette;
    m_sourcePalette = Palette::Empty(*m_context);
    // A copy holds primary threads only, so blends are matched and kept as those.
    patternPalette.CreateCopy(*m_sourcePalette);
    BuildCandidates();
}

void ImportSession::ChoosePalette(const Palette& palette) {
    m_from = FlossSource::Kind::SavedPalette;
    m_sourcePalette = palette;
    BuildCandidates();
}

void ImportSession::BuildCandidates() {
    m_preview = {};
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
    return RecolorPicture(m_image, m_candidates, maxColors, m_context->ColorWord(),
                          m_context->Progress, m_preview);
}

ImportStatus ImportSession::CreateThePattern(Pattern& pattern, int maxColors, int clothCountX,
                                             int clothCountY) {
    if (m_image.IsEmpty()) {
        return {ImportStatus::Outcome::Invalid, std::string(ImportMessages::NoImage)};
    }
    if (m_preview.IsEmpty()) {
        ImportStatus status = RecolorImage(maxColors);
        if (!status.IsDone()) {
            return status;
        }
    }
    m_target.ClothCountX = clothCountX;
    m_target.ClothCountY = clothCountY;
    return WritePattern(m_preview, m_candidates, Source(), m_target, m_context->Progress, pattern,
                        m_figures);
}

} // namespace zol
