// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "model/ByteStream.h"
#include "model/CodePage.h"
#include "model/ZOLTypes.h"

namespace zol {

struct ProgramContext;

/// Header of a catalogue file, 54 bytes.
struct CatalogueHeader {
    static constexpr int RecordSize = 54;

    FixedText<30> Name;
    std::int32_t BaseID = 0; ///< 10000 in a catalogue that the user created
    FixedText<10> ShortName;
    double Date = 0; ///< days since 30 December 1899
    std::int16_t ManuCount = 0;
};

/// One thread of a catalogue, 57 bytes on disk.
struct CatalogueRow {
    static constexpr int RecordSize = 57;

    std::int32_t MasterID = 0;
    FixedText<30> Description;
    FixedText<10> FlossID;
    std::int16_t Red = 0;
    std::int16_t Green = 0;
    std::int16_t Blue = 0;
    std::int16_t Extra1 = 0;
    std::int16_t Extra2 = 0;
    std::int16_t Extra3 = 0;
    std::uint8_t Category = ' ';
};

/// One manufacturer's floss catalogue, its rows numbered from 1. Rows move when the catalogue is
/// sorted. Getters answer 0 or an empty text outside 1 to GetFlossCount.
class AvailColors {
public:
    /// Rows that a catalogue may have; they are counted in 16 bits.
    static constexpr unsigned MaxFlosses = 0x7FFF;

    /// `context` gives the application folder and the spelling; it must outlive the catalogue.
    explicit AvailColors(const ProgramContext& context);

    /// Loads a file and sorts by number. A bare name lies in the folder "Flosses" of the
    /// application folder. False if it is missing or unreadable, which leaves the empty object;
    /// nothing is shown.
    bool Initialize(const std::filesystem::path& fileName);
    /// Reads header and rows from a stream, in the order of the file; a short last record is
    /// dropped. Throws RunTimeError, with the object as it was, if the header is not whole or
    /// there are more rows than can be counted.
    void Read(ByteReader& stream);
    /// An empty name means the catalogue's own; saving over it keeps the old file as ".BAK".
    /// False if nothing was written.
    bool SaveToFile(const std::filesystem::path& fileName);
    [[nodiscard]] std::vector<std::uint8_t> Bytes() const;
    void Setheader(std::string_view name, std::int32_t baseID, std::string_view shortName,
                   double date);

    /// Appends a row and sorts again. `Extra1` takes `blue`, and `sequence` is dropped: what
    /// every row made by a user holds.
    void AddEntry(std::int32_t masterID, std::string_view description, std::string_view flossID,
                  int red, int green, int blue, int sequence, int extra2, int extra3,
                  std::string_view category);
    void ModifyEntry(int index, std::int32_t masterID, std::string_view description,
                     std::string_view flossID, int red, int green, int blue, int extra1, int extra2,
                     int extra3, std::string_view category);
    void RemoveEntry(int index);
    /// Appends a row as it stands, without sorting.
    void AppendRow(const CatalogueRow& row);

    /// -1 for row 0.
    [[nodiscard]] std::int32_t GetFlossMasterID(int index) const;
    [[nodiscard]] std::string GetFlossManuID(int index) const;
    [[nodiscard]] std::string GetFlossDesc(int index) const;
    [[nodiscard]] Colour GetFlossRGB(int index) const;
    [[nodiscard]] int GetFlossRed(int index) const;
    [[nodiscard]] int GetFlossGreen(int index) const;
    [[nodiscard]] int GetFlossBlue(int index) const;
    [[nodiscard]] int GetManuCount() const { return m_manuCount; }
    [[nodiscard]] int GetFlossCount() const;
    [[nodiscard]] std::string GetManuDesc() const { return m_manuDesc; }
    /// The short name that palettes are given.
    [[nodiscard]] std::string GetShortDesc() const;
    [[nodiscard]] const std::filesystem::path& GetFileName() const { return m_fileName; }
    [[nodiscard]] const CatalogueHeader& GetHeader() const { return m_header; }
    /// The whole record of a row; `index` must be in range.
    [[nodiscard]] const CatalogueRow& GetRow(int index) const;

    /// First row with that number (trimmed, case-sensitive), or 0.
    [[nodiscard]] int FindIndex(std::string_view flossID) const;
    /// Master identity of the first row whose padded number equals the argument without regard
    /// to case, narrowed to 16 bits; 0 if none. The argument comes padded to 10 characters.
    [[nodiscard]] std::int16_t GetMappingMasterID(std::string_view paddedFlossID) const;
    /// First row with that identity, or -1. An identity of 0 finds the first row of a user's own.
    [[nodiscard]] int GetMapIndex(std::int32_t masterID) const;
    /// 1 by number, 2 by description, 3 by hue.
    void SortByCategory(int order);

private:
    /// The row of that number, or null.
    [[nodiscard]] const CatalogueRow* Find(int index) const;

    const ProgramContext* m_context;
    std::filesystem::path m_fileName;
    std::int16_t m_sortCategory = 0;
    std::string m_manuDesc;
    std::string m_manuShort = "DMC";
    std::int16_t m_manuCount = 3;
    std::vector<CatalogueRow> m_flosses;
    CatalogueHeader m_header;
};

} // namespace zol
