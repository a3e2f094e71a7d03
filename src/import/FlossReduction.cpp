// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/FlossReduction.h"

#include <cstdlib>

#include "flosses/HSLFuncs.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr std::size_t NoPlace = static_cast<std::size_t>(-1);

} // namespace

FlossReduction::FlossReduction(ImportCandidates& candidates) : m_candidates(&candidates) {
    const auto& curve = HSLFuncs::MatchCurve();
    for (int i = 1; i <= candidates.NumColors(); ++i) {
        if (!candidates.IsInPlay(i)) {
            continue;
        }
        Candidate candidate;
        candidate.Index = i;
        candidate.Locked = i <= candidates.LockedColors();
        const Colour colour = candidates.ColorRGB[static_cast<std::size_t>(i)];
        candidate.Curve = {curve[colour & 255U], curve[(colour >> 8U) & 255U],
                           curve[(colour >> 16U) & 255U]};
        m_inPlay.push_back(candidate);
    }
    m_gone.assign(m_inPlay.size(), false);
    for (Candidate& candidate : m_inPlay) {
        FindNearest(candidate);
    }
}

void FlossReduction::ReduceColors() {
    if (RemoveRarity()) {
        return;
    }
    int best = Unreachable;
    std::size_t a = NoPlace;
    for (std::size_t i = 0; i < m_inPlay.size(); ++i) {
        if (!m_gone[i] && !m_inPlay[i].Locked && m_inPlay[i].Distance < best) {
            best = m_inPlay[i].Distance;
            a = i;
        }
    }
    if (a == NoPlace) {
        throw RunTimeError(ErrSubscript);
    }
    const std::size_t b = m_inPlay[a].Nearest;
    std::int32_t& pixelsA = PixelsOf(m_inPlay[a]);
    std::int32_t& pixelsB = PixelsOf(m_inPlay[b]);
    if (pixelsA > pixelsB && !m_inPlay[b].Locked) {
        pixelsA += pixelsB;
        pixelsB = 0;
        Remove(b);
    } else {
        pixelsB += pixelsA;
        pixelsA = 0;
        Remove(a);
    }
}

bool FlossReduction::RemoveRarity() {
    double total = 0;
    std::int32_t least = 999;
    std::size_t leastPlace = NoPlace;
    for (std::size_t i = 0; i < m_inPlay.size(); ++i) {
        if (m_gone[i] || m_inPlay[i].Locked) {
            continue;
        }
        const std::int32_t pixels = PixelsOf(m_inPlay[i]);
        total += pixels;
        if (pixels < least) {
            least = pixels;
            leastPlace = i;
        }
    }
    // The pixels of a rarity go to nobody: they find their floss in the second matching.
    if (leastPlace == NoPlace || !(total / 100 > least)) {
        return false;
    }
    Remove(leastPlace);
    return true;
}

void FlossReduction::FindNearest(Candidate& candidate) const {
    // A locked candidate never looks for a neighbour: it only absorbs.
    candidate.Distance = Unreachable;
    for (std::size_t j = 0; !candidate.Locked && j < m_inPlay.size(); ++j) {
        const Candidate& other = m_inPlay[j];
        if (m_gone[j] || other.Index == candidate.Index) {
            continue;
        }
        const int distance = std::abs(other.Curve[0] - candidate.Curve[0]) +
                             std::abs(other.Curve[1] - candidate.Curve[1]) +
                             std::abs(other.Curve[2] - candidate.Curve[2]);
        if (distance < candidate.Distance) {
            candidate.Distance = distance;
            candidate.Nearest = j;
        }
    }
}

void FlossReduction::Remove(std::size_t place) {
    m_gone[place] = true;
    m_candidates->ColorUsed[static_cast<std::size_t>(m_inPlay[place].Index)] =
        ImportCandidates::OutOfPlay;
    for (std::size_t i = 0; i < m_inPlay.size(); ++i) {
        Candidate& candidate = m_inPlay[i];
        if (!m_gone[i] && candidate.Distance < Unreachable && candidate.Nearest == place) {
            FindNearest(candidate);
        }
    }
}

std::int32_t& FlossReduction::PixelsOf(const Candidate& candidate) {
    return m_candidates->ColorPixels[static_cast<std::size_t>(candidate.Index)];
}

} // namespace zol
