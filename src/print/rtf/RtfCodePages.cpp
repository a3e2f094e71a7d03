// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfCodePages.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "model/CodePage.h"

namespace zol {

namespace {

struct PageName {
    int Page;
    const char* Name;
};

constexpr std::array<PageName, 23> PageNames{{
    {437, "IBM437"},
    {850, "IBM850"},
    {852, "IBM852"},
    {866, "IBM866"},
    {874, "windows-874"},
    {932, "windows-31j"},
    {936, "GBK"},
    {949, "windows-949"},
    {950, "Big5"},
    {1250, "windows-1250"},
    {1251, "windows-1251"},
    {1253, "windows-1253"},
    {1254, "windows-1254"},
    {1255, "windows-1255"},
    {1256, "windows-1256"},
    {1257, "windows-1257"},
    {1258, "windows-1258"},
    {10000, "macintosh"},
    {10007, "x-mac-cyrillic"},
    {20866, "KOI8-R"},
    {28591, "ISO-8859-1"},
    {28592, "ISO-8859-2"},
    {65001, "UTF-8"},
}};

constexpr std::array<std::pair<int, int>, 16> CharsetPages{{
    {0, 1252},
    {77, 10000},
    {128, 932},
    {129, 949},
    {134, 936},
    {136, 950},
    {161, 1253},
    {162, 1254},
    {163, 1258},
    {177, 1255},
    {178, 1256},
    {186, 1257},
    {204, 1251},
    {222, 874},
    {238, 1250},
    {255, 850},
}};

QString DecodeWestern(const std::string& bytes) {
    QString text;
    for (const char byte : bytes) {
        text += QChar(static_cast<char16_t>(CodePage::ToUnicode(static_cast<std::uint8_t>(byte))));
    }
    return text;
}

/// Where such fonts have their signs in Unicode; the bullet alone is a character of its own.
QString DecodeSymbol(const std::string& bytes) {
    constexpr std::uint8_t Bullet = 0xB7;
    QString text;
    for (const char byte : bytes) {
        const auto code = static_cast<std::uint8_t>(byte);
        if (code == Bullet) {
            text += QChar(u'\u2022');
        } else {
            text += QChar(static_cast<char16_t>(code <= ' ' ? code : 0xF000 + code));
        }
    }
    return text;
}

} // namespace

int RtfCodePages::OfCharset(int charset, int ofDocument) {
    constexpr int SymbolCharset = 2;
    if (charset == SymbolCharset) {
        return Symbol;
    }
    for (const auto& [known, page] : CharsetPages) {
        if (known == charset) {
            return page;
        }
    }
    return ofDocument;
}

QString RtfCodePages::Decode(const std::string& bytes, int codePage) {
    if (codePage == Symbol) {
        return DecodeSymbol(bytes);
    }
    const auto* const page = std::find_if(PageNames.begin(), PageNames.end(),
                                          [&](const PageName& p) { return p.Page == codePage; });
    if (page == PageNames.end()) {
        return DecodeWestern(bytes);
    }
    QStringDecoder& decoder = m_decoders.try_emplace(codePage, page->Name).first->second;
    if (!decoder.isValid()) {
        return DecodeWestern(bytes); // Qt without this page
    }
    QString text =
        decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    decoder.resetState();
    return text;
}

} // namespace zol
