// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <vips/vips8>

#include "import/Imaging.h"
#include "import/Picture.h"
#include "model/ByteStream.h"
#include "support/TempFolder.h"

// Pictures for the tests, drawn and saved here, so that none has to be shipped.

namespace zol::test {

/// An sRGB image of a colour a pixel.
template<typename ColourAt>
vips::VImage VipsPicture(int width, int height, ColourAt colourAt) {
    static const bool started = vips_init("tests") == 0;
    EXPECT_TRUE(started);
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Colour colour = colourAt(x, y);
            for (unsigned shift = 0; shift < 24; shift += 8) {
                bytes.push_back(static_cast<std::uint8_t>((colour >> shift) & 255U));
            }
        }
    }
    return vips::VImage::new_from_memory(bytes.data(), bytes.size(), width, height, 3,
                                         VIPS_FORMAT_UCHAR)
        .copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
        .copy_memory();
}

/// A BMP file of 24 bits a pixel.
inline std::vector<std::uint8_t> SavedAsBmp(const vips::VImage& image) {
    const vips::VImage rows = image.copy_memory();
    const auto* pixels = static_cast<const std::uint8_t*>(rows.data());
    ByteWriter writer;
    writer.WriteRaw("BM");
    for (const std::uint32_t field : {0U, 0U, 54U, 40U}) {
        writer.WriteU32(field);
    }
    writer.WriteI32(image.width());
    writer.WriteI32(-image.height());
    writer.WriteI16(1);
    writer.WriteI16(24);
    for (int i = 0; i < 6; ++i) {
        writer.WriteU32(0);
    }
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x, pixels += 3) {
            writer.WriteU8(pixels[2]);
            writer.WriteU8(pixels[1]);
            writer.WriteU8(pixels[0]);
        }
        for (int i = image.width() * 3; i % 4 != 0; ++i) {
            writer.WriteU8(0);
        }
    }
    return writer.Take();
}

/// The bytes of a file in the format that the suffix names, with its options.
inline std::vector<std::uint8_t> SavedAs(const vips::VImage& image, const std::string& suffix) {
    if (suffix == ".bmp") {
        return SavedAsBmp(image);
    }
    void* buffer = nullptr;
    std::size_t size = 0;
    image.write_to_buffer(suffix.c_str(), &buffer, &size);
    const auto* bytes = static_cast<const std::uint8_t*>(buffer);
    std::vector<std::uint8_t> saved(bytes, bytes + size);
    g_free(buffer);
    return saved;
}

/// The image as a camera of that orientation stores it, with the mark that makes it upright.
inline std::vector<std::uint8_t> SavedLying(const vips::VImage& upright, int orientation,
                                            const std::string& suffix) {
    // What undoes each orientation's turn: mirrored about a diagonal (5, 7) is its own undoing.
    vips::VImage lying = upright;
    switch (orientation) {
    case 2:
        lying = upright.fliphor();
        break;
    case 3:
        lying = upright.rot180();
        break;
    case 4:
        lying = upright.flipver();
        break;
    case 5:
        lying = upright.rot90().fliphor();
        break;
    case 6:
        lying = upright.rot270();
        break;
    case 7:
        lying = upright.rot270().fliphor();
        break;
    case 8:
        lying = upright.rot90();
        break;
    default:
        break;
    }
    lying = lying.copy_memory();
    lying.set(VIPS_META_ORIENTATION, orientation);
    return SavedAs(lying, suffix);
}

} // namespace zol::test
