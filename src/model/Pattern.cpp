// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/Pattern.h"

#include <algorithm>
#include <utility>

#include "flosses/AvailColors.h"
#include "model/PatternSize.h"
#include "model/RunTimeError.h"

namespace zol {

Pattern::Pattern(ProgramContext& context) : m_context(&context), m_palette(context) {}
Pattern::~Pattern() = default;
Pattern::Pattern(Pattern&&) noexcept = default;
Pattern& Pattern::operator=(Pattern&&) noexcept = default;

void Pattern::CheckSize(int width, int height) {
    if (const int fault = PatternSize::Fault(width, height); fault != ErrNone) {
        throw RunTimeError(fault);
    }
}

void Pattern::SizeGrid(int width, int height) {
    const std::size_t squares = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    // A fresh vector, so that a failed allocation leaves the old grid and its size together.
    m_grid = std::vector<StitchCell>(squares);
    m_width = static_cast<std::int16_t>(width);
    m_height = static_cast<std::int16_t>(height);
}

void Pattern::Initialize(int width, int height, int clothCountX, int clothCountY) {
    if (width < 1 || height < 1) {
        throw RunTimeError(ErrSubscript);
    }
    CheckSize(width, height);
    SizeGrid(width, height);
    SetPatternClothCountX(clothCountX);
    SetPatternClothCountY(clothCountY);
    Title = m_context->DefaultTitle;
    Copyright = m_context->DefaultCopyright;
    Author = m_context->DefaultAuthor;
    Fabric = m_context->DefaultFabric;
    Instructions.clear();
    FileName.clear();
    m_allowFlossMapping = true;
    // What an earlier file kept in its reserved fields is not the new pattern's; its flags go
    // through ClearFlags.
    const std::uint32_t flags = m_header.PatternFlags;
    m_header = PatternHeader{};
    m_header.PatternFlags = flags;
    m_dupStitches.Clear();
    m_frenchKnots.Clear();
    LinesToChange().clear();
    m_ids.clear();
    m_notes.clear();
    m_counts = PatternCounts{};
    ClearPaintRect();
    m_palette.ClearPalette();
    m_palette.BuildStartupPalette();
    if (m_context->RecolorPatterns) {
        RefreshFlossColors(*this);
    }
    m_changed = false;
}

void Pattern::TakeContentOf(Pattern& fresh) {
    ProgramContext* context = m_context;
    UndoRecorder* recorder = m_recorder;
    const bool recording = m_recording;
    *this = std::move(fresh);
    m_context = context;
    m_recorder = recorder;
    m_recording = recording;
}

bool Pattern::IsChanged() const {
    return m_changed || m_palette.IsChanged();
}

void Pattern::SetChanged(bool changed) {
    if (!changed) {
        m_palette.SetChanged(false);
    }
    m_changed = changed;
}

void Pattern::Resize(int width, int height, int clothCountX, int clothCountY) {
    CheckSize(width, height);
    const int keptWidth = std::min<int>(width, m_width);
    const auto keptHeight = static_cast<std::size_t>(std::min<int>(height, m_height));
    const auto oldHeight = static_cast<std::size_t>(m_height);
    // Without memory for the new squares the old ones stay where they are.
    std::vector<StitchCell> old(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    m_grid.swap(old);
    m_width = static_cast<std::int16_t>(width);
    m_height = static_cast<std::int16_t>(height);
    for (int x = 1; x <= keptWidth; ++x) {
        const std::size_t column = static_cast<std::size_t>(x - 1);
        std::copy_n(old.begin() + static_cast<std::ptrdiff_t>(column * oldHeight), keptHeight,
                    m_grid.begin() +
                        static_cast<std::ptrdiff_t>(column * static_cast<std::size_t>(m_height)));
    }
    std::erase_if(LinesToChange(), [width, height](const BackStitchLine& line) {
        return line.StartX > width || line.EndX > width || line.StartY > height ||
               line.EndY > height;
    });
    m_frenchKnots.RemoveUnless([width, height](const FrenchKnot& knot) {
        return knot.X / 2 <= width && knot.Y / 2 <= height;
    });
    m_dupStitches.RemoveUnless(
        [width, height](const DupStitch& dup) { return dup.X <= width && dup.Y <= height; });
    SetPatternClothCountX(clothCountX);
    SetPatternClothCountY(clothCountY);
}

void RefreshFlossColors(Pattern& pattern) {
    const AvailColors* catalogue = pattern.Context().CurrentCatalogue.get();
    if (catalogue == nullptr) {
        return;
    }
    Palette& palette = pattern.GetPalette();
    for (int i = 1; i <= palette.GetEntriesCount(); ++i) {
        // An identity of 0 belongs to a user's own floss, which no catalogue row stands for.
        const std::int32_t masterID = palette.GetFlossMasterID(i);
        const int row = masterID == 0 ? -1 : catalogue->GetMapIndex(masterID);
        if (row > 0) {
            palette.SetFlossRGB(i, catalogue->GetFlossRGB(row));
        }
    }
}

} // namespace zol
