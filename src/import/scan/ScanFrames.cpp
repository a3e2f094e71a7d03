// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/ScanFrames.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <string>
#include <utility>

#include "import/Imaging.h"
#include "import/scan/SaneWords.h"

namespace zol {

namespace {

constexpr unsigned Red = 1;
constexpr unsigned Green = 2;
constexpr unsigned Blue = 4;
// Devices fill their lines up to some even number of bytes, never by as much.
constexpr std::int64_t MaxPadding = 1 << 20;

/// Drivers send formats that this header's enumeration does not have, so it may not be read as one.
int FormatOf(const SANE_Parameters& frame) {
    int format = 0;
    static_assert(sizeof format == sizeof frame.format);
    std::memcpy(&format, &frame.format, sizeof format);
    return format;
}

/// The channels of the picture that a frame brings; 0 for frames that are no picture.
unsigned ChannelsOf(int format) {
    switch (format) {
    case SANE_FRAME_GRAY:
    case SANE_FRAME_RGB:
        return Red | Green | Blue;
    case SANE_FRAME_RED:
        return Red;
    case SANE_FRAME_GREEN:
        return Green;
    case SANE_FRAME_BLUE:
        return Blue;
    default:
        return 0;
    }
}

int SamplesOf(int format) {
    return format == SANE_FRAME_RGB ? 3 : 1;
}

/// Bytes of a line without padding. Of one bit a sample eight pixels lie together, and then the
/// next colour's eight.
std::int64_t LineBytes(const SANE_Parameters& frame) {
    const std::int64_t width = frame.pixels_per_line;
    const std::int64_t bytes = frame.depth == 1 ? (width + 7) / 8 : width * (frame.depth / 8);
    return bytes * SamplesOf(FormatOf(frame));
}

/// How many rows of that width a picture may have.
std::int64_t MaxRows(int width) {
    return PictureFile::MaxPixels / width;
}

} // namespace

ScanFrames::Problem ScanFrames::Check(const SANE_Parameters& frame) {
    if (ChannelsOf(FormatOf(frame)) == 0) {
        return SaneWords::Damaged("frame of format " + std::to_string(FormatOf(frame)));
    }
    if (frame.depth != 1 && frame.depth != 8 && frame.depth != 16) {
        return SaneWords::Damaged(std::to_string(frame.depth) + " bits a sample");
    }
    if (frame.pixels_per_line < 1 || frame.lines == 0 || frame.lines < -1) {
        return SaneWords::Damaged(std::to_string(frame.pixels_per_line) + " by " +
                                  std::to_string(frame.lines) + " pixels");
    }
    if (std::max(frame.lines, 1) > MaxRows(frame.pixels_per_line)) {
        return SaneWords::TooLarge();
    }
    const std::int64_t needed = LineBytes(frame);
    if (frame.bytes_per_line < needed || frame.bytes_per_line > needed + MaxPadding) {
        return SaneWords::Damaged(std::to_string(frame.bytes_per_line) + " bytes for a line of " +
                                  std::to_string(needed));
    }
    return std::nullopt;
}

ScanFrames::Problem ScanFrames::BeginFrame(const SANE_Parameters& parameters) {
    if (auto problem = Check(parameters)) {
        return problem;
    }
    const unsigned channels = ChannelsOf(FormatOf(parameters));
    if ((channels & m_channelsDone) != 0) {
        return SaneWords::Damaged("the same color twice");
    }
    if (m_framesDone > 0 && parameters.pixels_per_line != m_width) {
        return SaneWords::Damaged("frames of two sizes");
    }
    const bool last = parameters.last_frame != SANE_FALSE;
    if (last && (channels | m_channelsDone) != AllChannels) {
        return SaneWords::Damaged("not all colors");
    }
    m_frame = parameters;
    m_samples = SamplesOf(FormatOf(parameters));
    m_channels = channels;
    m_width = parameters.pixels_per_line;
    m_rows = 0;
    m_freshFrom = 0;
    m_line.assign(static_cast<std::size_t>(parameters.bytes_per_line), 0);
    m_lineFilled = 0;
    if (parameters.lines > 0) {
        m_pixels.reserve(static_cast<std::size_t>(m_width) *
                         static_cast<std::size_t>(parameters.lines));
    }
    return std::nullopt;
}

ScanFrames::Problem ScanFrames::Take(std::span<const std::uint8_t> bytes) {
    while (!bytes.empty() && (m_frame.lines < 0 || m_rows < m_frame.lines)) {
        const std::size_t taken = std::min(bytes.size(), m_line.size() - m_lineFilled);
        std::copy_n(bytes.begin(), taken,
                    m_line.begin() + static_cast<std::ptrdiff_t>(m_lineFilled));
        m_lineFilled += taken;
        bytes = bytes.subspan(taken);
        if (m_lineFilled == m_line.size()) {
            m_lineFilled = 0;
            if (auto problem = FinishRow()) {
                return problem;
            }
        }
    }
    return std::nullopt;
}

ScanFrames::Problem ScanFrames::FinishRow() {
    if (m_rows >= MaxRows(m_width)) {
        return SaneWords::TooLarge();
    }
    const auto start = static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_width);
    const std::size_t end = start + static_cast<std::size_t>(m_width);
    if (m_pixels.size() < end) {
        if (m_framesDone > 0) {
            return SaneWords::Damaged("frames of two sizes");
        }
        m_pixels.resize(end, 0);
    }
    if (m_frame.format == SANE_FRAME_GRAY) {
        ReadGrayRow(m_pixels.data() + start);
    } else {
        ReadColourRow(m_pixels.data() + start);
    }
    ++m_rows;
    return std::nullopt;
}

/// 0 to 255.
unsigned ScanFrames::Sample(int x, int channel) const {
    const auto pixel = static_cast<std::size_t>(x);
    const auto samples = static_cast<std::size_t>(m_samples);
    const auto offset = static_cast<std::size_t>(channel);
    if (m_frame.depth == 1) {
        const unsigned eight = m_line[pixel / 8 * samples + offset];
        return ((eight >> (7U - pixel % 8U)) & 1U) != 0 ? 255U : 0U;
    }
    if (m_frame.depth == 8) {
        return m_line[pixel * samples + offset];
    }
    // Samples of 16 bits lie in the machine's own order; only the upper half matters here.
    constexpr std::size_t upper = std::endian::native == std::endian::little ? 1 : 0;
    return m_line[(pixel * samples + offset) * 2 + upper];
}

void ScanFrames::ReadGrayRow(Colour* row) const {
    // Of black and white without shades, a set bit is black.
    const unsigned inverted = m_frame.depth == 1 ? 255U : 0U;
    for (int x = 0; x < m_width; ++x) {
        const unsigned gray = Sample(x, 0) ^ inverted;
        row[x] = MakeColour(gray, gray, gray);
    }
}

void ScanFrames::ReadColourRow(Colour* row) const {
    for (int x = 0; x < m_width; ++x) {
        int sample = 0;
        for (unsigned channel = 0; channel < 3; ++channel) {
            if ((m_channels & (1U << channel)) != 0) {
                row[x] |= Sample(x, sample++) << (8U * channel);
            }
        }
    }
}

ScanFrames::Problem ScanFrames::EndFrame() {
    if (m_rows == 0 || (m_frame.lines > 0 && m_rows < m_frame.lines)) {
        return SaneWords::Damaged("it ended before its last row");
    }
    const auto pixels = static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_width);
    if (pixels != m_pixels.size()) {
        return SaneWords::Damaged("frames of two sizes");
    }
    m_channelsDone |= m_channels;
    ++m_framesDone;
    return std::nullopt;
}

ScanRows ScanFrames::TakeFreshRows() {
    const int first = std::exchange(m_freshFrom, m_rows);
    const auto width = static_cast<std::size_t>(m_width);
    ScanRows rows;
    rows.Width = m_width;
    rows.Height = std::max(m_frame.lines, 0);
    rows.First = first;
    rows.Pixels = std::span<const Colour>(m_pixels).subspan(
        static_cast<std::size_t>(first) * width, static_cast<std::size_t>(m_rows - first) * width);
    if (rows.Height > 0) {
        const int frames = m_channels == AllChannels ? 1 : 3;
        rows.Share = (m_framesDone + static_cast<double>(m_rows) / rows.Height) / frames;
    }
    return rows;
}

Picture ScanFrames::TakePicture() {
    return {m_width, std::exchange(m_pixels, {})};
}

} // namespace zol
