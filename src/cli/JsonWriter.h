// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

namespace zol {

/// Writes JSON without blanks, in ASCII with \\u escapes, straight to a stream, so that a large
/// pattern needs no tree. The caller keeps keys in order; commas are set here.
class JsonWriter {
public:
    explicit JsonWriter(std::ostream& out) : m_out(out) {}

    void BeginObject();
    void EndObject();
    void BeginArray();
    void EndArray();
    void Key(std::string_view name);
    void Number(std::int64_t value);
    /// Rounded to six decimals, always with a point.
    void Decimal(double value);
    void Boolean(bool value);
    void Text(std::string_view utf8);

    // A key and its value at once.
    void Member(std::string_view name, std::int64_t value) {
        Key(name);
        Number(value);
    }
    void TextMember(std::string_view name, std::string_view value) {
        Key(name);
        Text(value);
    }

private:
    void Separate();
    void Quoted(std::string_view utf8);

    std::ostream& m_out;
    std::vector<bool> m_filled; ///< of each open bracket: whether something stands in it
    bool m_afterKey = false;
};

} // namespace zol
