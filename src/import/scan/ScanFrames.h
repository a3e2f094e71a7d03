// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <sane/sane.h>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "import/scan/ScannerDoor.h"

namespace zol {

/// Makes one picture of the frames that a device sends: one of gray or of colours side by side,
/// or three of one colour each, in any order. What a device says of its frames is believed only as
/// far as it makes sense, and memory is taken as rows come in.
class ScanFrames {
public:
    using Problem = std::optional<ScanProblem>;

    /// Whether a picture of such frames may be scanned at all.
    [[nodiscard]] static Problem Check(const SANE_Parameters& parameters);

    [[nodiscard]] Problem BeginFrame(const SANE_Parameters& parameters);
    /// Bytes as they come, cut anywhere. Those after the last row are dropped.
    [[nodiscard]] Problem Take(std::span<const std::uint8_t> bytes);
    [[nodiscard]] Problem EndFrame();
    /// Between frames: nothing is missing.
    [[nodiscard]] bool IsWhole() const { return m_channelsDone == AllChannels; }

    /// Rows that have come since this was last asked. Holds until the next bytes are taken.
    [[nodiscard]] ScanRows TakeFreshRows();
    /// The whole picture; afterwards there is none.
    [[nodiscard]] Picture TakePicture();

private:
    static constexpr unsigned AllChannels = 7; ///< a bit each for red, green, blue

    [[nodiscard]] Problem FinishRow();
    void ReadGrayRow(Colour* row) const;
    void ReadColourRow(Colour* row) const;
    [[nodiscard]] unsigned Sample(int x, int channel) const;

    SANE_Parameters m_frame{};
    int m_samples = 1;       ///< of a pixel in this frame
    unsigned m_channels = 0; ///< of the picture that this frame brings
    unsigned m_channelsDone = 0;
    int m_framesDone = 0;
    int m_width = 0;
    int m_rows = 0;      ///< of this frame that are there
    int m_freshFrom = 0; ///< the first row that was not asked for yet
    std::vector<std::uint8_t> m_line;
    std::size_t m_lineFilled = 0;
    std::vector<Colour> m_pixels;
};

} // namespace zol
