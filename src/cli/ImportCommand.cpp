// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <optional>
#include <span>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "import/Adjustments.h"
#include "import/Imaging.h"
#include "import/ImportMessages.h"
#include "import/ImportSession.h"
#include "import/ImportSize.h"
#include "import/PictureOps.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

constexpr int defaultWidth = 100;
constexpr int defaultMaxColors = 30;
constexpr int defaultClothCount = 14;
constexpr int largestClothCount = 1000;
constexpr double largestField = 1e6;

/// An option that adjusts the colours, and the line of the adjustment list that it stands for.
struct AdjustmentOption {
    std::string_view Name;
    Adjustments::Kind Kind;
};
constexpr std::array adjustmentOptions{
    AdjustmentOption{"--brightness", Adjustments::Kind::Brightness},
    AdjustmentOption{"--contrast", Adjustments::Kind::Contrast},
    AdjustmentOption{"--saturation", Adjustments::Kind::Saturation},
    AdjustmentOption{"--hue", Adjustments::Kind::Hue},
    AdjustmentOption{"--gamma", Adjustments::Kind::GammaCorrect},
    AdjustmentOption{"--equalize", Adjustments::Kind::HistoEqualize},
    AdjustmentOption{"--grey", Adjustments::Kind::GrayScale},
    AdjustmentOption{"--stretch", Adjustments::Kind::StretchIntensity},
    AdjustmentOption{"--edges", Adjustments::Kind::EdgeEnhance},
};

struct AdjustmentStep {
    Adjustments::Kind Kind;
    int Slider;
};

/// The adjustments in the order in which they were given.
std::vector<AdjustmentStep> AdjustmentsOf(const CommandLine& line) {
    std::vector<AdjustmentStep> steps;
    for (const auto& [name, value] : line.InOrder()) {
        const auto* option =
            std::find_if(adjustmentOptions.begin(), adjustmentOptions.end(),
                         [&name = name](const auto& known) { return known.Name == name; });
        if (option == adjustmentOptions.end()) {
            continue;
        }
        const Adjustments::Item& item = Adjustments::ItemOf(option->Kind);
        std::int64_t slider = item.Start;
        if (item.HasSlider) {
            const auto number = CommandLine::ParseInteger(value);
            if (!number || *number < item.Minimum || *number > item.Maximum) {
                throw WrongUsage("option " + name + " takes a whole number from " +
                                 std::to_string(item.Minimum) + " to " +
                                 std::to_string(item.Maximum));
            }
            slider = *number;
        }
        steps.push_back({option->Kind, static_cast<int>(slider)});
    }
    return steps;
}

std::optional<PixelRect> CropOf(const CommandLine& line) {
    const auto text = line.Value("--crop");
    if (!text) {
        return std::nullopt;
    }
    const auto numbers = CommandLine::ParseList(*text);
    if (!numbers || numbers->size() != 4) {
        throw WrongUsage("option --crop takes four numbers: X,Y,W,H");
    }
    std::array<int, 4> sides{};
    for (std::size_t i = 0; i < sides.size(); ++i) {
        sides[i] = static_cast<int>(std::clamp((*numbers)[i], -largestField, largestField));
    }
    return PixelRect{sides[0], sides[1], sides[2], sides[3]};
}

/// How the fields of the size are to be read.
ImportSize SizeRulesOf(const CommandLine& line) {
    ImportSize size;
    size.ClothCountX = static_cast<int>(
        line.Integer("--cloth-count", 1, largestClothCount).value_or(defaultClothCount));
    size.ClothCountY = size.ClothCountX;
    const std::string units = line.Value("--units").value_or("stitches");
    size.UseUnits = units != "stitches";
    if (units == "centimetres") {
        size.CmPerUnit = CmPerUnitCentimetres;
    } else if (size.UseUnits && units != "inches") {
        throw WrongUsage("option --units takes stitches, inches or centimetres");
    }
    return size;
}

/// The size in stitches: one field alone keeps the aspect, none gives the default width.
StitchSize SizeOf(const CommandLine& line, ImportSize rules, int imageWidth, int imageHeight) {
    auto width = line.Decimal("--width", -largestField, largestField);
    auto height = line.Decimal("--height", -largestField, largestField);
    if (!width && !height) {
        rules.UseUnits = false;
        width = defaultWidth;
    }
    if (!height) {
        height = SetProportionalHeight(rules, *width, imageWidth, imageHeight, std::nullopt).Height;
    } else if (!width) {
        width = ProportionalWidth(*height, imageWidth, imageHeight);
    }
    const bool typedWidth = line.Has("--width");
    const bool typedHeight = line.Has("--height");
    // Only what was typed can be at fault: a side that follows from the other is at least 1.
    if (const auto fault =
            ImportMessages::ValidateSize(typedWidth ? *width : 1, typedHeight ? *height : 1)) {
        throw CommandFailed(*fault);
    }
    const auto size = rules.StitchesOf(*width, *height);
    if (!size) {
        throw CommandFailed("a pattern of that size is too large",
                            RunTimeErrorText(ErrOutOfMemory));
    }
    return *size;
}

/// A picture by its name or from standard input, whose bytes it keeps.
class PictureSource {
public:
    explicit PictureSource(const std::string& fileName) {
        if (fileName == "-") {
            m_bytes = ReadStandardInput();
            m_file.emplace(std::span<const std::uint8_t>(m_bytes));
        } else {
            m_file.emplace(PathOf(fileName));
        }
        if (!m_file->GetError().IsGood()) {
            throw CommandFailed(fileName + " cannot be read as a picture", m_file->GetError().Text);
        }
    }
    [[nodiscard]] PictureFile& File() { return *m_file; }

private:
    std::vector<std::uint8_t> m_bytes;
    std::optional<PictureFile> m_file;
};

void ChooseFlosses(Environment& environment, const CommandLine& line, ImportSession& session) {
    if (const auto palette = line.Value("--palette")) {
        session.ChoosePalette(environment.LoadPalette(*palette));
        return;
    }
    const std::string name =
        line.Value("--catalogue").value_or(environment.GetOptions().DefaultFlossFile);
    AvailColors catalogue(environment.Context());
    if (!catalogue.Initialize(PathOf(name)) || catalogue.GetFlossCount() == 0) {
        throw CommandFailed(name + " is no catalogue that can be read");
    }
    session.ChooseCatalogue(catalogue);
}

std::string Summary(const Pattern& pattern, const ImportFigures& figures) {
    std::string text = std::to_string(pattern.GetPatternWidth()) + " x " +
                       std::to_string(pattern.GetPatternHeight()) + " squares, " +
                       std::to_string(figures.Flosses.size()) + " flosses, " +
                       std::to_string(figures.Stitches) + " stitches";
    if (figures.FlossesSharingSymbol > 0) {
        text += "; " + std::to_string(figures.FlossesSharingSymbol) +
                " flosses share their symbol with another one";
    }
    return text;
}

/// Any number at all, as the wizard's message tells which ones a pattern can have.
int MaxColorsOf(const CommandLine& line) {
    const std::int64_t number =
        line.Integer("--max-colors", INT64_MIN, INT64_MAX).value_or(defaultMaxColors);
    return static_cast<int>(std::clamp<std::int64_t>(number, INT32_MIN, INT32_MAX));
}

CommandLine ParseWords(const CommandWords& words) {
    return {words,
            {{"-o", true, "--output"},
             {"--catalogue", true},
             {"--palette", true},
             {"--max-colors", true},
             {"--width", true},
             {"--height", true},
             {"--units", true},
             {"--cloth-count", true},
             {"--no-smooth"},
             {"--crop", true},
             {"--brightness", true},
             {"--contrast", true},
             {"--saturation", true},
             {"--hue", true},
             {"--gamma", true},
             {"--equalize"},
             {"--grey"},
             {"--stretch"},
             {"--edges"}}};
}

Picture LoadPicture(const CommandLine& line, const ImportSize& rules,
                    const std::vector<AdjustmentStep>& steps) {
    const std::string& fileName = line.Files()[0];
    PictureSource source(fileName);
    ImportRequest request;
    request.Crop = CropOf(line);
    request.SmoothColors = !line.Has("--no-smooth");
    int width = source.File().ImageWidth();
    int height = source.File().ImageHeight();
    if (request.Crop) {
        const PixelRect kept = ClipToPicture(*request.Crop, width, height);
        if (kept.Width < 1 || kept.Height < 1) {
            throw CommandFailed("nothing of the picture lies in the crop");
        }
        width = kept.Width;
        height = kept.Height;
    }
    request.Size = SizeOf(line, rules, width, height);
    ImagingResult loaded = source.File().LoadForImport(request);
    if (!loaded.IsGood()) {
        throw CommandFailed(fileName + " cannot be read as a picture", loaded.Text);
    }
    for (const AdjustmentStep& step : steps) {
        Adjustments::Apply(loaded.Image, step.Kind, step.Slider);
    }
    return std::move(loaded.Image);
}

} // namespace

void RunImport(Environment& environment, const CommandWords& words) {
    const CommandLine line = ParseWords(words);
    line.ExpectFiles(1, 1);
    const std::string output = line.Required("-o");
    if (line.Has("--catalogue") && line.Has("--palette")) {
        throw WrongUsage("only one of --catalogue and --palette can be given");
    }
    const auto steps = AdjustmentsOf(line);
    const ImportSize rules = SizeRulesOf(line);
    const int maxColors = MaxColorsOf(line);

    ImportSession session(environment.Context());
    ChooseFlosses(environment, line, session);
    if (const auto fault = session.ValidateMapping(maxColors, !line.Has("--palette"))) {
        throw CommandFailed(*fault);
    }
    session.SetImage(LoadPicture(line, rules, steps));
    Pattern pattern(environment.Context());
    const ImportStatus status =
        session.CreateThePattern(pattern, maxColors, rules.ClothCountX, rules.ClothCountY);
    if (!status.IsDone()) {
        throw CommandFailed(status.Message);
    }
    pattern.GetPalette().Sort(environment.GetOptions().PaletteSortOrder);
    environment.SavePattern(pattern, output);
    environment.Say(output, Summary(pattern, session.Figures()));
}

} // namespace zol
