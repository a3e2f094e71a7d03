// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "flosses/Palette.h"
#include "model/Doors.h"

namespace zol::test {

/// A folder of its own that goes away with the test.
class TempFolder {
public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "korvanta-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        m_path = pattern;
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }
    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const {
        return m_path / name;
    }

private:
    std::filesystem::path m_path;
};

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

inline void WriteFile(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

[[nodiscard]] inline std::vector<std::uint8_t> ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

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
