// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "import/ImportCandidates.h"

namespace zol {

/// Thins out the candidates that won pixels, one a call: a rarity goes first, else the lesser of
/// the two nearest. Each candidate's nearest neighbour is remembered and sought anew only when
/// that neighbour has gone, so a call costs a walk over the candidates in play, not over pairs.
class FlossReduction {
public:
    /// The candidates must outlive it, and nobody else may change them meanwhile.
    explicit FlossReduction(ImportCandidates& candidates);

    /// Takes one candidate out of play. Throws RunTimeError 9 when none can go.
    void ReduceColors();

private:
    /// No two colours differ by this much.
    static constexpr int Unreachable = 768;

    struct Candidate {
        int Index = 0;
        bool Locked = false;
        std::array<int, 3> Curve{}; ///< its channels on the match curve
        int Distance = Unreachable; ///< to the nearest other one in play
        std::size_t Nearest = 0;    ///< its place in m_inPlay
    };

    [[nodiscard]] bool RemoveRarity();
    void FindNearest(Candidate& candidate) const;
    void Remove(std::size_t place);
    [[nodiscard]] std::int32_t& PixelsOf(const Candidate& candidate);

    ImportCandidates* m_candidates;
    /// Those in play in the order of their numbers; ones that went stay in place, marked.
    std::vector<Candidate> m_inPlay;
    std::vector<bool> m_gone;
};

} // namespace zol
