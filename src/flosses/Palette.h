// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "flosses/PaletteEntry.h"
#include "model/ByteStream.h"
#include "model/ProgramContext.h"
#include "model/ZOLTypes.h"

namespace zol {

/// Orders of the display list, the one-based positions of the list in which they are chosen.
enum PaletteSortOrder : std::int16_t {
    SortOrderAdded = 1,
    SortManufacturerID = 2,
    SortDescription = 3,
    SortColor = 4,
};

/// Answers of AddPaletteEntry.
enum PaletteAddStatus { PaletteAdded = 0, PaletteAddCancelled = 1, PaletteAddFailed = 10 };

/// The flosses of one pattern, numbered from 1: an entry's number is what stitches hold, so the
/// display order is kept apart and sorting never renumbers anything. Also a free-standing saved
/// palette and a set of candidates for the import. Text goes in and out as UTF-8.
///
/// Getters answer 0 or an empty text outside 1 to GetEntriesCount; setters do nothing there.
class Palette {
public:
    static constexpr int KeepStrands = 65535;       ///< ChangePaletteEntry leaves the strands alone
    static constexpr int NoExclusion = -1;          ///< GetClosest excludes nothing
    static constexpr int MostFlosses = NoFloss - 1; ///< a stitch names its floss by a byte
    static constexpr int SymbolCount = 200;         ///< symbols that can be handed out

    /// Starts with the startup palette, unchanged, in the running program's symbol font. The
    /// context must outlive the palette.
    explicit Palette(ProgramContext& context);
    /// A palette of no entries, for readers that fill it.
    [[nodiscard]] static Palette Empty(ProgramContext& context);

    // --- Entries -------------------------------------------------------------------------
    /// An empty `symbol` asks the symbol door before anything grows; strands of 0 mean the
    /// program's defaults; an empty `manufacturerLong` takes the short name.
    PaletteAddStatus AddPaletteEntry(Colour rgb, std::string_view flossID,
                                     std::string_view description,
                                     std::string_view manufacturerShort, std::string_view symbol,
                                     int stitchStrands, int backStitchStrands, int entryTag,
                                     std::int32_t masterID, int defaultBSType,
                                     std::string_view manufacturerLong);
    /// Leaves the display description, the symbol and the blend as they are. False outside the
    /// range.
    bool ChangePaletteEntry(int index, Colour rgb, std::string_view flossID,
                            std::string_view description, std::string_view manufacturer,
                            std::int32_t masterID, int stitchStrands, int backStitchStrands);
    void RemovePaletteEntry(int index);
    /// Removes every entry; the manufacturers stay.
    void ClearPalette();
    void BlendFloss(int index, Colour secondRGB, std::string_view secondFlossID,
                    std::string_view secondManufacturer, std::string_view secondDescription,
                    std::int32_t secondMasterID);
    /// Leaves the second thread's description and master identity behind.
    void RemoveBlend(int index);
    void BuildStartupPalette();

    [[nodiscard]] int GetEntriesCount() const;
    /// The whole record of an entry; `index` must be in range.
    [[nodiscard]] const PaletteEntry& GetEntry(int index) const;

    // --- Reading an entry ----------------------------------------------------------------
    /// The colour shown: a blend's channels are the mean of its two threads.
    [[nodiscard]] Colour GetFlossRGB(int index) const;
    [[nodiscard]] std::int32_t GetFlossMasterID(int index) const;
    [[nodiscard]] int GetDefaultBSType(int index) const;
    /// Code of the symbol in the symbol font, 0 for none.
    [[nodiscard]] int GetFlossSymbol(int index) const;
    [[nodiscard]] int GetFlossStitchStrands(int index) const;
    [[nodiscard]] int GetFlossBackStitchStrands(int index) const;
    [[nodiscard]] bool IsBlended(int index) const;
    [[nodiscard]] std::string GetFlossLongDesc(int index) const;
    [[nodiscard]] std::string GetFlossShortDesc(int index) const;
    [[nodiscard]] std::string GetManufID(int index) const;
    /// "0" outside the range.
    [[nodiscard]] std::string GetBlendManufID(int index) const;
    [[nodiscard]] std::string GetBlendManufShortDesc(int index) const;
    [[nodiscard]] std::string GetManufShortDesc(int index) const;
    [[nodiscard]] std::string GetManufLongDesc(int index) const;
    [[nodiscard]] Colour GetNonRepColor(int index) const;
    [[nodiscard]] std::string GetNonRepDesc(int index) const;

    // --- Writing an entry ----------------------------------------------------------------
    // Symbol, line style, strands, number and description mark the palette changed; colour,
    // master identity and the non-representative colour do not.
    void SetFlossRGB(int index, Colour rgb);
    void SetFlossMasterID(int index, std::int32_t masterID);
    void SetFlossSymbol(int index, std::string_view symbol); ///< an empty text is ignored
    void SetDefaultBSType(int index, int style);
    void SetFlossStrands(int index, int stitch, int back);
    void SetFlossManuIDs(int index, std::string_view flossID);
    void SetFlossDesc(int index, std::string_view text); ///< the display description alone
    void SetNonRepColor(int index, Colour colour);
    void SetNonRepDesc(int index, std::string_view text);

    // --- Symbols -------------------------------------------------------------------------
    [[nodiscard]] bool IsSymbolUsed(std::string_view symbol) const;
    /// One character; empty when all are taken.
    [[nodiscard]] std::string GetNextAvailableSymbol() const;
    /// Code of the n-th symbol handed out, n from 1 to SymbolCount.
    [[nodiscard]] static int SymbolCode(int n);
    /// Code of a text's first character in the symbol font; 0 for an empty text.
    [[nodiscard]] static std::uint8_t SymbolCodeOf(std::string_view symbol);
    void SetSymbolFont(std::string_view name, bool bold, bool italic);
    [[nodiscard]] int GetFontCharSet() const { return m_symbolFontCharSet; }
    [[nodiscard]] const std::string& GetFontName() const { return m_symbolFontName; }
    [[nodiscard]] bool GetFontBold() const { return m_symbolFontBold; }
    [[nodiscard]] bool GetFontItalic() const { return m_symbolFontItalic; }

    // --- Palettes together ---------------------------------------------------------------
    /// Primary threads only: blends and display descriptions do not travel.
    void CreateCopy(Palette& target) const;
    /// Master identity, number and short manufacturer equal; without a master identity the
    /// colours too.
    [[nodiscard]] bool FlossesMatch(int index, const Palette& other, int otherIndex) const;
    /// The first entry of `other` that FlossesMatch finds for the entry; 0 for none.
    [[nodiscard]] int FindMatch(int index, const Palette& other) const;
    /// Whether the primary threads are one and the same: colour, master identity, number and short
    /// manufacturer.
    [[nodiscard]] bool IsSameThread(int index, const Palette& other, int otherIndex) const;
    /// The number of the entry in `target`, added there if nothing matches; 1 if adding failed.
    /// A symbol that the target uses is replaced by this palette's next free one.
    int MergePaletteEntrytoTarget(Palette& target, int index) const;
    /// Nearest entry by the distance of HSLFuncs on primary threads, the lowest number winning a
    /// tie; 0 if none is eligible.
    [[nodiscard]] int GetClosest(Colour rgb, int excludedIndex) const;

    // --- Display order -------------------------------------------------------------------
    void Sort(int order);
    void SwapSortIndexes(int a, int b);
    [[nodiscard]] int GetSortOrder() const { return m_sortOrder; }
    /// Entry number at a position from 1; 0 outside.
    [[nodiscard]] int GetSortIndex(int position) const;
    [[nodiscard]] int GetSortedPosition(int entry) const;

    // --- State ---------------------------------------------------------------------------
    void SetChanged(bool changed) { m_changed = changed; }
    [[nodiscard]] bool IsChanged() const { return m_changed; }
    [[nodiscard]] int GetSelectedEntry() const { return m_selectedEntry; }
    void SetSelectedEntry(int entry) { m_selectedEntry = static_cast<std::int16_t>(entry); }
    [[nodiscard]] int GetManufacturerCount() const;
    /// Row of the manufacturer table, from 1.
    [[nodiscard]] const PaletteManufacturer& GetManufacturer(int row) const;
    [[nodiscard]] ProgramContext& Context() const { return *m_context; }

    // --- Stitch images -------------------------------------------------------------------
    /// Slot of the entry's stitch image in the painters' image store, -1 when not built.
    [[nodiscard]] int GetPaletteImage(int index) const;
    void SetPaletteImage(int index, int slot);

    // --- Files ---------------------------------------------------------------------------
    /// A file of its own; `Changed` is left as it was. 0 or a run-time error number.
    [[nodiscard]] int SaveToDisk(const std::filesystem::path& fileName) const;
    /// The palette block of a pattern stream; clears `Changed` first.
    void SaveToDisk(ByteWriter& stream);
    /// Any known form from a file; see the failure texts in PaletteFile.cpp. An old-form file is
    /// loaded and still answered with false. Sort is the caller's to run.
    bool LoadFromDisk(const std::filesystem::path& fileName);
    /// The same from the bytes of a whole file.
    bool LoadWholeFile(ByteReader& stream);
    /// The palette block of a pattern stream, either of the two forms with a magic. Throws
    /// RunTimeError on damage.
    bool LoadFromDisk(ByteReader& stream);
    bool LoadRel6FromDisk(const std::filesystem::path& fileName);
    /// The block behind the magic.
    bool LoadRel6FromDisk(ByteReader& stream);
    /// 0 on success, 1 on failure.
    int LoadOldPalette(const std::filesystem::path& fileName);
    /// Fills in the master identity of every entry from "dmc.col".
    void MapOldPalette();

private:
    struct WithoutEntries {};
    /// The arguments of AddPaletteEntry.
    struct NewFloss {
        Colour RGB;
        std::string_view FlossID;
        std::string_view Description;
        std::string_view ManufacturerShort;
        std::string_view Symbol;
        int StitchStrands;
        int BackStitchStrands;
        int EntryTag;
        std::int32_t MasterID;
        int DefaultBSType;
        std::string_view ManufacturerLong;
    };

    Palette(ProgramContext& context, WithoutEntries);

    [[nodiscard]] bool InRange(int index) const;
    [[nodiscard]] bool HasSameName(int index, const Palette& other, int otherIndex) const;
    [[nodiscard]] PaletteEntry& At(int index);
    [[nodiscard]] const PaletteEntry& At(int index) const;
    /// AddPaletteEntry without the sort, which whoever adds many runs once at the end.
    PaletteAddStatus Append(const NewFloss& floss);
    /// Appends the primary thread of an entry to `target`.
    PaletteAddStatus AppendTo(Palette& target, int index, std::string_view symbol) const;
    /// Nothing if the user was asked and cancelled.
    [[nodiscard]] std::optional<std::uint8_t> SymbolOfNewEntry(std::string_view symbol) const;
    std::int16_t FindManufacturer(std::string_view shortName, std::string_view longName);
    [[nodiscard]] std::vector<int> SortedPlaces() const;
    void TakeStartupPalette(const Palette& startup);
    void AddBuiltInEntries();
    void WriteBlock(ByteWriter& stream) const;
    void ReadRel6(ByteReader& stream);
    void ReadRel5(ByteReader& stream);
    void ReadOldRecords(ByteReader& stream);
    bool TakeOldForm(ByteReader& stream);

    ProgramContext* m_context;
    std::vector<PaletteEntry> m_entries;
    std::vector<PaletteManufacturer> m_manufacturers;
    std::vector<std::int16_t> m_sortedIndexes;
    std::vector<int> m_paletteImages;
    std::int16_t m_sortOrder = SortOrderAdded;
    std::string m_symbolFontName;
    bool m_symbolFontBold = false;
    bool m_symbolFontItalic = false;
    int m_symbolFontCharSet = 0;
    bool m_changed = false;
    std::int16_t m_selectedEntry = -1;
};

/// Reads "Default.fls" of the application folder, in any case of its letters, into
/// `context.StartupPalette`; without a palette there the built-in list serves. For whoever starts
/// the program, once.
void LoadStartupPalette(ProgramContext& context);

} // namespace zol
