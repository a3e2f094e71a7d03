// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/AvailColors.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>

#include "flosses/CatalogueList.h"
#include "flosses/ExchangeSort.h"
#include "flosses/HSLFuncs.h"
#include "flosses/InputFile.h"
#include "model/ProgramContext.h"
#include "model/Rounding.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

enum CatalogueSortOrder { SortByNumber = 1, SortByDescription = 2, SortByHue = 3 };

CatalogueHeader ReadHeader(ByteReader& stream) {
    CatalogueHeader header;
    stream.ReadBytes(header.Name.Bytes());
    header.BaseID = stream.ReadI32();
    stream.ReadBytes(header.ShortName.Bytes());
    header.Date = stream.ReadF64();
    header.ManuCount = stream.ReadI16();
    return header;
}

void WriteHeader(ByteWriter& stream, const CatalogueHeader& header) {
    stream.WriteBytes(header.Name.Bytes());
    stream.WriteI32(header.BaseID);
    stream.WriteBytes(header.ShortName.Bytes());
    stream.WriteF64(header.Date);
    stream.WriteI16(header.ManuCount);
}

CatalogueRow ReadRow(ByteReader& stream) {
    CatalogueRow row;
    row.MasterID = stream.ReadI32();
    stream.ReadBytes(row.Description.Bytes());
    stream.ReadBytes(row.FlossID.Bytes());
    row.Red = stream.ReadI16();
    row.Green = stream.ReadI16();
    row.Blue = stream.ReadI16();
    row.Extra1 = stream.ReadI16();
    row.Extra2 = stream.ReadI16();
    row.Extra3 = stream.ReadI16();
    row.Category = stream.ReadU8();
    return row;
}

void WriteRow(ByteWriter& stream, const CatalogueRow& row) {
    stream.WriteI32(row.MasterID);
    stream.WriteBytes(row.Description.Bytes());
    stream.WriteBytes(row.FlossID.Bytes());
    stream.WriteI16(row.Red);
    stream.WriteI16(row.Green);
    stream.WriteI16(row.Blue);
    stream.WriteI16(row.Extra1);
    stream.WriteI16(row.Extra2);
    stream.WriteI16(row.Extra3);
    stream.WriteU8(row.Category);
}

std::uint8_t CategoryOf(std::string_view text) {
    return FixedText<1>(text).Bytes().front();
}

unsigned ChannelOf(std::int16_t value) {
    return static_cast<unsigned>(std::clamp<int>(value, 0, 255));
}

void SpellBritish(CatalogueRow& row) {
    std::string text(row.Description.Coded());
    const std::size_t place = text.find("gray");
    if (place != std::string::npos) {
        text.replace(place, 4, "grey");
        std::copy(text.begin(), text.end(), row.Description.Bytes().begin());
    }
}

/// The backup's name has ".BAK" instead of a final ".COL" in any case; a file of another name
/// gets ".COL" behind it.
std::filesystem::path BackupName(const std::filesystem::path& fileName) {
    const std::string text = PathText(fileName);
    constexpr std::string_view extension = ".COL";
    if (text.size() < extension.size() ||
        UpperCase(text.substr(text.size() - extension.size())) != extension) {
        return PathOf(text + std::string(extension));
    }
    return PathOf(text.substr(0, text.size() - extension.size()) + ".BAK");
}

} // namespace

AvailColors::AvailColors(const ProgramContext& context) : m_context(&context) {
    m_header.Name.Set("DMC");
}

// --- Files --------------------------------------------------------------------------------------

bool AvailColors::Initialize(const std::filesystem::path& fileName) {
    AvailColors loaded(*m_context);
    loaded.m_fileName =
        fileName.has_parent_path() ? fileName : CataloguePath(*m_context, PathText(fileName));
    bool whole = false;
    try {
        if (auto file = OpenInputFile(loaded.m_fileName)) {
            ByteReader stream(*file);
            loaded.Read(stream);
            whole = true;
        }
    } catch (const std::exception&) {
        whole = false; // Read takes nothing over before it has everything
    }
    if (m_context->BritishSpelling) {
        std::for_each(loaded.m_flosses.begin(), loaded.m_flosses.end(), SpellBritish);
    }
    if (!loaded.m_flosses.empty()) {
        loaded.SortByCategory(SortByNumber);
    }
    *this = std::move(loaded);
    return whole;
}

void AvailColors::Read(ByteReader& stream) {
    if (stream.Remaining() < CatalogueHeader::RecordSize) {
        throw RunTimeError(ErrPastEnd);
    }
    const CatalogueHeader header = ReadHeader(stream);
    const std::uint64_t count = stream.Remaining() / CatalogueRow::RecordSize;
    if (count > MaxFlosses) {
        throw RunTimeError(ErrOverflow);
    }
    std::vector<CatalogueRow> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (std::uint64_t i = 0; i < count; ++i) {
        rows.push_back(ReadRow(stream));
    }
    m_header = header;
    m_flosses = std::move(rows);
    m_manuDesc = m_header.Name.Text();
    m_manuShort = m_manuDesc;
    m_manuCount = m_header.ManuCount;
}

std::vector<std::uint8_t> AvailColors::Bytes() const {
    ByteWriter stream;
    WriteHeader(stream, m_header);
    for (const CatalogueRow& row : m_flosses) {
        WriteRow(stream, row);
    }
    return stream.Take();
}

bool AvailColors::SaveToFile(const std::filesystem::path& fileName) {
    const std::filesystem::path& target = fileName.empty() ? m_fileName : fileName;
    if (target.empty()) {
        return false;
    }
    const std::filesystem::path backup =
        target == m_fileName ? BackupName(target) : std::filesystem::path();
    return SafeFile::Replace(target, Bytes(), backup) == ErrNone;
}

void AvailColors::Setheader(std::string_view name, std::int32_t baseID, std::string_view shortName,
                            double date) {
    m_fileName = PathOf(std::string(name));
    m_header.Name.Set(name);
    m_header.BaseID = baseID;
    m_header.ShortName.Set(shortName);
    m_header.Date = date;
}

// --- Rows ---------------------------------------------------------------------------------------

void AvailColors::AppendRow(const CatalogueRow& row) {
    if (m_flosses.size() < MaxFlosses) {
        m_flosses.push_back(row);
    }
}

void AvailColors::AddEntry(std::int32_t masterID, std::string_view description,
                           std::string_view flossID, int red, int green, int blue, int /*sequence*/,
                           int extra2, int extra3, std::string_view category) {
    CatalogueRow row;
    row.MasterID = masterID;
    row.Description.Set(description);
    row.FlossID.Set(flossID);
    row.Red = static_cast<std::int16_t>(red);
    row.Green = static_cast<std::int16_t>(green);
    row.Blue = static_cast<std::int16_t>(blue);
    row.Extra1 = row.Blue;
    row.Extra2 = static_cast<std::int16_t>(extra2);
    row.Extra3 = static_cast<std::int16_t>(extra3);
    row.Category = CategoryOf(category);
    AppendRow(row);
    SortByCategory(m_sortCategory);
}

void AvailColors::ModifyEntry(int index, std::int32_t masterID, std::string_view description,
                              std::string_view flossID, int red, int green, int blue, int extra1,
                              int extra2, int extra3, std::string_view category) {
    if (index < 1 || index > GetFlossCount()) {
        return;
    }
    CatalogueRow& row = m_flosses[static_cast<std::size_t>(index - 1)];
    row.MasterID = masterID;
    row.Description.Set(Trimmed(description));
    row.FlossID.Set(Trimmed(flossID));
    row.Red = static_cast<std::int16_t>(red);
    row.Green = static_cast<std::int16_t>(green);
    row.Blue = static_cast<std::int16_t>(blue);
    row.Extra1 = static_cast<std::int16_t>(extra1);
    row.Extra2 = static_cast<std::int16_t>(extra2);
    row.Extra3 = static_cast<std::int16_t>(extra3);
    row.Category = CategoryOf(category);
}

void AvailColors::RemoveEntry(int index) {
    if (index >= 1 && index <= GetFlossCount()) {
        m_flosses.erase(m_flosses.begin() + (index - 1));
    }
}

const CatalogueRow* AvailColors::Find(int index) const {
    return index >= 1 && index <= GetFlossCount() ? &m_flosses[static_cast<std::size_t>(index - 1)]
                                                  : nullptr;
}

const CatalogueRow& AvailColors::GetRow(int index) const {
    const CatalogueRow* row = Find(index);
    if (row == nullptr) {
        throw std::out_of_range("catalogue row");
    }
    return *row;
}

int AvailColors::GetFlossCount() const {
    return static_cast<int>(m_flosses.size());
}

std::int32_t AvailColors::GetFlossMasterID(int index) const {
    const CatalogueRow* row = Find(index);
    if (row == nullptr) {
        return index == 0 ? -1 : 0;
    }
    return row->MasterID;
}

std::string AvailColors::GetFlossManuID(int index) const {
    const CatalogueRow* row = Find(index);
    return row == nullptr ? std::string() : row->FlossID.Text();
}

std::string AvailColors::GetFlossDesc(int index) const {
    const CatalogueRow* row = Find(index);
    return row == nullptr ? std::string() : row->Description.Text();
}

Colour AvailColors::GetFlossRGB(int index) const {
    const CatalogueRow* row = Find(index);
    return row == nullptr
               ? 0
               : MakeColour(ChannelOf(row->Red), ChannelOf(row->Green), ChannelOf(row->Blue));
}

int AvailColors::GetFlossRed(int index) const {
    const CatalogueRow* row = Find(index);
    return row == nullptr ? 0 : row->Red;
}

int AvailColors::GetFlossGreen(int index) const {
    const CatalogueRow* row = Find(index);
    return row == nullptr ? 0 : row->Green;
}

int AvailColors::GetFlossBlue(int index) const {
    const CatalogueRow* row = Find(index);
    return row == nullptr ? 0 : row->Blue;
}

std::string AvailColors::GetShortDesc() const {
    return m_header.ShortName.Text();
}

// --- Looking up ---------------------------------------------------------------------------------

int AvailColors::FindIndex(std::string_view flossID) const {
    const std::string wanted = Trimmed(CodePage::FromUtf8(flossID));
    const auto found =
        std::find_if(m_flosses.begin(), m_flosses.end(), [&wanted](const CatalogueRow& row) {
            return Trimmed(row.FlossID.Coded()) == wanted;
        });
    return found == m_flosses.end() ? 0 : static_cast<int>(found - m_flosses.begin()) + 1;
}

std::int16_t AvailColors::GetMappingMasterID(std::string_view paddedFlossID) const {
    const std::string wanted = LowerCase(CodePage::FromUtf8(paddedFlossID));
    const auto found =
        std::find_if(m_flosses.begin(), m_flosses.end(), [&wanted](const CatalogueRow& row) {
            return LowerCase(row.FlossID.Coded()) == wanted;
        });
    return found == m_flosses.end() ? std::int16_t{0} : static_cast<std::int16_t>(found->MasterID);
}

int AvailColors::GetMapIndex(std::int32_t masterID) const {
    const auto found =
        std::find_if(m_flosses.begin(), m_flosses.end(),
                     [masterID](const CatalogueRow& row) { return row.MasterID == masterID; });
    return found == m_flosses.end() ? -1 : static_cast<int>(found - m_flosses.begin()) + 1;
}

void AvailColors::SortByCategory(int order) {
    m_sortCategory = static_cast<std::int16_t>(order);
    const auto sortBy = [this](auto keyOf) {
        std::vector<decltype(keyOf(std::declval<const CatalogueRow&>()))> keys;
        keys.reserve(m_flosses.size());
        std::transform(m_flosses.begin(), m_flosses.end(), std::back_inserter(keys), keyOf);
        std::vector<CatalogueRow> sorted;
        sorted.reserve(m_flosses.size());
        for (const int place : ExchangeOrder(keys)) {
            sorted.push_back(m_flosses[static_cast<std::size_t>(place)]);
        }
        m_flosses = std::move(sorted);
    };
    if (order == SortByNumber) {
        sortBy([](const CatalogueRow& row) {
            const std::string_view number = row.FlossID.Coded();
            return LeadingNumber(number.data(), number.data() + number.size());
        });
    } else if (order == SortByDescription) {
        sortBy([](const CatalogueRow& row) { return row.Description; });
    } else if (order == SortByHue) {
        sortBy(
            [](const CatalogueRow& row) { return HSLFuncs::HueKey(row.Red, row.Green, row.Blue); });
    }
}

} // namespace zol
