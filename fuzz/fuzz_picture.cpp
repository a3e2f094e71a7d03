// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "import/BmpReader.h"
#include "import/Imaging.h"
#include "model/RunTimeError.h"

using namespace zol;

namespace {

/// A run length coded file of a few bytes may name many pixels: those are allowed, but slow.
constexpr std::int64_t MostPixels = 1 << 16;

bool IsSmall(int width, int height) {
    return std::int64_t{width} * height <= MostPixels;
}

/// Our own reader, with the file's two first letters given to it.
void ReadBmp(std::vector<std::uint8_t> bytes) {
    if (bytes.size() < 2) {
        return;
    }
    bytes[0] = 'B';
    bytes[1] = 'M';
    try {
        ByteReader reader(bytes);
        const BmpHeader header = BmpReader::ReadHeader(reader);
        if (!IsSmall(header.Width, header.Height)) {
            return;
        }
        const Picture picture = BmpReader::ReadPixels(reader, header);
        if (picture.ImageWidth() != header.Width || picture.ImageHeight() != header.Height) {
            std::abort();
        }
    } catch (const RunTimeError&) {
        return; // how damage is told
    }
}

/// Whatever the file is, there is a picture of the size asked for or a line of text.
void Import(const std::vector<std::uint8_t>& bytes) {
    PictureFile file(bytes);
    if (file.GetError().IsGood() && !IsSmall(file.ImageWidth(), file.ImageHeight())) {
        return;
    }
    const ImagingResult result = file.LoadForImport({PixelRect{1, 1, 9, 9}, {5, 4}, true});
    if (result.IsGood() ? result.Image.Pixels().size() != 20 : result.Text.empty()) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::uint8_t> bytes(data, data + size);
    ReadBmp(bytes);
    Import(bytes);
    return 0;
}
