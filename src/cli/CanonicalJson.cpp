// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/CanonicalJson.h"

#include "model/CodePage.h"

namespace zol::CanonicalJson {

namespace {

template<std::size_t N>
void FieldMember(JsonWriter& json, const char* name, const FixedText<N>& field) {
    json.TextMember(name, TrimmedRight(field.Padded()));
}

void WriteEntry(JsonWriter& json, const PaletteEntry& entry) {
    json.BeginObject();
    json.Member("BackStitchStrands", entry.BackStitchStrands);
    FieldMember(json, "BlendDescription", entry.BlendDescription);
    FieldMember(json, "BlendFlossID", entry.BlendFlossID);
    json.Member("BlendManufacturerIndex", entry.BlendManufacturerIndex);
    json.Member("BlendMasterID", entry.BlendMasterID);
    json.Member("BlendRGB", entry.BlendRGB);
    json.Member("DefaultBSType", entry.DefaultBSType);
    FieldMember(json, "Description", entry.Description);
    FieldMember(json, "DisplayDescription", entry.DisplayDescription);
    json.Member("EntryTag", entry.EntryTag);
    FieldMember(json, "FlossID", entry.FlossID);
    json.Member("IsBlended", entry.IsBlended);
    json.Member("ManufacturerIndex", entry.ManufacturerIndex);
    json.Member("MasterID", entry.MasterID);
    json.Member("NonRepColor", entry.NonRepColor);
    FieldMember(json, "NonRepDesc", entry.NonRepDesc);
    json.Member("RGB", entry.RGB);
    json.Member("StitchStrands", entry.StitchStrands);
    json.Member("Symbol", entry.Symbol);
    json.EndObject();
}

void WriteManufacturers(JsonWriter& json, const Palette& palette) {
    json.Key("manufacturers");
    json.BeginArray();
    for (int row = 1; row <= palette.GetManufacturerCount(); ++row) {
        json.BeginArray();
        json.Text(TrimmedRight(palette.GetManufacturer(row).LongName.Padded()));
        json.Text(TrimmedRight(palette.GetManufacturer(row).ShortName.Padded()));
        json.EndArray();
    }
    json.EndArray();
}

void WriteEntries(JsonWriter& json, const Palette& palette) {
    json.Key("palette");
    json.BeginArray();
    for (int index = 1; index <= palette.GetEntriesCount(); ++index) {
        WriteEntry(json, palette.GetEntry(index));
    }
    json.EndArray();
}

void WriteOrderAndFont(JsonWriter& json, const Palette& palette) {
    json.Key("sorted");
    json.BeginArray();
    for (int position = 1; position <= palette.GetEntriesCount(); ++position) {
        json.Number(palette.GetSortIndex(position));
    }
    json.EndArray();
    json.Key("symbolFont");
    json.BeginArray();
    json.Text(palette.GetFontName());
    json.Boolean(palette.GetFontBold());
    json.Boolean(palette.GetFontItalic());
    json.EndArray();
}

void WriteCells(JsonWriter& json, const Pattern& pattern) {
    json.Key("cells");
    json.BeginArray();
    for (int x = 1; x <= pattern.GetPatternWidth(); ++x) {
        for (int y = 1; y <= pattern.GetPatternHeight(); ++y) {
            const StitchCell& cell = pattern.Cell(x, y);
            if (cell == StitchCell{}) {
                continue;
            }
            json.BeginArray();
            for (const int value :
                 {x, y, int{cell.StitchType}, int{cell.PaletteIndex}, int{cell.CellFlags}}) {
                json.Number(value);
            }
            json.EndArray();
        }
    }
    json.EndArray();
}

void WriteCounts(JsonWriter& json, Pattern& pattern) {
    enum Which { Stitches = 0, Lines = 1, LineInches = 3, StitchInches = 4 };
    pattern.CountStitches();
    const auto write = [&json, &pattern](const char* name, Which which) {
        json.Key(name);
        json.BeginArray();
        for (int index = 1; index <= pattern.GetPalette().GetEntriesCount(); ++index) {
            const double value = pattern.GetColorCount(which, index);
            if (which == LineInches || which == StitchInches) {
                json.Decimal(value);
            } else {
                json.Number(static_cast<std::int64_t>(value));
            }
        }
        json.EndArray();
    };
    json.Key("counts");
    json.BeginObject();
    write("lineLengths", LineInches);
    write("lines", Lines);
    write("stitchLengths", StitchInches);
    write("stitches", Stitches);
    json.EndObject();
}

template<typename Values>
void WriteSlots(JsonWriter& json, const Values& values) {
    json.BeginArray();
    for (const auto value : values) {
        json.Number(value);
    }
    json.EndArray();
}

void WriteDups(JsonWriter& json, const Pattern& pattern) {
    json.Key("dups");
    json.BeginArray();
    pattern.DupStitches().ForEach([&json](const DupStitch& dup) {
        json.BeginArray();
        json.Number(dup.X);
        json.Number(dup.Y);
        WriteSlots(json, dup.PaletteIndexes());
        WriteSlots(json, dup.StitchTypes());
        json.EndArray();
    });
    json.EndArray();
}

void WriteIDs(JsonWriter& json, const Pattern& pattern) {
    json.Key("ids");
    json.BeginArray();
    for (int index = 1; index <= pattern.GetPatternIDCount(); ++index) {
        json.BeginArray();
        json.Number(pattern.GetPatternID(index));
        json.Text(pattern.GetPatternSource(index));
        json.EndArray();
    }
    json.EndArray();
}

void WriteKnots(JsonWriter& json, const Pattern& pattern) {
    json.Key("knots");
    json.BeginArray();
    pattern.FrenchKnots().ForEach([&json](const FrenchKnot& knot) {
        WriteSlots(json, std::initializer_list<int>{knot.X, knot.Y, knot.Orientation,
                                                    knot.GetPaletteIndex()});
    });
    json.EndArray();
}

void WriteLines(JsonWriter& json, const Pattern& pattern) {
    json.Key("lines");
    json.BeginArray();
    for (const BackStitchLine& line : pattern.Lines()) {
        WriteSlots(json, std::initializer_list<int>{line.StartX, line.StartY, line.StartPos,
                                                    line.EndX, line.EndY, line.EndPos,
                                                    line.PaletteIndex, line.LineStyle});
    }
    json.EndArray();
}

} // namespace

void WritePattern(std::ostream& out, Pattern& pattern) {
    JsonWriter json(out);
    json.BeginObject();
    json.Key("allowFlossMapping");
    json.Boolean(pattern.AllowFlossMapping());
    json.TextMember("author", pattern.Author);
    WriteCells(json, pattern);
    json.Member("clothCountX", pattern.GetPatternClothCountX());
    json.Member("clothCountY", pattern.GetPatternClothCountY());
    json.TextMember("copyright", pattern.Copyright);
    WriteCounts(json, pattern);
    WriteDups(json, pattern);
    json.TextMember("fabric", pattern.Fabric);
    json.Member("height", pattern.GetPatternHeight());
    WriteIDs(json, pattern);
    json.TextMember("instructions", pattern.Instructions);
    WriteKnots(json, pattern);
    WriteLines(json, pattern);
    WriteManufacturers(json, pattern.GetPalette());
    WriteEntries(json, pattern.GetPalette());
    WriteOrderAndFont(json, pattern.GetPalette());
    json.TextMember("title", pattern.Title);
    json.Member("width", pattern.GetPatternWidth());
    json.EndObject();
    out << '\n';
}

void WritePalette(std::ostream& out, const Palette& palette) {
    JsonWriter json(out);
    json.BeginObject();
    WriteManufacturers(json, palette);
    WriteEntries(json, palette);
    WriteOrderAndFont(json, palette);
    json.EndObject();
    out << '\n';
}

void WriteCatalogue(std::ostream& out, const AvailColors& catalogue) {
    JsonWriter json(out);
    const CatalogueHeader& header = catalogue.GetHeader();
    json.BeginObject();
    json.Member("BaseID", header.BaseID);
    json.Key("Date");
    json.Decimal(header.Date);
    json.Member("ManuCount", header.ManuCount);
    FieldMember(json, "Name", header.Name);
    FieldMember(json, "ShortName", header.ShortName);
    json.Key("flosses");
    json.BeginArray();
    for (int index = 1; index <= catalogue.GetFlossCount(); ++index) {
        const CatalogueRow& row = catalogue.GetRow(index);
        json.BeginObject();
        json.Member("Blue", row.Blue);
        json.Member("Category", row.Category);
        FieldMember(json, "Description", row.Description);
        json.Member("Extra1", row.Extra1);
        json.Member("Extra2", row.Extra2);
        json.Member("Extra3", row.Extra3);
        FieldMember(json, "FlossID", row.FlossID);
        json.Member("Green", row.Green);
        json.Member("MasterID", row.MasterID);
        json.Member("Red", row.Red);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    out << '\n';
}

} // namespace zol::CanonicalJson
