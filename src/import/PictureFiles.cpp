// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureFiles.h"

#include <algorithm>
#include <array>
#include <utility>

#include "import/Imaging.h"
#include "model/CodePage.h"
#include "model/Doors.h"
#include "model/Rounding.h"

namespace zol::PictureFiles {

namespace {

struct Kind {
    std::string_view Words;
    std::string_view Patterns; ///< parted by semicolons
};

constexpr std::array<Kind, 7> Kinds{{{"JPEG pictures", "*.jpg;*.jpeg;*.jpe;*.jfif"},
                                     {"PNG pictures", "*.png"},
                                     {"TIFF pictures", "*.tif;*.tiff"},
                                     {"WebP pictures", "*.webp"},
                                     {"GIF pictures", "*.gif"},
                                     {"HEIC pictures", "*.heic;*.heif"},
                                     {"Bitmaps", "*.bmp;*.dib"}}};

std::string AllPatterns() {
    std::string all;
    for (const Kind& kind : Kinds) {
        all += all.empty() ? "" : ";";
        all += kind.Patterns;
    }
    return all;
}

} // namespace

std::string DialogFilter() {
    std::string filter = "Pictures|" + AllPatterns();
    for (const Kind& kind : Kinds) {
        for (const std::string_view part : {kind.Words, kind.Patterns}) {
            filter += '|';
            filter += part;
        }
    }
    return filter + "|All files|*";
}

bool HasPictureName(const std::filesystem::path& file) {
    const std::string ending = LowerCase(file.extension().string());
    const std::string all = AllPatterns() + ";";
    return ending.size() > 1 && all.find("*" + ending + ";") != std::string::npos;
}

FilePreview Preview(const std::filesystem::path& file, int side, ProgressDoor& progress) {
    PictureFile picture(file);
    if (!picture.GetError().IsGood()) {
        return {0, 0, {}, picture.GetError().Text};
    }
    const int width = picture.ImageWidth();
    const int height = picture.ImageHeight();
    const double scale = std::min(1.0, static_cast<double>(side) / std::max(width, height));
    const auto scaled = [scale](int length) { return std::max(RoundToInt(length * scale), 1); };
    ImagingResult result =
        picture.LoadForImport({std::nullopt, {scaled(width), scaled(height)}, true}, &progress);
    if (!result.IsGood()) {
        return {0, 0, {}, result.Text};
    }
    return {result.Image.ImageWidth(), result.Image.ImageHeight(), std::move(result.Image.Pixels()),
            SizeWords(width, height)};
}

std::string SizeWords(int width, int height) {
    return std::to_string(width) + " × " + std::to_string(height) + " pixels";
}

std::string LoadFailure(const ImagingResult& result) {
    return "Error " + std::to_string(result.Number) + ": " + result.Text;
}

} // namespace zol::PictureFiles
