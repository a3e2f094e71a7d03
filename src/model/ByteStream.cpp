// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ByteStream.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

#include "model/CodePage.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {
constexpr std::size_t windowSize = 65536;
}

ByteReader::ByteReader(std::span<const std::uint8_t> bytes)
    : m_window(bytes),
      m_size(bytes.size()) {}

ByteReader::ByteReader(std::istream& stream) : m_stream(&stream), m_buffer(windowSize) {
    stream.seekg(0, std::ios::end);
    const auto end = stream.tellg();
    m_size = end < 0 ? 0 : static_cast<std::uint64_t>(end);
    stream.clear();
    stream.seekg(0);
}

void ByteReader::Seek(std::uint64_t position) {
    const std::uint64_t target = position == 0 ? 0 : position - 1;
    if (target >= m_windowStart && target - m_windowStart <= m_window.size()) {
        m_cursor = static_cast<std::size_t>(target - m_windowStart);
        return;
    }
    if (m_stream == nullptr) {
        m_cursor = static_cast<std::size_t>(target);
        return;
    }
    m_windowStart = target;
    m_window = {};
    m_cursor = 0;
    m_stream->clear();
    m_stream->seekg(static_cast<std::streamoff>(target));
}

std::uint64_t ByteReader::Remaining() const {
    const std::uint64_t done = m_windowStart + m_cursor;
    return done < m_size ? m_size - done : 0;
}

bool ByteReader::Refill() {
    if (m_stream == nullptr) {
        return false;
    }
    m_windowStart += m_cursor;
    m_cursor = 0;
    m_stream->read(reinterpret_cast<char*>(m_buffer.data()),
                   static_cast<std::streamsize>(m_buffer.size()));
    m_window = std::span(m_buffer).first(static_cast<std::size_t>(m_stream->gcount()));
    return !m_window.empty();
}

std::uint8_t ByteReader::ReadSlow() {
    if (Remaining() > 0 && Refill()) {
        return m_window[m_cursor++];
    }
    ++m_cursor;
    return 0;
}

std::span<const std::uint8_t> ByteReader::Ahead(std::size_t wanted) {
    const std::size_t left = m_cursor < m_window.size() ? m_window.size() - m_cursor : 0;
    if (left >= wanted || m_stream == nullptr || Remaining() <= left) {
        return m_window.last(left);
    }
    std::copy_n(m_window.end() - static_cast<std::ptrdiff_t>(left), left, m_buffer.begin());
    m_windowStart += m_cursor;
    m_cursor = 0;
    m_stream->read(reinterpret_cast<char*>(m_buffer.data() + left),
                   static_cast<std::streamsize>(m_buffer.size() - left));
    m_window = std::span(m_buffer).first(left + static_cast<std::size_t>(m_stream->gcount()));
    return m_window;
}

std::int16_t ByteReader::ReadI16() {
    const unsigned low = ReadU8();
    const unsigned high = ReadU8();
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(low | (high << 8U)));
}

std::int32_t ByteReader::ReadI32() {
    const std::uint32_t low = ReadU16();
    const std::uint32_t high = ReadU16();
    return static_cast<std::int32_t>(low | (high << 16U));
}

double ByteReader::ReadF64() {
    const std::uint64_t low = ReadU32();
    const std::uint64_t high = ReadU32();
    return std::bit_cast<double>(low | (high << 32U));
}

void ByteReader::ReadBytes(std::span<std::uint8_t> target) {
    std::size_t done = 0;
    while (done < target.size()) {
        if (m_cursor >= m_window.size() && !(Remaining() > 0 && Refill())) {
            break;
        }
        const std::size_t part = std::min(target.size() - done, m_window.size() - m_cursor);
        std::copy_n(m_window.begin() + static_cast<std::ptrdiff_t>(m_cursor), part,
                    target.begin() + static_cast<std::ptrdiff_t>(done));
        m_cursor += part;
        done += part;
    }
    std::fill(target.begin() + static_cast<std::ptrdiff_t>(done), target.end(), std::uint8_t{0});
    m_cursor += target.size() - done;
}

std::string ByteReader::ReadRaw(std::int64_t length) {
    if (length < 0) {
        throw RunTimeError(ErrInvalidCall);
    }
    if (static_cast<std::uint64_t>(length) > Remaining()) {
        throw RunTimeError(ErrPastEnd);
    }
    std::string text(static_cast<std::size_t>(length), '\0');
    ReadBytes({reinterpret_cast<std::uint8_t*>(text.data()), text.size()});
    return text;
}

std::string ByteReader::ReadString() {
    return CodePage::ToUtf8(ReadRaw(ReadI16()));
}

void ByteWriter::WriteBytes(std::span<const std::uint8_t> bytes) {
    const std::size_t end = m_cursor + bytes.size();
    if (m_cursor == m_bytes.size()) {
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
    } else {
        if (end > m_bytes.size()) {
            m_bytes.resize(end);
        }
        std::copy(bytes.begin(), bytes.end(),
                  m_bytes.begin() + static_cast<std::ptrdiff_t>(m_cursor));
    }
    m_cursor = end;
}

void ByteWriter::WriteU8(std::uint8_t value) {
    WriteBytes({&value, 1});
}

void ByteWriter::WriteI16(std::int16_t value) {
    const auto bits = static_cast<std::uint16_t>(value);
    const std::array<std::uint8_t, 2> bytes{static_cast<std::uint8_t>(bits & 0xFFU),
                                            static_cast<std::uint8_t>(bits >> 8U)};
    WriteBytes(bytes);
}

void ByteWriter::WriteI32(std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    const std::array<std::uint8_t, 4> bytes{
        static_cast<std::uint8_t>(bits & 0xFFU), static_cast<std::uint8_t>((bits >> 8U) & 0xFFU),
        static_cast<std::uint8_t>((bits >> 16U) & 0xFFU), static_cast<std::uint8_t>(bits >> 24U)};
    WriteBytes(bytes);
}

void ByteWriter::WriteF64(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    WriteU32(static_cast<std::uint32_t>(bits & 0xFFFFFFFFU));
    WriteU32(static_cast<std::uint32_t>(bits >> 32U));
}

void ByteWriter::WriteRaw(std::string_view bytes) {
    WriteBytes({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

void ByteWriter::WriteString(std::string_view utf8) {
    const std::string coded = CodePage::FromUtf8(utf8);
    if (coded.size() > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        throw RunTimeError(ErrOverflow);
    }
    WriteI16(static_cast<std::int16_t>(coded.size()));
    WriteRaw(coded);
}

} // namespace zol
