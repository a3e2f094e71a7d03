// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/SaneSettings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>

namespace zol {

namespace {

constexpr double MmPerInch = 25.4;
// Offered of a device that can do any resolution within bounds.
constexpr std::array<int, 9> UsualResolutions{75, 100, 150, 200, 300, 400, 600, 1200, 2400};
constexpr int MaxResolution = 19200;
// A bed wider than this is a mistake of the driver, or a roll without an end.
constexpr double MaxBed = 2000.0;

/// The millimetres of one unit of the area's options; nothing if they are in no length.
std::optional<double> MmPerUnit(const SaneDevice& device) {
    const auto unit = device.UnitOf("br-x");
    if (unit == SANE_UNIT_MM) {
        return 1.0;
    }
    const auto resolution = device.GetNumber("resolution");
    if (unit == SANE_UNIT_PIXEL && resolution.value_or(0.0) > 0.0) {
        return MmPerInch / *resolution;
    }
    return std::nullopt;
}

struct Side {
    double From = 0.0;
    double To = 0.0;
};

/// How far a device sees in one direction, in its own unit.
std::optional<Side> ReachOf(const SaneDevice& device, const char* from, const char* to) {
    const auto starts = device.BoundsOf(from);
    const auto ends = device.BoundsOf(to);
    if (!starts || !ends || ends->second <= starts->first) {
        return std::nullopt;
    }
    return Side{starts->first, ends->second};
}

std::vector<int> ResolutionsOf(const SaneDevice& device) {
    std::vector<int> resolutions;
    for (const double number : device.NumbersOf("resolution")) {
        if (number >= 1.0 && number <= MaxResolution) {
            resolutions.push_back(static_cast<int>(std::lround(number)));
        }
    }
    const auto bounds = device.BoundsOf("resolution");
    if (resolutions.empty() && bounds) {
        std::copy_if(
            UsualResolutions.begin(), UsualResolutions.end(), std::back_inserter(resolutions),
            [&bounds](int usual) { return usual >= bounds->first && usual <= bounds->second; });
        if (resolutions.empty() && bounds->first >= 1.0 && bounds->first <= MaxResolution) {
            resolutions.push_back(static_cast<int>(std::ceil(bounds->first)));
        }
    }
    std::sort(resolutions.begin(), resolutions.end());
    resolutions.erase(std::unique(resolutions.begin(), resolutions.end()), resolutions.end());
    return resolutions;
}

std::optional<ScanArea> BedOf(const SaneDevice& device) {
    const auto mm = MmPerUnit(device);
    const auto across = ReachOf(device, "tl-x", "br-x");
    const auto down = ReachOf(device, "tl-y", "br-y");
    if (!mm || !across || !down) {
        return std::nullopt;
    }
    const ScanArea bed{0.0, 0.0, (across->To - across->From) * *mm, (down->To - down->From) * *mm};
    return bed.Width <= MaxBed && bed.Height <= MaxBed ? std::optional(bed) : std::nullopt;
}

/// A picture to stitch lies on the glass; a feeder would pull it through.
SANE_Status ChooseGlass(const SaneDevice& device) {
    for (const std::string& source : device.TextsOf("source")) {
        if (source.find("Flatbed") != std::string::npos) {
            return device.SetText("source", source);
        }
    }
    return SANE_STATUS_GOOD;
}

/// Moves both ends of one direction. They never pass each other on the way, which some devices do
/// not take.
SANE_Status ApplySide(const SaneDevice& device, const char* from, const char* to,
                      const Side& wanted) {
    const auto reach = ReachOf(device, from, to);
    if (!reach) {
        return SANE_STATUS_GOOD;
    }
    SANE_Status status = device.SetNumber(from, reach->From);
    if (status == SANE_STATUS_GOOD) {
        status = device.SetNumber(to, std::min(reach->From + wanted.To, reach->To));
    }
    if (status == SANE_STATUS_GOOD) {
        status = device.SetNumber(from, std::min(reach->From + wanted.From, reach->To));
    }
    return status;
}

SANE_Status ApplyArea(const SaneDevice& device, const std::optional<ScanArea>& asked) {
    const auto mm = MmPerUnit(device);
    if (asked && !mm) {
        return SANE_STATUS_UNSUPPORTED;
    }
    constexpr double all = std::numeric_limits<double>::infinity();
    const ScanArea area = asked.value_or(ScanArea{0.0, 0.0, all, all});
    const double unit = mm.value_or(1.0);
    const SANE_Status status =
        ApplySide(device, "tl-x", "br-x", {area.Left / unit, (area.Left + area.Width) / unit});
    if (status != SANE_STATUS_GOOD) {
        return status;
    }
    return ApplySide(device, "tl-y", "br-y", {area.Top / unit, (area.Top + area.Height) / unit});
}

SANE_Status ApplyResolution(const SaneDevice& device, int resolution) {
    if (resolution < 1 || !device.Has("resolution")) {
        return SANE_STATUS_GOOD;
    }
    const SANE_Status status = device.SetNumber("resolution", resolution);
    // Where there is one for the other direction, "resolution" alone would tear the picture.
    if (status == SANE_STATUS_GOOD && device.Has("y-resolution")) {
        return device.SetNumber("y-resolution", resolution);
    }
    return status;
}

} // namespace

ScanAbilities SaneSettings::AbilitiesOf(const SaneDevice& device) {
    // The glass may be of another size than the feeder.
    static_cast<void>(ChooseGlass(device));
    ScanAbilities abilities;
    abilities.Resolutions = ResolutionsOf(device);
    abilities.Modes = device.TextsOf("mode");
    abilities.Mode = device.GetText("mode");
    abilities.Bed = BedOf(device);
    return abilities;
}

SANE_Status SaneSettings::Apply(const SaneDevice& device, const ScanRequest& request) {
    // The order matters: each may change what the later ones can be.
    SANE_Status status = ChooseGlass(device);
    if (status == SANE_STATUS_GOOD && !request.Mode.empty()) {
        status = device.SetText("mode", request.Mode);
    }
    // A device that has no preview just scans, and one that keeps its depth sends it with the
    // frame.
    static_cast<void>(device.SetFlag("preview", request.Preview));
    static_cast<void>(device.SetNumber("depth", request.Depth));
    if (status == SANE_STATUS_GOOD) {
        status = ApplyResolution(device, request.Resolution);
    }
    return status == SANE_STATUS_GOOD ? ApplyArea(device, request.Area) : status;
}

} // namespace zol
