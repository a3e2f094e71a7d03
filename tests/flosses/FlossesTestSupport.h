// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "flosses/Palette.h"
#include "model/Doors.h"
#include "support/TempFolder.h"

namespace zol::test {

/// Keeps what the user would have been shown.
class RecordedMessages : public MessageDoor {
public:
    void Tell(const std::string& text, MessageIcon icon, const std::string& /*title*/) override {
        Told.emplace_back(text, icon);
    }
    MessageAnswer Ask(const std::string& text, MessageIcon icon, MessageButtons /*buttons*/,
                      const std::string& /*title*/) override {
        Told.emplace_back(text, icon);
        return MessageAnswer::Cancel;
    }

    std::vector<std::pair<std::string, MessageIcon>> Told;
};

/// Answers always the same and remembers how many flosses the palette had when it was asked.
class FixedSymbol : public SymbolDoor {
public:
    explicit FixedSymbol(std::optional<std::string> answer) : m_answer(std::move(answer)) {}
    std::optional<std::string> ChooseSymbol(const Palette& palette) override {
        CountsSeen.push_back(palette.GetEntriesCount());
        return m_answer;
    }

    std::vector<int> CountsSeen;

private:
    std::optional<std::string> m_answer;
};

/// Bytes written out by hand, independent of the program's own writer.
class HandWritten {
public:
    HandWritten& Text(const std::string& text, std::size_t width = 0) {
        Bytes.insert(Bytes.end(), text.begin(), text.end());
        Bytes.insert(Bytes.end(), width > text.size() ? width - text.size() : 0, 0x20);
        return *this;
    }
    HandWritten& Raw(std::initializer_list<int> bytes) {
        for (const int byte : bytes) {
            Bytes.push_back(static_cast<std::uint8_t>(byte));
        }
        return *this;
    }

    std::vector<std::uint8_t> Bytes;
};

/// Adds a floss of DMC with the plain values that a test does not care about.
inline PaletteAddStatus AddFloss(Palette& palette, Colour rgb, const std::string& flossID,
                                 const std::string& description = "floss",
                                 const std::string& symbol = "A", std::int32_t masterID = 0) {
    return palette.AddPaletteEntry(rgb, flossID, description, "DMC", symbol, 0, 0, 0, masterID, 0,
                                   "DMC");
}

} // namespace zol::test
