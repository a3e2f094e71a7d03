// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/CodePage.h"

#include <algorithm>
#include <utility>

namespace zol {

namespace {

// Codes 128 to 159; the undefined five are the control characters of the same number.
constexpr std::array<char32_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Plain {
    char32_t first;
    const char* letters; ///< one for each character from `first` on; '?' for none
};

// Latin letters beyond the code page and the plain letter nearest to each.
constexpr Plain latinExtended{
    0x0100, "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi??JjKkkLlLlLlLlLlNnNnNnnNnOoOoOo??"
            "RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs"};

char32_t NearestPlain(char32_t character) {
    if (character >= 0x0100 && character <= 0x017F) {
        return static_cast<char32_t>(
            static_cast<unsigned char>(latinExtended.letters[character - latinExtended.first]));
    }
    static constexpr std::array<std::pair<char32_t, char32_t>, 18> others{{{0x2010, '-'},
                                                                           {0x2011, '-'},
                                                                           {0x2012, '-'},
                                                                           {0x2015, '-'},
                                                                           {0x2032, '\''},
                                                                           {0x2033, '"'},
                                                                           {0x2212, '-'},
                                                                           {0x2044, '/'},
                                                                           {0x2215, '/'},
                                                                           {0x2002, ' '},
                                                                           {0x2003, ' '},
                                                                           {0x2009, ' '},
                                                                           {0x202F, ' '},
                                                                           {0x2024, '.'},
                                                                           {0x2027, '.'},
                                                                           {0x2217, '*'},
                                                                           {0x2236, ':'},
                                                                           {0x02BC, '\''}}};
    const auto* found = std::find_if(others.begin(), others.end(),
                                     [character](const auto& o) { return o.first == character; });
    return found == others.end() ? U'?' : found->second;
}

/// Length of the UTF-8 sequence that a lead byte opens, 0 for a byte that opens none.
int SequenceLength(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

template<typename Map>
std::string MapAscii(std::string_view text, Map map) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), map);
    return result;
}

} // namespace

namespace CodePage {

char32_t ToUnicode(std::uint8_t code) {
    return code >= 128 && code < 160 ? upperControls[code - 128U] : code;
}

std::uint8_t FromUnicode(char32_t character) {
    if (character < 128 || (character >= 160 && character < 256)) {
        return static_cast<std::uint8_t>(character);
    }
    const auto* found = std::find(upperControls.begin(), upperControls.end(), character);
    return found == upperControls.end()
               ? std::uint8_t{0}
               : static_cast<std::uint8_t>(128 + (found - upperControls.begin()));
}

void AppendUtf8(std::string& utf8, char32_t character) {
    const auto add = [&utf8](char32_t value) {
        utf8.push_back(static_cast<char>(static_cast<unsigned char>(value)));
    };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0 | (character >> 6U));
        add(0x80 | (character & 0x3FU));
    } else if (character < 0x10000) {
        add(0xE0 | (character >> 12U));
        add(0x80 | ((character >> 6U) & 0x3FU));
        add(0x80 | (character & 0x3FU));
    } else {
        add(0xF0 | (character >> 18U));
        add(0x80 | ((character >> 12U) & 0x3FU));
        add(0x80 | ((character >> 6U) & 0x3FU));
        add(0x80 | (character & 0x3FU));
    }
}

std::u32string Decode(std::string_view utf8) {
    std::u32string result;
    result.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        const int length = SequenceLength(lead);
        char32_t character =
            length <= 1 ? lead : lead & (0xFFU >> static_cast<unsigned>(length + 1));
        bool whole = length > 0 && i + static_cast<std::size_t>(length) <= utf8.size();
        for (int k = 1; whole && k < length; ++k) {
            const auto next = static_cast<unsigned char>(utf8[i + static_cast<std::size_t>(k)]);
            whole = (next & 0xC0U) == 0x80U;
            character = (character << 6U) | (next & 0x3FU);
        }
        result.push_back(whole ? character : lead);
        i += whole ? static_cast<std::size_t>(length) : 1;
    }
    return result;
}

std::string ToUtf8(std::string_view codePageText) {
    std::string result;
    result.reserve(codePageText.size());
    for (const char byte : codePageText) {
        AppendUtf8(result, ToUnicode(static_cast<std::uint8_t>(byte)));
    }
    return result;
}

std::string FromUtf8(std::string_view utf8) {
    std::string result;
    result.reserve(utf8.size());
    for (const char32_t character : Decode(utf8)) {
        std::uint8_t code = FromUnicode(character);
        if (code == 0 && character != 0) {
            code = static_cast<std::uint8_t>(NearestPlain(character));
        }
        result.push_back(static_cast<char>(code));
    }
    return result;
}

} // namespace CodePage

std::string Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string TrimmedRight(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string LowerCase(std::string_view text) {
    return MapAscii(
        text, [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
}

std::string UpperCase(std::string_view text) {
    return MapAscii(
        text, [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
}

} // namespace zol
