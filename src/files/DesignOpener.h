// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include "model/OpenDesign.h"

namespace zol {

/// What became of a file that was to be opened.
struct DesignOpening {
    int Result = 0;                     ///< 0, or a number of RunTimeError.h
    std::unique_ptr<OpenDesign> Design; ///< null unless Result is 0
    bool AllTold = false;               ///< the user has been told all that there is to say
    std::string More;                   ///< what to do about it; empty: what fits any failure
};

/// One kind of file that comes onto the grid. The file commands ask each opener in turn.
class DesignOpener {
public:
    virtual ~DesignOpener() = default;
    /// The letter of OpenDesign::RecoveryKind.
    [[nodiscard]] virtual char Kind() const = 0;
    [[nodiscard]] virtual bool Takes(const std::string& lowerCaseName) const = 0;
    /// `displayName` is what the title shows.
    [[nodiscard]] virtual DesignOpening Open(const std::string& fileName,
                                             const std::string& displayName) = 0;
    /// Reads what OpenDesign::WriteTo wrote into a recovery file; the design's name as given.
    [[nodiscard]] virtual DesignOpening Recover(const std::string& fileName,
                                                ByteReader& stream) = 0;
    /// False for a kind that is known but cannot be read; Open then says so in its answer.
    [[nodiscard]] virtual bool CanOpen() const { return true; }
};

} // namespace zol
