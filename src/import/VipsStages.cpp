// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/VipsStages.h"

#include <dlfcn.h>
#include <gmodule.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <mutex>

#include "import/LightCurve.h"
#include "import/PictureOps.h"
#include "model/Doors.h"

namespace zol::VipsStages {

namespace {

using vips::VImage;

static_assert(std::endian::native == std::endian::little,
              "a pixel's bytes in memory are red, green, blue, mark");

/// The first pixel of a row of a region's area. libvips' own macro mixes signed and unsigned.
VipsPel* RowOf(const VipsRegion* region, const VipsRect& area, int row) {
    const std::ptrdiff_t pixel =
        static_cast<std::ptrdiff_t>(vips_format_sizeof_unsafe(region->im->BandFmt)) *
        region->im->Bands;
    return region->data +
           static_cast<std::ptrdiff_t>(region->bpl) * (area.top + row - region->valid.top) +
           pixel * (area.left - region->valid.left);
}

/// Fills one row of a stage's output from the same row of its input.
using RowFunction = void (*)(const VipsPel* from, VipsPel* to, int width);

int GenerateRows(VipsRegion* out, void* sequence, void* /*input*/, void* function,
                 gboolean* /*stop*/) {
    auto* in = static_cast<VipsRegion*>(sequence);
    VipsRect area = out->valid;
    if (vips_region_prepare(in, &area) != 0) {
        return -1;
    }
    const RowFunction fill = *static_cast<const RowFunction*>(function);
    for (int y = 0; y < area.height; ++y) {
        fill(RowOf(in, area, y), RowOf(out, area, y), area.width);
    }
    return 0;
}

/// A stage of our own: each pixel depends on its source pixel alone.
VImage RowStage(const VImage& input, const RowFunction* function, int bands,
                VipsBandFormat format) {
    VipsImage* in = input.get_image();
    VipsImage* out = vips_image_new();
    VImage stage(out);
    // The output holds on to its input for as long as it lives.
    g_object_ref(in);
    vips_object_local(VIPS_OBJECT(out), VIPS_OBJECT(in));
    if (vips_image_pipelinev(out, VIPS_DEMAND_STYLE_THINSTRIP, in, nullptr) != 0) {
        throw vips::VError();
    }
    out->Bands = bands;
    out->BandFmt = format;
    out->Type = format == VIPS_FORMAT_UCHAR ? VIPS_INTERPRETATION_sRGB : VIPS_INTERPRETATION_RGB16;
    if (vips_image_generate(out, vips_start_one, GenerateRows, vips_stop_one, in,
                            const_cast<RowFunction*>(function)) != 0) {
        throw vips::VError();
    }
    return stage;
}

std::uint16_t* LightRow(VipsPel* row) {
    return reinterpret_cast<std::uint16_t*>(row);
}
const std::uint16_t* LightRow(const VipsPel* row) {
    return reinterpret_cast<const std::uint16_t*>(row);
}

VipsPel Depth(VipsPel channel) {
    return static_cast<VipsPel>(DepthOf16Bits(channel));
}

void OpaqueToPixels(const VipsPel* from, VipsPel* to, int width) {
    for (int x = 0; x < width; ++x, from += 3, to += 4) {
        to[0] = Depth(from[0]);
        to[1] = Depth(from[1]);
        to[2] = Depth(from[2]);
        to[3] = 0;
    }
}

void TransparentToPixels(const VipsPel* from, VipsPel* to, int width) {
    for (int x = 0; x < width; ++x, from += 4, to += 4) {
        const Colour colour = OverWhite(MakeColour(from[0], from[1], from[2]), from[3]);
        to[0] = Depth(static_cast<VipsPel>(colour & 255U));
        to[1] = Depth(static_cast<VipsPel>((colour >> 8U) & 255U));
        to[2] = Depth(static_cast<VipsPel>((colour >> 16U) & 255U));
        to[3] = static_cast<VipsPel>(colour >> 24U);
    }
}

/// Depth, RemapWhite and light in one pass over the decoded picture.
void OpaqueToLight(const VipsPel* from, VipsPel* to, int width) {
    const LightCurve& curve = LightCurve::Get();
    std::uint16_t* light = LightRow(to);
    for (int x = 0; x < width; ++x, from += 3, light += 3) {
        unsigned red = DepthOf16Bits(from[0]);
        unsigned green = DepthOf16Bits(from[1]);
        unsigned blue = DepthOf16Bits(from[2]);
        if ((red & green & blue) == 255U) {
            red = green = blue = WhiteStandIn & 255U;
        }
        light[0] = curve.LightOf(red);
        light[1] = curve.LightOf(green);
        light[2] = curve.LightOf(blue);
    }
}

void PixelsToLight(const VipsPel* from, VipsPel* to, int width) {
    const LightCurve& curve = LightCurve::Get();
    std::uint16_t* light = LightRow(to);
    for (int x = 0; x < width; ++x, from += 4, light += 3) {
        light[0] = curve.LightOf(from[0]);
        light[1] = curve.LightOf(from[1]);
        light[2] = curve.LightOf(from[2]);
    }
}

void ErasedToLight(const VipsPel* from, VipsPel* to, int width) {
    const LightCurve& curve = LightCurve::Get();
    std::uint16_t* light = LightRow(to);
    for (int x = 0; x < width; ++x, from += 4, light += 4) {
        const bool erased = (from[0] & from[1] & from[2]) == 255;
        light[0] = erased ? std::uint16_t{0} : curve.LightOf(from[0]);
        light[1] = erased ? std::uint16_t{0} : curve.LightOf(from[1]);
        light[2] = erased ? std::uint16_t{0} : curve.LightOf(from[2]);
        light[3] = erased ? std::uint16_t{0} : LightCurve::Full;
    }
}

/// A pixel that is stitched never comes out as the white that means an empty square.
void PutPixel(Colour colour, VipsPel* to) {
    const Colour pixel = colour == EraseColor ? WhiteStandIn : colour;
    std::memcpy(to, &pixel, sizeof pixel);
}

void LightToPixels(const VipsPel* from, VipsPel* to, int width) {
    const LightCurve& curve = LightCurve::Get();
    const std::uint16_t* light = LightRow(from);
    for (int x = 0; x < width; ++x, light += 3, to += 4) {
        PutPixel(
            MakeColour(curve.ValueOf(light[0]), curve.ValueOf(light[1]), curve.ValueOf(light[2])),
            to);
    }
}

void CoveredLightToPixels(const VipsPel* from, VipsPel* to, int width) {
    const LightCurve& curve = LightCurve::Get();
    const std::uint16_t* light = LightRow(from);
    for (int x = 0; x < width; ++x, light += 4, to += 4) {
        const std::uint32_t cover = light[3];
        if (cover * 2 < LightCurve::Full) {
            std::memcpy(to, &EraseColor, sizeof EraseColor);
            continue;
        }
        const auto value = [&curve, cover](std::uint32_t covered) {
            const std::uint32_t whole = (covered * LightCurve::Full + cover / 2) / cover;
            return curve.ValueOf(std::min<std::uint32_t>(whole, LightCurve::Full));
        };
        PutPixel(MakeColour(value(light[0]), value(light[1]), value(light[2])), to);
    }
}

constexpr RowFunction opaqueToPixels = OpaqueToPixels;
constexpr RowFunction transparentToPixels = TransparentToPixels;
constexpr RowFunction opaqueToLight = OpaqueToLight;
constexpr RowFunction pixelsToLight = PixelsToLight;
constexpr RowFunction erasedToLight = ErasedToLight;
constexpr RowFunction lightToPixels = LightToPixels;
constexpr RowFunction coveredLightToPixels = CoveredLightToPixels;

/// A kernel without negative lobes: every result is a mean of the picture's own colours, so no
/// halo shows up as stitches of a colour that the picture has not.
VImage ResampleLight(const VImage& light, int width, int height) {
    return light.resize(static_cast<double>(width) / light.width(),
                        VImage::option()
                            ->set("vscale", static_cast<double>(height) / light.height())
                            ->set("kernel", VIPS_KERNEL_LINEAR));
}

VImage SrgbOfColour(const VImage& colour) {
    if (colour.get_typeof(VIPS_META_ICC_NAME) != 0) {
        try {
            return colour.icc_transform("srgb",
                                        VImage::option()->set("embedded", true)->set("depth", 8));
        } catch (const vips::VError&) {
            vips_error_clear();
        }
    }
    VImage plain =
        colour.colourspace(VIPS_INTERPRETATION_sRGB,
                           VImage::option()->set("source_space", colour.guess_interpretation()));
    return plain.format() == VIPS_FORMAT_UCHAR ? plain : plain.cast(VIPS_FORMAT_UCHAR);
}

VImage OpacityOf(const VImage& band) {
    switch (band.format()) {
    case VIPS_FORMAT_UCHAR:
        return band;
    case VIPS_FORMAT_USHORT:
        return band.cast(VIPS_FORMAT_UCHAR, VImage::option()->set("shift", true));
    default:
        return band.cast(VIPS_FORMAT_UCHAR);
    }
}

int WriteStrip(VipsRegion* region, VipsRect* area, void* target) {
    auto* picture = static_cast<Picture*>(target);
    for (int y = 0; y < area->height; ++y) {
        std::memcpy(picture->Row(area->top + y) + area->left, RowOf(region, *area, y),
                    static_cast<std::size_t>(area->width) * sizeof(Colour));
    }
    return 0;
}

void TellProgress(VipsImage* image, VipsProgress* progress, ProgressDoor* door) {
    if (door->MayGoOn()) {
        door->UpdateStatus(progress->percent);
    } else {
        vips_image_set_kill(image, TRUE);
    }
}

/// Keeps libvips from loading its modules while it starts. They are readers that are not wanted
/// here (ImageMagick, PDF, slides), and loading them takes longer than decoding a photo.
class NoModules {
public:
    NoModules() {
        const char* home = std::getenv(Variable); // NOLINT(concurrency-mt-unsafe)
        m_wasSet = home != nullptr;
        m_home = m_wasSet ? home : "";
        g_setenv(Variable, "/dev/null", TRUE);
    }
    ~NoModules() {
        if (m_wasSet) {
            g_setenv(Variable, m_home.c_str(), TRUE);
        } else {
            g_unsetenv(Variable);
        }
    }
    NoModules(const NoModules&) = delete;
    NoModules& operator=(const NoModules&) = delete;

private:
    /// The folder that libvips looks for its modules in.
    static constexpr const char* Variable = "VIPSHOME";

    bool m_wasSet = false;
    std::string m_home;
};

/// The module lies in a folder beside the library, named for its version. It stays loaded.
void LoadHeifModule() {
    Dl_info library{};
    if (dladdr(reinterpret_cast<void*>(&vips_init), &library) == 0 ||
        library.dli_fname == nullptr) {
        return;
    }
    const std::filesystem::path folder =
        std::filesystem::path(library.dli_fname).parent_path() /
        ("vips-modules-" + std::to_string(vips_version(0)) + "." + std::to_string(vips_version(1)));
    GModule* module = g_module_open((folder / "vips-heif.so").c_str(), G_MODULE_BIND_LAZY);
    if (module != nullptr) {
        g_module_make_resident(module);
    }
}

/// libvips has no list of errors, nor a lock for one, before it is started.
std::atomic<bool> isStarted = false;

void DropMessage(const gchar* /*domain*/, GLogLevelFlags /*level*/, const gchar* /*message*/,
                 gpointer /*data*/) {}

} // namespace

void EnsureStarted() {
    static std::once_flag once;
    std::call_once(once, [] {
        const NoModules noModules;
        if (vips_init("korvanta") != 0) {
            throw vips::VError();
        }
        // Every picture is read once: the cache of finished operations would only hold memory.
        vips_cache_set_max(0);
        vips_block_untrusted_set(TRUE);
        // What a decoder grumbles about and gets over is nobody's business on standard error.
        g_log_set_handler("VIPS",
                          static_cast<GLogLevelFlags>(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_MESSAGE |
                                                      G_LOG_LEVEL_INFO | G_LOG_LEVEL_DEBUG),
                          DropMessage, nullptr);
        isStarted = true;
    });
}

bool HasLoader(const std::string& loader) {
    const auto isKnown = [&loader] { return vips_type_find("VipsOperation", loader.c_str()) != 0; };
    static std::once_flag once;
    if (!isKnown() && loader.rfind("heif", 0) == 0) {
        std::call_once(once, LoadHeifModule);
    }
    return isKnown();
}

void ForgetErrors() {
    if (isStarted) {
        vips_error_clear();
    }
}

std::string TakeErrorText() {
    std::string line;
    for (const char* at = vips_error_buffer(); *at != '\0'; ++at) {
        const bool control = static_cast<unsigned char>(*at) < 0x20;
        if (!control) {
            line += *at;
        } else if (!line.empty() && line.back() != ' ' && at[1] != '\0') {
            line += "; ";
        }
    }
    vips_error_clear();
    constexpr std::size_t longest = 300;
    return line.substr(0, longest);
}

VImage ToSrgb(const VImage& image) {
    const int bands = image.bands();
    VImage colour = image;
    VImage opacity;
    const bool hasOpacity = image.has_alpha();
    if (hasOpacity) {
        opacity = OpacityOf(image.extract_band(bands - 1));
        colour = image.extract_band(0, VImage::option()->set("n", bands - 1));
    }
    VImage srgb = SrgbOfColour(colour);
    if (srgb.bands() > 3) {
        srgb = srgb.extract_band(0, VImage::option()->set("n", 3));
    } else if (srgb.bands() < 3) {
        const VImage grey = srgb.extract_band(0);
        srgb = grey.bandjoin(grey).bandjoin(grey);
    }
    return hasOpacity ? srgb.bandjoin(opacity) : srgb;
}

VImage ToPixels(const VImage& srgb) {
    return RowStage(srgb, srgb.bands() == 3 ? &opaqueToPixels : &transparentToPixels, 4,
                    VIPS_FORMAT_UCHAR);
}

VImage FromPicture(const Picture& picture) {
    const auto& pixels = picture.Pixels();
    return VImage::new_from_memory(const_cast<Colour*>(pixels.data()),
                                   pixels.size() * sizeof(Colour), picture.ImageWidth(),
                                   picture.ImageHeight(), 4, VIPS_FORMAT_UCHAR);
}

VImage ResampleOpaque(const VImage& srgb, int width, int height) {
    const VImage light = RowStage(srgb, &opaqueToLight, 3, VIPS_FORMAT_USHORT);
    return RowStage(ResampleLight(light, width, height), &lightToPixels, 4, VIPS_FORMAT_UCHAR);
}

VImage ResamplePixels(const VImage& pixels, bool hasErased, int width, int height) {
    if (!hasErased) {
        const VImage light = RowStage(pixels, &pixelsToLight, 3, VIPS_FORMAT_USHORT);
        return RowStage(ResampleLight(light, width, height), &lightToPixels, 4, VIPS_FORMAT_UCHAR);
    }
    const VImage light = RowStage(pixels, &erasedToLight, 4, VIPS_FORMAT_USHORT);
    return RowStage(ResampleLight(light, width, height), &coveredLightToPixels, 4,
                    VIPS_FORMAT_UCHAR);
}

ProgressWatch::ProgressWatch(const VImage& image, ProgressDoor* door) : m_image(image) {
    if (door != nullptr) {
        vips_image_set_progress(m_image.get_image(), TRUE);
        m_handler = g_signal_connect(m_image.get_image(), "eval", G_CALLBACK(TellProgress), door);
    }
}

ProgressWatch::~ProgressWatch() {
    if (m_handler != 0) {
        g_signal_handler_disconnect(m_image.get_image(), m_handler);
        vips_image_set_progress(m_image.get_image(), FALSE);
    }
}

Picture ToPicture(const VImage& pixels, ProgressDoor* progress) {
    const ProgressWatch watch(pixels, progress);
    Picture picture(pixels.width(), pixels.height());
    if (vips_sink_disc(pixels.get_image(), WriteStrip, &picture) != 0) {
        throw vips::VError();
    }
    return picture;
}

} // namespace zol::VipsStages
