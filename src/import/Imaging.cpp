// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Imaging.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <new>
#include <string_view>
#include <utility>

#include "import/BmpReader.h"
#include "import/PictureOps.h"
#include "import/VipsStages.h"
#include "model/ByteStream.h"
#include "model/Doors.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

using vips::VImage;

constexpr std::string_view NotAPicture = "The file is not a picture of a known format";

ImagingResult Failure(int number, std::string text) {
    return {{}, number, std::move(text)};
}

/// Runs imaging work and turns every way it can fail into a result.
template<typename Work>
ImagingResult Guarded(Work work) {
    // libvips gathers what every decoder grumbled about; only this work's failure is wanted.
    VipsStages::ForgetErrors();
    try {
        return {work(), 0, {}};
    } catch (const vips::VError&) {
        const std::string text = VipsStages::TakeErrorText();
        return Failure(ErrDeviceIO, text.empty() ? RunTimeErrorText(ErrDeviceIO) : text);
    } catch (const RunTimeError& error) {
        return Failure(error.Number(), error.what());
    } catch (const std::bad_alloc&) {
        return Failure(ErrOutOfMemory, RunTimeErrorText(ErrOutOfMemory));
    }
}

using Signature = std::array<std::uint8_t, 16>;

bool HasAt(const Signature& bytes, std::size_t place, std::string_view text) {
    return std::memcmp(bytes.data() + place, text.data(), text.size()) == 0;
}

/// The libvips loader for a file that begins so; empty if it is none of the formats. Asking by
/// the first bytes keeps every other loader that libvips brings away from strangers' files.
std::string LoaderOf(const Signature& bytes) {
    using namespace std::string_view_literals;
    if (HasAt(bytes, 0, "\xFF\xD8\xFF"sv)) {
        return "jpegload_source";
    }
    if (HasAt(bytes, 0, "\x89PNG\r\n\x1A\n"sv)) {
        return "pngload_source";
    }
    if (HasAt(bytes, 0, "GIF8"sv)) {
        return "gifload_source";
    }
    if (HasAt(bytes, 0, "RIFF"sv) && HasAt(bytes, 8, "WEBP"sv)) {
        return "webpload_source";
    }
    if (HasAt(bytes, 0, "II*\0"sv) || HasAt(bytes, 0, "MM\0*"sv) || HasAt(bytes, 0, "II+\0"sv) ||
        HasAt(bytes, 0, "MM\0+"sv)) {
        return "tiffload_source";
    }
    return HasAt(bytes, 4, "ftyp"sv) ? "heifload_source" : "";
}

void CheckSize(std::int64_t width, std::int64_t height) {
    if (width * height > PictureFile::MaxPixels) {
        throw RunTimeError(ErrOutOfMemory, "The picture has " + std::to_string(width) + " by " +
                                               std::to_string(height) + " pixels; at most " +
                                               std::to_string(PictureFile::MaxPixels / 1'000'000) +
                                               " million pixels can be read");
    }
}

} // namespace

/// The file behind a PictureFile: read by libvips, or by our own reader if it is BMP, which
/// libvips leaves to a loader that is not for untrusted files.
struct PictureFile::Decoder {
    std::ifstream stream;
    std::optional<ByteReader> reader;
    std::optional<BmpHeader> bmp;
    vips::VSource source{nullptr};
    VImage image;
    int width = 0;
    int height = 0;
    ImagingResult error;

    template<typename MakeSource>
    void Open(MakeSource makeSource) {
        error = Guarded([this, &makeSource] {
            Signature signature{};
            reader->ReadBytes(signature);
            if (signature[0] == 'B' && signature[1] == 'M') {
                OpenBmp();
            } else {
                OpenWithVips(LoaderOf(signature), makeSource);
            }
            return Picture();
        });
    }

    void OpenBmp() {
        bmp = BmpReader::ReadHeader(*reader);
        width = bmp->Width;
        height = bmp->Height;
        CheckSize(width, height);
    }

    template<typename MakeSource>
    void OpenWithVips(const std::string& loader, MakeSource makeSource) {
        if (loader.empty()) {
            throw RunTimeError(ErrInvalidFormat, std::string(NotAPicture));
        }
        VipsStages::EnsureStarted();
        if (!VipsStages::HasLoader(loader)) {
            throw RunTimeError(ErrInvalidFormat, std::string(NotAPicture));
        }
        source = makeSource();
        VImage::call(loader.c_str(), VImage::option()
                                         ->set("source", source)
                                         ->set("out", &image)
                                         ->set("access", VIPS_ACCESS_SEQUENTIAL)
                                         ->set("fail_on", VIPS_FAIL_ON_TRUNCATED));
        width = image.width();
        height = image.height();
        CheckSize(width, height);
        constexpr int mostBands = 8;
        if (image.bands() > mostBands) {
            throw RunTimeError(ErrInvalidFormat, std::string(NotAPicture));
        }
        if (vips_image_get_orientation_swap(image.get_image()) != 0) {
            std::swap(width, height);
        }
    }

    /// Upright sRGB. Turning needs the rows in another order than they are read in, so only a
    /// picture that has to be turned is held whole.
    [[nodiscard]] VImage Upright(ProgressDoor* progress) const {
        VImage srgb = VipsStages::ToSrgb(image);
        if (vips_image_get_orientation(srgb.get_image()) == 1) {
            return srgb;
        }
        const VipsStages::ProgressWatch watch(srgb, progress);
        return srgb.copy_memory().autorot();
    }

    [[nodiscard]] Picture Load(ProgressDoor* progress) {
        if (bmp) {
            Picture picture = BmpReader::ReadPixels(*reader, *bmp);
            ReduceDepth(picture);
            return picture;
        }
        return VipsStages::ToPicture(VipsStages::ToPixels(Upright(progress)), progress);
    }

    [[nodiscard]] Picture LoadForImport(const ImportRequest& request, ProgressDoor* progress) {
        const PixelRect whole{0, 0, width, height};
        PixelRect part = ClipToPicture(request.Crop.value_or(whole), width, height);
        if (part.Width < 1 || part.Height < 1) {
            part = whole;
        }
        // Rows come in order when a picture is made smaller, and only then.
        const bool smaller = request.Size.Width <= part.Width && request.Size.Height <= part.Height;
        if (!bmp && request.SmoothColors && smaller && !image.has_alpha()) {
            const VImage srgb =
                Upright(progress).crop(part.Left, part.Top, part.Width, part.Height);
            return VipsStages::ToPicture(
                VipsStages::ResampleOpaque(srgb, request.Size.Width, request.Size.Height),
                progress);
        }
        Picture picture = Load(progress);
        if (part != whole) {
            picture = CropPicture(picture, part);
        }
        RemapWhite(picture);
        ImagingResult resized = ResampleBitmap(
            picture, request.Size.Width, request.Size.Height,
            request.SmoothColors ? ResampleFlag::Smooth : ResampleFlag::Nearest, progress);
        if (!resized.IsGood()) {
            throw RunTimeError(resized.Number, resized.Text);
        }
        return std::move(resized.Image);
    }
};

PictureFile::PictureFile(const std::filesystem::path& path)
    : m_decoder(std::make_unique<Decoder>()) {
    Decoder& decoder = *m_decoder;
    std::error_code status;
    if (std::filesystem::is_directory(path, status)) {
        decoder.error = Failure(ErrPathAccess, RunTimeErrorText(ErrPathAccess));
        return;
    }
    errno = 0;
    decoder.stream.open(path, std::ios::binary);
    if (!decoder.stream) {
        const int number =
            errno == ENOENT ? static_cast<int>(ErrFileNotFound) : SafeFile::ErrorNumberOf(errno);
        decoder.error = Failure(number, RunTimeErrorText(number));
        return;
    }
    decoder.reader.emplace(decoder.stream);
    decoder.Open([&path] { return vips::VSource::new_from_file(path.c_str()); });
}

PictureFile::PictureFile(std::span<const std::uint8_t> bytes)
    : m_decoder(std::make_unique<Decoder>()) {
    m_decoder->reader.emplace(bytes);
    m_decoder->Open([bytes] { return vips::VSource::new_from_memory(bytes.data(), bytes.size()); });
}

PictureFile::~PictureFile() = default;

const ImagingResult& PictureFile::GetError() const {
    return m_decoder->error;
}

int PictureFile::ImageWidth() const {
    return m_decoder->width;
}

int PictureFile::ImageHeight() const {
    return m_decoder->height;
}

ImagingResult PictureFile::LoadImage(ProgressDoor* progress) {
    if (!m_decoder->error.IsGood()) {
        return m_decoder->error;
    }
    return Guarded([this, progress] { return m_decoder->Load(progress); });
}

ImagingResult PictureFile::LoadForImport(const ImportRequest& request, ProgressDoor* progress) {
    if (!m_decoder->error.IsGood()) {
        return m_decoder->error;
    }
    return Guarded(
        [this, &request, progress] { return m_decoder->LoadForImport(request, progress); });
}

ImagingResult LoadImage(const std::filesystem::path& path, ProgressDoor* progress) {
    return PictureFile(path).LoadImage(progress);
}

ImagingResult ResampleBitmap(const Picture& image, int width, int height, ResampleFlag flag,
                             ProgressDoor* progress) {
    return Guarded([&image, width, height, flag, progress] {
        const int w = std::max(width, 1);
        const int h = std::max(height, 1);
        if (image.IsEmpty()) {
            return Picture();
        }
        if (flag == ResampleFlag::Nearest) {
            return ResampleNearest(image, w, h);
        }
        if (w == image.ImageWidth() && h == image.ImageHeight()) {
            return image;
        }
        VipsStages::EnsureStarted();
        const auto& pixels = image.Pixels();
        const bool hasErased = std::find(pixels.begin(), pixels.end(), EraseColor) != pixels.end();
        return VipsStages::ToPicture(
            VipsStages::ResamplePixels(VipsStages::FromPicture(image), hasErased, w, h), progress);
    });
}

int SaveImage(const Picture& image, const std::filesystem::path& path, ProgressDoor* progress) {
    VipsBlob* blob = nullptr;
    const ImagingResult result = Guarded([&image, &blob, progress] {
        VipsStages::EnsureStarted();
        const VImage pixels =
            VipsStages::FromPicture(image)
                .extract_band(0, VImage::option()->set("n", 3))
                .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
        const VipsStages::ProgressWatch watch(pixels, progress);
        constexpr int quality = 95;
        blob = pixels.jpegsave_buffer(VImage::option()->set("Q", quality));
        return Picture();
    });
    if (!result.IsGood()) {
        return result.Number;
    }
    std::size_t size = 0;
    const auto* bytes = static_cast<const std::uint8_t*>(vips_blob_get(blob, &size));
    const bool stopped = progress != nullptr && !progress->MayGoOn();
    const int status = stopped ? int{ErrDeviceIO} : SafeFile::Replace(path, {bytes, size});
    vips_area_unref(VIPS_AREA(blob));
    return status;
}

} // namespace zol
