// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureFiles.h"

#include <array>

#include "import/Imaging.h"
#include "model/CodePage.h"

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

std::string LoadFailure(const ImagingResult& result) {
    return "Error " + std::to_string(result.Number) + ": " + result.Text;
}

} // namespace zol::PictureFiles
