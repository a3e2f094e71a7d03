// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureOps.h"

#include <algorithm>

namespace zol {

void ReduceDepth(Picture& image) {
    for (Colour& pixel : image.Pixels()) {
        // A channel's lower three bits are dropped and its upper three repeated in their place.
        const Colour upper = pixel & 0x00F8F8F8U;
        pixel = (pixel & 0xFF000000U) | upper | ((upper >> 5U) & 0x00070707U);
    }
}

PixelRect ClipToPicture(const PixelRect& rect, int width, int height) {
    const auto clip = [](std::int64_t from, std::int64_t size, int limit, int& start, int& length) {
        const std::int64_t end = std::clamp<std::int64_t>(from + size, 0, limit);
        const std::int64_t begin = std::clamp<std::int64_t>(from, 0, limit);
        start = static_cast<int>(begin);
        length = static_cast<int>(std::max<std::int64_t>(end - begin, 0));
    };
    PixelRect inside;
    clip(rect.Left, rect.Width, width, inside.Left, inside.Width);
    clip(rect.Top, rect.Height, height, inside.Top, inside.Height);
    return inside;
}

Picture CropPicture(const Picture& image, const PixelRect& rect) {
    const PixelRect part = ClipToPicture(rect, image.ImageWidth(), image.ImageHeight());
    if (part.Width < 1 || part.Height < 1) {
        return image;
    }
    Picture cropped(part.Width, part.Height);
    for (int y = 0; y < part.Height; ++y) {
        std::copy_n(image.Row(part.Top + y) + part.Left, part.Width, cropped.Row(y));
    }
    return cropped;
}

void RemapWhite(Picture& image) {
    for (Colour& pixel : image.Pixels()) {
        if (pixel == EraseColor) {
            pixel = WhiteStandIn;
        } else if (pixel == TransparentPixel) {
            pixel = EraseColor;
        }
    }
}

void MarkErased(Picture& image) {
    std::replace(image.Pixels().begin(), image.Pixels().end(), EraseColor, TransparentPixel);
}

Picture ResampleNearest(const Picture& image, int width, int height) {
    if (image.IsEmpty()) {
        return {};
    }
    Picture resized(std::max(width, 1), std::max(height, 1));
    const auto sourceOf = [](int at, int from, int to) {
        return static_cast<int>((2 * static_cast<std::int64_t>(at) + 1) * from /
                                (2 * static_cast<std::int64_t>(to)));
    };
    std::vector<int> columns(static_cast<std::size_t>(resized.ImageWidth()));
    for (int x = 0; x < resized.ImageWidth(); ++x) {
        columns[static_cast<std::size_t>(x)] =
            sourceOf(x, image.ImageWidth(), resized.ImageWidth());
    }
    for (int y = 0; y < resized.ImageHeight(); ++y) {
        const Colour* from = image.Row(sourceOf(y, image.ImageHeight(), resized.ImageHeight()));
        std::transform(columns.begin(), columns.end(), resized.Row(y),
                       [from](int column) { return from[column]; });
    }
    return resized;
}

} // namespace zol
