// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Recolor.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <vector>

#include "flosses/NearestFloss.h"
#include "import/DistinctColours.h"
#include "import/FlossReduction.h"
#include "import/ImportMessages.h"
#include "import/ImportProgress.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr ImportStatus::Outcome Cancelled = ImportStatus::Outcome::Cancelled;

/// What a pixel's colour is sought as: the stand-in means white itself.
Colour SoughtColour(Colour pixel) {
    return pixel == WhiteStandIn ? EraseColor : pixel;
}

/// Candidates to search, with their numbers.
class CandidateSearch {
public:
    CandidateSearch(const ImportCandidates& candidates, bool onlyInPlay) {
        for (int i = 1; i <= candidates.NumColors(); ++i) {
            if (!onlyInPlay || candidates.IsInPlay(i)) {
                m_nearest.Add(candidates.ColorRGB[static_cast<std::size_t>(i)]);
                m_numbers.push_back(i);
            }
        }
    }

    [[nodiscard]] int GetClosest(Colour colour) const {
        const int place = m_nearest.GetClosest(static_cast<int>(colour & 255U),
                                               static_cast<int>((colour >> 8U) & 255U),
                                               static_cast<int>((colour >> 16U) & 255U));
        return place == 0 ? 0 : m_numbers[static_cast<std::size_t>(place - 1)];
    }

private:
    NearestFloss m_nearest;
    std::vector<int> m_numbers;
};

/// Each distinct colour's candidate, found when a pixel first asks for it.
class ColourMatches {
public:
    static constexpr int Erased = -1;

    ColourMatches(const DistinctColours& colours, CandidateSearch search)
        : m_colours(&colours),
          m_search(std::move(search)),
          m_matches(colours.Colours.size(), 0) {}

    int MatchOf(std::uint32_t place) {
        int& match = m_matches[place];
        if (match == 0) {
            const Colour colour = m_colours->Colours[place];
            match = colour == EraseColor ? Erased : m_search.GetClosest(SoughtColour(colour));
        }
        return match;
    }
    [[nodiscard]] const std::vector<int>& All() const { return m_matches; }

private:
    const DistinctColours* m_colours;
    CandidateSearch m_search;
    std::vector<int> m_matches; ///< 0: not asked for yet
};

/// The first matching: who wins how many pixels. Erased pixels do not count for the bar either.
bool CountWinners(const DistinctColours& colours, ImportCandidates& candidates,
                  ProgressDoor* door) {
    ImportProgress progress(door, std::string(ImportMessages::ApplyingPalette),
                            static_cast<std::int64_t>(colours.Places.size()));
    ColourMatches matches(colours, CandidateSearch(candidates, false));
    if (!progress.MayGoOn()) {
        return false;
    }
    for (const std::uint32_t place : colours.Places) {
        const int match = matches.MatchOf(place);
        if (match == ColourMatches::Erased) {
            continue;
        }
        const auto i = static_cast<std::size_t>(match);
        candidates.ColorUsed[i] = ImportCandidates::InPlay;
        ++candidates.ColorPixels[i];
        if (!progress.Step()) {
            return false;
        }
    }
    return true;
}

void ReduceTo(ImportCandidates& candidates, int maxColors) {
    int colorsLeft = candidates.ColorsLeft();
    if (colorsLeft <= maxColors) {
        return;
    }
    FlossReduction reduction(candidates);
    for (; colorsLeft > maxColors; --colorsLeft) {
        reduction.ReduceColors();
    }
}

/// The colour that a distinct colour has in the preview.
Colour PreviewColour(const ImportCandidates& candidates, int match) {
    if (match == ColourMatches::Erased) {
        return EraseColor;
    }
    const Colour colour = candidates.ColorRGB[static_cast<std::size_t>(match)];
    return colour == EraseColor ? WhiteStandIn : colour;
}

void FillByColumns(const DistinctColours& colours, const std::vector<Colour>& shown,
                   Picture& picture) {
    const int width = picture.ImageWidth();
    const int height = picture.ImageHeight();
    constexpr int block = 64; // columns are read and rows written: both stay in the cache
    for (int top = 0; top < height; top += block) {
        const int bottom = std::min(top + block, height);
        for (int x = 0; x < width; ++x) {
            const std::uint32_t* column =
                colours.Places.data() +
                static_cast<std::size_t>(x) * static_cast<std::size_t>(height);
            for (int y = top; y < bottom; ++y) {
                picture.SetImagePixel(x, y, shown[column[y]]);
            }
        }
    }
}

/// The second matching, among the survivors.
bool MatchAgain(const DistinctColours& colours, ImportCandidates& candidates,
                std::string_view colorWord, ProgressDoor* door, Picture& picture) {
    ImportProgress progress(door, ImportMessages::Reducing(colorWord),
                            static_cast<std::int64_t>(colours.Places.size()));
    ColourMatches matches(colours, CandidateSearch(candidates, true));
    if (!progress.MayGoOn()) {
        return false;
    }
    for (const std::uint32_t place : colours.Places) {
        const int match = matches.MatchOf(place);
        if (match != ColourMatches::Erased) {
            ++candidates.Stitches[static_cast<std::size_t>(match)];
        }
        if (!progress.Step()) {
            return false;
        }
    }
    std::vector<Colour> shown;
    shown.reserve(matches.All().size());
    for (const int match : matches.All()) {
        shown.push_back(PreviewColour(candidates, match));
    }
    FillByColumns(colours, shown, picture);
    return true;
}

} // namespace

ImportStatus RecolorPicture(const Picture& image, ImportCandidates& candidates, int maxColors,
                            std::string_view colorWord, ProgressDoor* progress, Picture& preview) {
    if (candidates.NumColors() == 0) {
        return {ImportStatus::Outcome::Invalid,
                *ImportMessages::ValidateMaxColors(0, std::nullopt, colorWord)};
    }
    const ImportStatusScope status(progress);
    try {
        candidates.TakeOutOfPlay();
        const DistinctColours colours(image);
        if (!CountWinners(colours, candidates, progress)) {
            return {Cancelled, {}};
        }
        ReduceTo(candidates, maxColors);
        Picture picture(image.ImageWidth(), image.ImageHeight());
        if (!MatchAgain(colours, candidates, colorWord, progress, picture)) {
            return {Cancelled, {}};
        }
        preview = std::move(picture);
    } catch (const RunTimeError& error) {
        return {ImportStatus::Outcome::Failed, error.what()};
    } catch (const std::bad_alloc&) {
        return {ImportStatus::Outcome::Failed, RunTimeErrorText(ErrOutOfMemory)};
    }
    return {};
}

} // namespace zol
