// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// The palette's files: the present form, which is also a block of a pattern file, and two older
// ones. A load fills a copy and takes it over when it is whole.
//
//   what is wrong                                        message                        icon
//   LoadRel6FromDisk on a file without the magic         "Invalid Palette Information"  warning
//   unknown form, length no multiple of an old record    "Invalid File Format"          none
//   damage in the old form                               "Invalid File Format"          warning
//
// Any other damage of a file answers false and says nothing.

#include <algorithm>
#include <exception>
#include <memory>
#include <utility>

#include "flosses/AvailColors.h"
#include "flosses/InputFile.h"
#include "flosses/Palette.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

constexpr std::string_view rel6Magic = "Korvanta 6 Floss Palette!";
constexpr std::string_view rel5Magic = "Korvanta 5 Floss Palette!";
constexpr int rel5RecordSize = 89;
constexpr int oldRecordSize = 37;
constexpr int maxOldRecords = 32767; ///< what the palette's count can hold

std::string ReadMagic(ByteReader& stream) {
    return stream.ReadRaw(
        static_cast<std::int64_t>(std::min<std::uint64_t>(rel6Magic.size(), stream.Remaining())));
}

/// A count that has been held against the bytes that are there; a negative one reads nothing.
int CheckedCount(int count, int recordSize, const ByteReader& stream) {
    if (count <= 0) {
        return 0;
    }
    if (stream.Remaining() <
        static_cast<std::uint64_t>(count) * static_cast<std::uint64_t>(recordSize)) {
        throw RunTimeError(ErrPastEnd);
    }
    return count;
}

template<std::size_t N>
FixedText<N> ReadFixed(ByteReader& stream) {
    FixedText<N> field;
    stream.ReadBytes(field.Bytes());
    return field;
}

bool ReadBool16(ByteReader& stream) {
    return stream.ReadI16() != 0;
}

void WriteBool16(ByteWriter& stream, bool value) {
    stream.WriteI16(value ? std::int16_t{-1} : std::int16_t{0});
}

} // namespace

// --- Saving -------------------------------------------------------------------------------------

void Palette::WriteBlock(ByteWriter& stream) const {
    stream.WriteRaw(rel6Magic);
    stream.WriteI16(static_cast<std::int16_t>(m_manufacturers.size()));
    for (const PaletteManufacturer& row : m_manufacturers) {
        row.Write(stream);
    }
    stream.WriteI16(static_cast<std::int16_t>(m_entries.size()));
    stream.WriteString(m_symbolFontName);
    WriteBool16(stream, m_symbolFontBold);
    WriteBool16(stream, m_symbolFontItalic);
    for (const PaletteEntry& entry : m_entries) {
        entry.Write(stream);
    }
}

void Palette::SaveToDisk(ByteWriter& stream) {
    m_changed = false;
    WriteBlock(stream);
}

int Palette::SaveToDisk(const std::filesystem::path& fileName) const {
    ByteWriter stream;
    try {
        WriteBlock(stream);
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return SafeFile::Replace(fileName, stream.Bytes());
}

// --- Release 6 ----------------------------------------------------------------------------------

void Palette::ReadRel6(ByteReader& stream) {
    const int rows = CheckedCount(stream.ReadI16(), PaletteManufacturer::RecordSize, stream);
    m_manufacturers.clear();
    m_manufacturers.reserve(static_cast<std::size_t>(rows));
    for (int i = 0; i < rows; ++i) {
        m_manufacturers.push_back(PaletteManufacturer::Read(stream));
    }
    const int storedCount = stream.ReadI16();
    m_symbolFontName = stream.ReadString();
    m_symbolFontBold = ReadBool16(stream);
    m_symbolFontItalic = ReadBool16(stream);
    const int count = CheckedCount(storedCount, PaletteEntry::RecordSize, stream);
    m_entries.clear();
    m_entries.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        m_entries.push_back(PaletteEntry::Read(stream));
    }
    // The display order is not stored; whoever loads calls Sort.
    m_sortedIndexes.assign(m_entries.size(), 0);
    m_paletteImages.assign(m_entries.size(), -1);
}

bool Palette::LoadRel6FromDisk(ByteReader& stream) {
    Palette loaded(*this);
    loaded.ReadRel6(stream);
    loaded.m_changed = false;
    *this = std::move(loaded);
    return true;
}

bool Palette::LoadRel6FromDisk(const std::filesystem::path& fileName) {
    auto file = OpenInputFile(fileName);
    if (!file) {
        return false;
    }
    try {
        ByteReader stream(*file);
        if (ReadMagic(stream) != rel6Magic) {
            m_context->Tell("Invalid Palette Information", MessageIcon::Exclamation);
            return false;
        }
        Palette loaded(*this);
        loaded.ReadRel6(stream);
        *this = std::move(loaded);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

// --- Release 5 ----------------------------------------------------------------------------------

void Palette::ReadRel5(ByteReader& stream) {
    const int storedCount = stream.ReadI16();
    for (int i = 0; i < 3; ++i) {
        (void)ReadFixed<10>(stream);
    }
    m_symbolFontName = stream.ReadString();
    m_symbolFontBold = ReadBool16(stream);
    m_symbolFontItalic = ReadBool16(stream);
    const int count = CheckedCount(storedCount, rel5RecordSize, stream);
    m_entries.clear();
    m_sortedIndexes.clear();
    m_paletteImages.clear();
    for (int i = 1; i <= count; ++i) {
        const Colour rgb = stream.ReadU32();
        const std::string flossID = ReadFixed<10>(stream).Padded();
        (void)ReadFixed<10>(stream);
        (void)ReadFixed<10>(stream);
        const std::string description = ReadFixed<50>(stream).Text();
        const std::string symbol = ReadFixed<1>(stream).Padded();
        const int stitchStrands = stream.ReadI16();
        const int backStitchStrands = stream.ReadI16();
        if (Append({rgb, flossID, description, "DMC", symbol, stitchStrands, backStitchStrands, i,
                    0, 0, "DMC"}) == PaletteAddFailed) {
            throw RunTimeError(ErrOverflow);
        }
    }
    Sort(m_sortOrder);
}

// --- Old form -----------------------------------------------------------------------------------

void Palette::ReadOldRecords(ByteReader& stream) {
    if (stream.Size() / oldRecordSize > static_cast<std::uint64_t>(maxOldRecords)) {
        throw RunTimeError(ErrOverflow);
    }
    int tag = 0;
    while (stream.Remaining() > 0) {
        const Colour rgb = stream.ReadU32();
        const int number = stream.ReadI16();
        const int second = stream.ReadI16();
        const int third = stream.ReadI16();
        const std::string description = ReadFixed<25>(stream).Text();
        const std::string symbol = ReadFixed<2>(stream).Text();
        if (number == 0 && second == 0 && third == 0) {
            continue;
        }
        const PaletteAddStatus status = Append(
            {rgb, std::to_string(number), description, "DMC", symbol, 0, 0, tag, 0, 0, "DMC"});
        if (status == PaletteAddFailed) {
            throw RunTimeError(ErrOverflow);
        }
        tag += status == PaletteAdded ? 1 : 0;
    }
    Sort(m_sortOrder);
}

bool Palette::TakeOldForm(ByteReader& stream) {
    try {
        Palette loaded(*this);
        loaded.ClearPalette();
        loaded.ReadOldRecords(stream);
        loaded.m_changed = false;
        *this = std::move(loaded);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

int Palette::LoadOldPalette(const std::filesystem::path& fileName) {
    auto file = OpenInputFile(fileName);
    if (!file) {
        return 1;
    }
    ByteReader stream(*file);
    return TakeOldForm(stream) ? 0 : 1;
}

void Palette::MapOldPalette() {
    auto catalogue = m_context->MappingCatalogue;
    if (!catalogue) {
        catalogue = std::make_shared<AvailColors>(*m_context);
        if (catalogue->Initialize("dmc.col")) {
            m_context->MappingCatalogue = catalogue;
        }
    }
    for (PaletteEntry& entry : m_entries) {
        entry.MasterID = catalogue->GetMappingMasterID(entry.FlossID.Padded());
    }
}

// --- Any form -----------------------------------------------------------------------------------

bool Palette::LoadFromDisk(ByteReader& stream) {
    const std::string magic = ReadMagic(stream);
    if (magic == rel6Magic) {
        return LoadRel6FromDisk(stream);
    }
    if (magic != rel5Magic) {
        throw RunTimeError(magic.size() < rel6Magic.size() ? ErrPastEnd : ErrInvalidFormat);
    }
    Palette loaded(*this);
    loaded.ReadRel5(stream);
    loaded.m_changed = false;
    loaded.MapOldPalette();
    *this = std::move(loaded);
    return true;
}

bool Palette::LoadFromDisk(const std::filesystem::path& fileName) {
    auto file = OpenInputFile(fileName);
    if (!file) {
        return false;
    }
    ByteReader stream(*file);
    return LoadWholeFile(stream);
}

bool Palette::LoadWholeFile(ByteReader& stream) {
    try {
        const std::string magic = ReadMagic(stream);
        if (magic == rel6Magic || magic == rel5Magic) {
            Palette loaded(*this);
            if (magic == rel6Magic) {
                loaded.ReadRel6(stream);
            } else {
                loaded.ReadRel5(stream);
                loaded.MapOldPalette();
            }
            *this = std::move(loaded);
            return true;
        }
    } catch (const std::exception&) {
        return false;
    }
    if (stream.Size() % oldRecordSize != 0) {
        m_context->Tell("Invalid File Format", MessageIcon::None);
        return false;
    }
    // Such a palette is loaded and yet no success, so that the startup palette falls back to the
    // built-in list; files of this form have always been answered so.
    stream.Seek(1);
    if (TakeOldForm(stream)) {
        MapOldPalette();
    } else {
        m_context->Tell("Invalid File Format", MessageIcon::Exclamation);
    }
    return false;
}

} // namespace zol
