// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PatternFromPicture.h"

#include <array>
#include <cstddef>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include "import/DistinctColours.h"
#include "import/ImportMessages.h"
#include "import/ImportProgress.h"
#include "model/CodePage.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr int FirstSymbol = 33;
constexpr int LastSearchedSymbol = 212;

/// The symbol code after `code`: codes without a sign of their own are jumped.
int NextSymbol(int code) {
    switch (code + 1) {
    case 127:
        return 130;
    case 141:
        return 145;
    case 157:
        return 159;
    default:
        return code + 1;
    }
}

std::string SymbolText(int code) {
    std::string text;
    CodePage::AppendUtf8(text, CodePage::ToUnicode(static_cast<std::uint8_t>(code)));
    return text;
}

/// From `code` on, the first symbol that is free or not below `limit`.
int SearchSymbol(const Palette& palette, int code, int limit) {
    while (palette.IsSymbolUsed(SymbolText(code)) && code < limit) {
        code = NextSymbol(code);
    }
    return code;
}

void AddFromCatalogue(const ProgramContext& context, const ImportCandidates& candidates,
                      const AvailColors& catalogue, Palette& palette) {
    if (candidates.LockedColors() == 0) {
        palette.ClearPalette();
    }
    int symbol = FirstSymbol;
    for (int i = candidates.LockedColors() + 1; i <= candidates.NumColors(); ++i) {
        if (!candidates.IsInPlay(i)) {
            continue;
        }
        const int row = i - candidates.LockedColors();
        // The search ends at the number of candidates, so a small catalogue gives several
        // flosses the last symbol reached.
        symbol = SearchSymbol(palette, symbol, candidates.NumColors());
        palette.AddPaletteEntry(candidates.ColorRGB[static_cast<std::size_t>(i)],
                                catalogue.GetFlossManuID(row), catalogue.GetFlossDesc(row),
                                catalogue.GetShortDesc(), SymbolText(symbol), context.StitchStrands,
                                context.BackStitchStrands, i, catalogue.GetFlossMasterID(row), 0,
                                catalogue.GetManuDesc());
    }
}

void AddFromPalette(const ImportCandidates& candidates, const Palette& source, Palette& palette) {
    for (int i = candidates.LockedColors() + 1; i <= candidates.NumColors(); ++i) {
        if (!candidates.IsInPlay(i)) {
            continue;
        }
        const int entry = i - candidates.LockedColors();
        int symbol = source.GetFlossSymbol(entry);
        if (palette.IsSymbolUsed(SymbolText(symbol))) {
            symbol = SearchSymbol(palette, FirstSymbol, LastSearchedSymbol);
        }
        palette.AddPaletteEntry(
            candidates.ColorRGB[static_cast<std::size_t>(i)], source.GetManufID(entry),
            source.GetFlossShortDesc(entry), source.GetManufShortDesc(entry), SymbolText(symbol),
            source.GetFlossStitchStrands(entry), source.GetFlossBackStitchStrands(entry), i,
            source.GetFlossMasterID(entry), source.GetDefaultBSType(entry),
            source.GetManufLongDesc(entry));
    }
}

/// Floss of each distinct colour: 0 for an erased one. The number is found through the colour in
/// the finished palette and not carried from the matching.
std::vector<int> FlossesOf(const DistinctColours& colours, const Palette& palette) {
    std::vector<int> flosses;
    flosses.reserve(colours.Colours.size());
    for (const Colour colour : colours.Colours) {
        const Colour sought = colour == WhiteStandIn ? EraseColor : colour;
        const int floss =
            colour == EraseColor ? 0 : palette.GetClosest(sought, Palette::NoExclusion);
        if (colour != EraseColor && (floss < 1 || floss >= NoFloss)) {
            throw RunTimeError(ErrOverflow); // a stitch holds floss numbers of 8 bits
        }
        flosses.push_back(floss);
    }
    return flosses;
}

/// Walks the squares and counts, so that a cancel meets a pattern that is still whole.
bool CountSquares(const DistinctColours& colours, const std::vector<int>& flosses,
                  ProgressDoor* door, std::array<int, 256>& counts) {
    ImportProgress progress(door, std::string(ImportMessages::CreatingPattern),
                            static_cast<std::int64_t>(colours.Places.size()));
    if (!progress.MayGoOn()) {
        return false;
    }
    for (const std::uint32_t place : colours.Places) {
        const int floss = flosses[place];
        if (floss == 0) {
            continue;
        }
        ++counts[static_cast<std::size_t>(floss)];
        if (!progress.Step()) {
            return false;
        }
    }
    return true;
}

void SetSquares(const Picture& preview, const DistinctColours& colours,
                const std::vector<int>& flosses, const ImportTarget& target, Pattern& pattern) {
    const int offsetX = target.UseEditBox ? target.EditBoxLeft : 0;
    const int offsetY = target.UseEditBox ? target.EditBoxTop : 0;
    constexpr int middle = 5; // a whole stitch does not look at the position
    std::size_t at = 0;
    for (int x = 0; x < preview.ImageWidth(); ++x) {
        for (int y = 0; y < preview.ImageHeight(); ++y) {
            const int floss = flosses[colours.Places[at++]];
            if (floss != 0) {
                pattern.SetStitch(x + offsetX + 1, y + offsetY + 1, StitchWhole, floss, middle);
            }
        }
    }
}

int CountSharedSymbols(const Palette& palette) {
    std::array<int, 256> uses{};
    for (int i = 1; i <= palette.GetEntriesCount(); ++i) {
        ++uses[static_cast<std::size_t>(palette.GetFlossSymbol(i)) & 255U];
    }
    int sharing = 0;
    for (std::size_t code = 1; code < uses.size(); ++code) {
        sharing += uses[code] > 1 ? uses[code] : 0;
    }
    return sharing;
}

ImportFigures FiguresOf(const std::array<int, 256>& counts, const Palette& palette) {
    ImportFigures figures;
    for (std::size_t floss = 1; floss < counts.size(); ++floss) {
        if (counts[floss] > 0) {
            figures.Flosses.push_back({static_cast<int>(floss), counts[floss]});
            figures.Stitches += counts[floss];
        }
    }
    figures.FlossesSharingSymbol = CountSharedSymbols(palette);
    return figures;
}

/// What is to be written, worked out whole.
struct Plan {
    Palette Flosses;
    std::vector<int> Numbers; ///< of the floss, by distinct colour
    std::array<int, 256> Counts{};
};

/// Nothing if the door stopped it.
std::optional<Plan> MakePlan(const DistinctColours& colours, const ImportCandidates& candidates,
                             const FlossSource& source, bool useEditBox, const Pattern& pattern,
                             ProgressDoor* door) {
    ProgramContext& context = pattern.Context();
    Plan plan{useEditBox ? pattern.GetPalette() : Palette(context), {}, {}};
    BuildImportPalette(context, candidates, source, useEditBox, plan.Flosses);
    if (!useEditBox) {
        // In the order in which the user looks at flosses.
        plan.Flosses.Sort(pattern.GetPalette().GetSortOrder());
    }
    plan.Numbers = FlossesOf(colours, plan.Flosses);
    if (!CountSquares(colours, plan.Numbers, door, plan.Counts)) {
        return std::nullopt;
    }
    return plan;
}

} // namespace

void BuildImportPalette(const ProgramContext& context, const ImportCandidates& candidates,
                        const FlossSource& source, bool useEditBox, Palette& palette) {
    if (source.From == FlossSource::Kind::FlossList) {
        AddFromCatalogue(context, candidates, *source.Catalogue, palette);
    } else if (source.From == FlossSource::Kind::SavedPalette && useEditBox) {
        AddFromPalette(candidates, *source.Flosses, palette);
    } else {
        source.Flosses->CreateCopy(palette);
    }
}

ImportStatus WritePattern(const Picture& preview, const ImportCandidates& candidates,
                          const FlossSource& source, const ImportTarget& target,
                          ProgressDoor* progress, Pattern& pattern, ImportFigures& figures,
                          const std::function<void()>& beforeChange) {
    const ImportStatusScope status(progress);
    try {
        const DistinctColours colours(preview);
        std::optional<Plan> plan =
            MakePlan(colours, candidates, source, target.UseEditBox, pattern, progress);
        if (!plan) {
            return {ImportStatus::Outcome::Cancelled, {}};
        }
        if (beforeChange) {
            beforeChange();
            // What floated over the design may have landed and brought flosses of its own, whose
            // numbers its stitches and lines hold.
            plan = MakePlan(colours, candidates, source, target.UseEditBox, pattern, nullptr);
        }
        figures = FiguresOf(plan->Counts, plan->Flosses);
        if (!target.UseEditBox) {
            pattern.Initialize(preview.ImageWidth(), preview.ImageHeight(), target.ClothCountX,
                               target.ClothCountY);
        }
        pattern.GetPalette() = std::move(plan->Flosses);
        SetSquares(preview, colours, plan->Numbers, target, pattern);
        // Also with no stitch at all: what was there before is gone.
        pattern.SetChanged(true);
    } catch (const RunTimeError& error) {
        return {ImportStatus::Outcome::Failed, error.what()};
    } catch (const std::bad_alloc&) {
        return {ImportStatus::Outcome::Failed, RunTimeErrorText(ErrOutOfMemory)};
    }
    return {};
}

} // namespace zol
