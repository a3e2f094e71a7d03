// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "import/ImportSize.h"
#include "import/Picture.h"

namespace zol {

class ProgressDoor;

/// A picture, or why there is none: a run-time error number and one line of text.
struct ImagingResult {
    Picture Image;
    int Number = 0;
    std::string Text;

    [[nodiscard]] bool IsGood() const { return Number == 0; }
};

enum class ResampleFlag { Nearest = 0, Smooth = 2 };

/// What is wanted of a picture file on its way to the matching.
struct ImportRequest {
    std::optional<PixelRect> Crop; ///< in pixels of the upright picture
    StitchSize Size;               ///< to resize to
    bool SmoothColors = true;
};

/// A picture file that has been opened but not decoded: JPEG, PNG, TIFF, WebP, GIF (its first
/// picture), HEIC and BMP, told by their first bytes. Sizes are those of the upright picture.
/// Whatever the file says, more than MaxPixels are refused before anything is decoded.
class PictureFile {
public:
    static constexpr std::int64_t MaxPixels = 200'000'000;

    /// Opens a file; GetError tells whether it can be read.
    explicit PictureFile(const std::filesystem::path& path);
    /// Opens a file's bytes, which the caller keeps alive.
    explicit PictureFile(std::span<const std::uint8_t> bytes);
    ~PictureFile();
    PictureFile(const PictureFile&) = delete;
    PictureFile& operator=(const PictureFile&) = delete;

    /// No picture, with number 0 if the file was opened.
    [[nodiscard]] const ImagingResult& GetError() const;
    [[nodiscard]] int ImageWidth() const;
    [[nodiscard]] int ImageHeight() const;

    // A file is decoded once: one of the two, one time.

    /// The whole picture, brought to 16 bits a pixel. Fully transparent pixels are
    /// TransparentPixel; partly transparent ones show over white.
    /// The door may be null; when it stops the work there is no picture, but a failure.
    [[nodiscard]] ImagingResult LoadImage(ProgressDoor* progress = nullptr);
    /// LoadImage, CropPicture, RemapWhite and ResampleBitmap in one: the same pixels, but a large
    /// picture that is made smaller is never held whole.
    [[nodiscard]] ImagingResult LoadForImport(const ImportRequest& request,
                                              ProgressDoor* progress = nullptr);

private:
    struct Decoder;
    std::unique_ptr<Decoder> m_decoder;
};

/// Decodes a whole file.
[[nodiscard]] ImagingResult LoadImage(const std::filesystem::path& path,
                                      ProgressDoor* progress = nullptr);

/// Resizes a picture that RemapWhite has passed. Smooth mixes light, never makes a new pure
/// white, and lets erased pixels stay out of the mixture; nearest takes source pixels as they
/// are. A size below 1 becomes 1. Stopped by the door, it is a failure.
[[nodiscard]] ImagingResult ResampleBitmap(const Picture& image, int width, int height,
                                           ResampleFlag flag, ProgressDoor* progress = nullptr);

/// Saves as JPEG at 24 bits, whole or not at all. 0 or a run-time error number, also when the door
/// stopped it. What stops it after the last question finds the file saved.
[[nodiscard]] int SaveImage(const Picture& image, const std::filesystem::path& path,
                            ProgressDoor* progress = nullptr);

} // namespace zol
