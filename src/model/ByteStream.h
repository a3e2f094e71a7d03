// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <istream>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zol {

/// Reads little-endian records from memory or, through a small window, from a file. Positions
/// count from 1, as files of records are numbered. A read past the end gives zeros and is no
/// error; a reader that must know asks Remaining() before it believes a count.
class ByteReader {
public:
    /// Reads memory that the caller keeps alive.
    explicit ByteReader(std::span<const std::uint8_t> bytes);
    /// Reads a seekable binary stream that the caller keeps alive.
    explicit ByteReader(std::istream& stream);

    [[nodiscard]] std::uint64_t Size() const { return m_size; }
    /// 1-based position of the next byte.
    [[nodiscard]] std::uint64_t Position() const { return m_windowStart + m_cursor + 1; }
    void Seek(std::uint64_t position);
    [[nodiscard]] std::uint64_t Remaining() const;

    [[nodiscard]] std::uint8_t ReadU8() {
        if (m_cursor < m_window.size()) {
            return m_window[m_cursor++];
        }
        return ReadSlow();
    }
    [[nodiscard]] std::int16_t ReadI16();
    [[nodiscard]] std::uint16_t ReadU16() { return static_cast<std::uint16_t>(ReadI16()); }
    [[nodiscard]] std::int32_t ReadI32();
    [[nodiscard]] std::uint32_t ReadU32() { return static_cast<std::uint32_t>(ReadI32()); }
    [[nodiscard]] double ReadF64();
    /// The bytes that lie ready from here on, at least `wanted` of them (up to 65536) unless the
    /// stream ends before. They stand until the next call of anything but Skip.
    [[nodiscard]] std::span<const std::uint8_t> Ahead(std::size_t wanted);
    /// Goes past `count` of the bytes that Ahead gave.
    void Skip(std::size_t count) { m_cursor += count; }
    /// Fills `target`; bytes past the end are zero.
    void ReadBytes(std::span<std::uint8_t> target);
    /// `length` bytes as they stand. A negative length, or one that passes the end, fails with
    /// RunTimeError (5 or 62) before anything is allocated.
    [[nodiscard]] std::string ReadRaw(std::int64_t length);
    /// A string of the pattern stream: a 16-bit length and its bytes, given as UTF-8.
    [[nodiscard]] std::string ReadString();

private:
    std::uint8_t ReadSlow();
    bool Refill();

    std::istream* m_stream = nullptr;
    std::vector<std::uint8_t> m_buffer;
    std::span<const std::uint8_t> m_window;
    std::uint64_t m_windowStart = 0; ///< 0-based place of the window's first byte
    std::size_t m_cursor = 0;        ///< next byte, from the window's start; may pass its end
    std::uint64_t m_size = 0;
};

/// Writes little-endian records into memory. Positions count from 1. A write behind the end first
/// fills the gap with zeros; one inside overwrites.
class ByteWriter {
public:
    [[nodiscard]] std::uint64_t Position() const { return m_cursor + 1; }
    void Seek(std::uint64_t position) { m_cursor = position - 1; }
    [[nodiscard]] const std::vector<std::uint8_t>& Bytes() const { return m_bytes; }
    [[nodiscard]] std::vector<std::uint8_t> Take() { return std::move(m_bytes); }
    void Reserve(std::size_t bytes) { m_bytes.reserve(bytes); }

    void WriteU8(std::uint8_t value);
    void WriteI16(std::int16_t value);
    void WriteI32(std::int32_t value);
    void WriteU32(std::uint32_t value) { WriteI32(static_cast<std::int32_t>(value)); }
    void WriteF64(double value);
    void WriteBytes(std::span<const std::uint8_t> bytes);
    void WriteRaw(std::string_view bytes);
    /// A 16-bit length and the bytes of the code page. A text that passes 32767 characters fails
    /// with RunTimeError 6.
    void WriteString(std::string_view utf8);

private:
    std::vector<std::uint8_t> m_bytes;
    std::size_t m_cursor = 0;
};

} // namespace zol
