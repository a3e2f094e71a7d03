// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/JsonWriter.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "model/CodePage.h"

namespace zol {

void JsonWriter::Separate() {
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (!m_filled.empty()) {
        if (m_filled.back()) {
            m_out << ',';
        }
        m_filled.back() = true;
    }
}

void JsonWriter::BeginObject() {
    Separate();
    m_out << '{';
    m_filled.push_back(false);
}

void JsonWriter::EndObject() {
    m_out << '}';
    m_filled.pop_back();
}

void JsonWriter::BeginArray() {
    Separate();
    m_out << '[';
    m_filled.push_back(false);
}

void JsonWriter::EndArray() {
    m_out << ']';
    m_filled.pop_back();
}

void JsonWriter::Key(std::string_view name) {
    Separate();
    Quoted(name);
    m_out << ':';
    m_afterKey = true;
}

void JsonWriter::Number(std::int64_t value) {
    Separate();
    m_out << value;
}

void JsonWriter::Decimal(double value) {
    Separate();
    if (!std::isfinite(value)) {
        m_out << "null"; // no number, for which there is no other word
        return;
    }
    const double millionths = value * 1e6;
    const double rounded = std::isfinite(millionths) ? std::nearbyint(millionths) / 1e6 : value;
    std::array<char, 400> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded,
                                   std::chars_format::fixed);
    const std::string text(buffer.data(), end.ptr);
    m_out << text;
    if (text.find('.') == std::string::npos) {
        m_out << ".0";
    }
}

void JsonWriter::Boolean(bool value) {
    Separate();
    m_out << (value ? "true" : "false");
}

void JsonWriter::Text(std::string_view utf8) {
    Separate();
    Quoted(utf8);
}

namespace {

void WriteEscape(std::ostream& out, unsigned unit) {
    constexpr std::string_view digits = "0123456789abcdef";
    out << "\\u" << digits[(unit >> 12U) & 15U] << digits[(unit >> 8U) & 15U]
        << digits[(unit >> 4U) & 15U] << digits[unit & 15U];
}

void WriteCharacter(std::ostream& out, char32_t character) {
    switch (character) {
    case U'"':
        out << "\\\"";
        return;
    case U'\\':
        out << "\\\\";
        return;
    case U'\n':
        out << "\\n";
        return;
    case U'\r':
        out << "\\r";
        return;
    case U'\t':
        out << "\\t";
        return;
    default:
        break;
    }
    if (character >= 0x20 && character < 0x7F) {
        out << static_cast<char>(character);
    } else if (character < 0x10000) {
        WriteEscape(out, character);
    } else {
        const unsigned rest = character - 0x10000U;
        WriteEscape(out, 0xD800U + (rest >> 10U));
        WriteEscape(out, 0xDC00U + (rest & 0x3FFU));
    }
}

} // namespace

void JsonWriter::Quoted(std::string_view utf8) {
    m_out << '"';
    for (const char32_t character : CodePage::Decode(utf8)) {
        WriteCharacter(m_out, character);
    }
    m_out << '"';
}

} // namespace zol
