// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <vector>

#include "flosses/HSLFuncs.h"
#include "import/ImportCandidates.h"
#include "import/Picture.h"
#include "import/Random32.h"

namespace zol::test {

/// The matching and reduction as plain loops over pixels and pairs, with nothing remembered: what
/// the fast ones have to agree with.
class PlainRecolor {
public:
    PlainRecolor(const std::vector<Colour>& locked, const std::vector<Colour>& others)
        : lockedColors(static_cast<int>(locked.size())) {
        colorRGB.insert(colorRGB.end(), locked.begin(), locked.end());
        colorRGB.insert(colorRGB.end(), others.begin(), others.end());
        numColors = static_cast<int>(colorRGB.size()) - 1;
        colorUsed.assign(colorRGB.size(), 0);
        colorPixels.assign(colorRGB.size(), 0);
        for (int i = 1; i <= lockedColors; ++i) {
            Used(i) = -1;
        }
    }

    Picture Recolor(const Picture& image, int maxColors) {
        ForEachPixel(image, [this](int, int, Colour colour) {
            if (colour != EraseColor) {
                const int i = Closest(colour == WhiteStandIn ? EraseColor : colour, false);
                Used(i) = -1;
                ++Pixels(i);
            }
        });
        int left = 0;
        for (int i = 1; i <= numColors; ++i) {
            left += Used(i) != 0 ? 1 : 0;
        }
        for (; left > maxColors; --left) {
            Reduce();
        }
        Picture preview(image.ImageWidth(), image.ImageHeight());
        ForEachPixel(image, [this, &preview](int x, int y, Colour colour) {
            if (colour != EraseColor) {
                const int i = Closest(colour == WhiteStandIn ? EraseColor : colour, true);
                const Colour floss = colorRGB[static_cast<std::size_t>(i)];
                preview.SetImagePixel(x, y, floss == EraseColor ? WhiteStandIn : floss);
            }
        });
        return preview;
    }

    void Reduce() {
        double total = 0;
        int least = 999;
        int leastIndex = -1;
        for (int i = lockedColors + 1; i <= numColors; ++i) {
            if (Used(i) == 0) {
                continue;
            }
            total += Pixels(i);
            if (Pixels(i) < least) {
                least = Pixels(i);
                leastIndex = i;
            }
        }
        if (total / 100 > least && leastIndex != -1) {
            Used(leastIndex) = 0;
            return;
        }
        int best = 768;
        int a = -1;
        int b = -1;
        for (int i = lockedColors + 1; i <= numColors; ++i) {
            for (int j = 1; j <= numColors; ++j) {
                if (Used(i) == 0 || Used(j) == 0 || i == j) {
                    continue;
                }
                const int d = Difference(colorRGB[static_cast<std::size_t>(j)],
                                         colorRGB[static_cast<std::size_t>(i)]);
                if (d < best) {
                    best = d;
                    a = i;
                    b = j;
                }
            }
        }
        if (a == -1) {
            throw std::out_of_range("no pair");
        }
        if (Pixels(a) > Pixels(b) && b > lockedColors) {
            Used(b) = 0;
            Pixels(a) += Pixels(b);
            Pixels(b) = 0;
        } else {
            Used(a) = 0;
            Pixels(b) += Pixels(a);
            Pixels(a) = 0;
        }
    }

    std::int16_t& Used(int i) { return colorUsed[static_cast<std::size_t>(i)]; }
    std::int32_t& Pixels(int i) { return colorPixels[static_cast<std::size_t>(i)]; }

    int lockedColors = 0;
    int numColors = 0;
    std::vector<std::int16_t> colorUsed;
    std::vector<std::int32_t> colorPixels;
    std::vector<Colour> colorRGB{0};

private:
    static int Difference(Colour a, Colour b) {
        return HSLFuncs::WhatsTheDifference1(HSLFuncs::RedOf(a), HSLFuncs::GreenOf(a),
                                             HSLFuncs::BlueOf(a), HSLFuncs::RedOf(b),
                                             HSLFuncs::GreenOf(b), HSLFuncs::BlueOf(b));
    }

    int Closest(Colour colour, bool onlyUsed) {
        int best = 768;
        int bestIndex = 0;
        for (int i = 1; i <= numColors; ++i) {
            const int d = Difference(colour, colorRGB[static_cast<std::size_t>(i)]);
            if ((!onlyUsed || Used(i) != 0) && d < best) {
                best = d;
                bestIndex = i;
            }
        }
        return bestIndex;
    }

    template<typename Visit>
    static void ForEachPixel(const Picture& image, Visit visit) {
        for (int x = 0; x < image.ImageWidth(); ++x) {
            for (int y = 0; y < image.ImageHeight(); ++y) {
                visit(x, y, image.ImagePixel(x, y));
            }
        }
    }
};

inline Colour RandomColour(Random32& random) {
    return random() & 0x00FFFFFFU;
}

/// A picture of a few colours that come in unequal numbers, some pixels erased, some white.
inline Picture RandomPicture(Random32& random, int width, int height, unsigned colours) {
    std::vector<Colour> some;
    for (unsigned i = 0; i < colours; ++i) {
        some.push_back(RandomColour(random));
    }
    some.push_back(EraseColor);
    some.push_back(WhiteStandIn);
    Picture picture(width, height);
    for (Colour& pixel : picture.Pixels()) {
        // The lower of two numbers: the first colours are the common ones.
        pixel = some[std::min(random() % some.size(), random() % some.size())];
    }
    return picture;
}

} // namespace zol::test
