// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/PaletteEntry.h"

namespace zol {

PaletteEntry PaletteEntry::Read(ByteReader& stream) {
    PaletteEntry entry;
    stream.ReadBytes(entry.Description.Bytes());
    entry.RGB = stream.ReadU32();
    stream.ReadBytes(entry.FlossID.Bytes());
    entry.ManufacturerIndex = stream.ReadI16();
    entry.MasterID = stream.ReadI32();
    stream.ReadBytes(entry.BlendDescription.Bytes());
    entry.BlendRGB = stream.ReadU32();
    stream.ReadBytes(entry.BlendFlossID.Bytes());
    entry.BlendManufacturerIndex = stream.ReadI16();
    entry.BlendMasterID = stream.ReadI32();
    entry.IsBlended = stream.ReadI16();
    entry.Symbol = stream.ReadU8();
    entry.StitchStrands = stream.ReadI16();
    entry.BackStitchStrands = stream.ReadI16();
    entry.EntryTag = stream.ReadI16();
    stream.ReadBytes(entry.DisplayDescription.Bytes());
    entry.DefaultBSType = stream.ReadU8();
    entry.NonRepColor = stream.ReadU32();
    stream.ReadBytes(entry.NonRepDesc.Bytes());
    return entry;
}

void PaletteEntry::Write(ByteWriter& stream) const {
    stream.WriteBytes(Description.Bytes());
    stream.WriteU32(RGB);
    stream.WriteBytes(FlossID.Bytes());
    stream.WriteI16(ManufacturerIndex);
    stream.WriteI32(MasterID);
    stream.WriteBytes(BlendDescription.Bytes());
    stream.WriteU32(BlendRGB);
    stream.WriteBytes(BlendFlossID.Bytes());
    stream.WriteI16(BlendManufacturerIndex);
    stream.WriteI32(BlendMasterID);
    stream.WriteI16(IsBlended);
    stream.WriteU8(Symbol);
    stream.WriteI16(StitchStrands);
    stream.WriteI16(BackStitchStrands);
    stream.WriteI16(EntryTag);
    stream.WriteBytes(DisplayDescription.Bytes());
    stream.WriteU8(DefaultBSType);
    stream.WriteU32(NonRepColor);
    stream.WriteBytes(NonRepDesc.Bytes());
}

PaletteManufacturer PaletteManufacturer::Read(ByteReader& stream) {
    PaletteManufacturer row;
    stream.ReadBytes(row.LongName.Bytes());
    stream.ReadBytes(row.ShortName.Bytes());
    return row;
}

void PaletteManufacturer::Write(ByteWriter& stream) const {
    stream.WriteBytes(LongName.Bytes());
    stream.WriteBytes(ShortName.Bytes());
}

} // namespace zol
