// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

// The stages of the imaging pipeline on libvips images; for the .cpp files of this folder alone.
// Each takes and gives an image that is worked out strip by strip when its end is asked for, so
// a chain of them never holds the whole picture. Failures throw vips::VError.

#include <string>

#include <vips/vips8>

#include "import/Picture.h"

namespace zol {
class ProgressDoor;
}

namespace zol::VipsStages {

/// Starts libvips once; nothing else may be called before.
void EnsureStarted();

/// Makes an operation of libvips known that a module of its own may bring (HEIC). False if this
/// machine's libvips has none.
[[nodiscard]] bool HasLoader(const std::string& loader);

/// Forgets what decoders grumbled about so far. May be called before libvips is started.
void ForgetErrors();

/// The text of the last failure as one line; libvips forgets it.
[[nodiscard]] std::string TakeErrorText();

/// Any decoded picture as sRGB of 8 bits: 3 bands, or 4 with its opacity. An embedded profile is
/// honoured; one that does not fit the picture is passed over.
[[nodiscard]] vips::VImage ToSrgb(const vips::VImage& image);

/// sRGB of 3 or 4 bands to pixels as Picture holds them, brought to 16 bits a pixel of depth.
[[nodiscard]] vips::VImage ToPixels(const vips::VImage& srgb);

/// The pixels of a picture as an image of 4 bands; the picture must outlive it.
[[nodiscard]] vips::VImage FromPicture(const Picture& picture);

/// Smooth resampling in linear light, the last stage before ToPicture.
/// Opaque sRGB of 3 bands, straight from decoding: depth and white are seen to on the way.
[[nodiscard]] vips::VImage ResampleOpaque(const vips::VImage& srgb, int width, int height);
/// Pixels after RemapWhite. Erased ones give nothing of their white to their neighbours; a result
/// is erased when less than half of it was covered. `hasErased` false promises that there are none.
[[nodiscard]] vips::VImage ResamplePixels(const vips::VImage& pixels, bool hasErased, int width,
                                          int height);

/// Tells a door, in hundredths and from any thread, how far an image has been worked out, and
/// stops that with a failure once the door says so. A null door watches nothing.
class ProgressWatch {
public:
    ProgressWatch(const vips::VImage& image, ProgressDoor* door);
    ~ProgressWatch();
    ProgressWatch(const ProgressWatch&) = delete;
    ProgressWatch& operator=(const ProgressWatch&) = delete;

private:
    vips::VImage m_image;
    unsigned long m_handler = 0;
};

/// Works the pipeline out into a picture. The door may be null.
[[nodiscard]] Picture ToPicture(const vips::VImage& pixels, ProgressDoor* progress);

} // namespace zol::VipsStages
