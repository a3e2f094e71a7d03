// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/basOptions.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <system_error>

#include "flosses/AvailColors.h"
#include "model/CodePage.h"
#include "model/SafeFile.h"
#include "settings/ColorLists.h"
#include "settings/OptionsTable.h"

namespace zol::basOptions {

namespace {

namespace fs = std::filesystem;

constexpr int smallestPercent = 0;
constexpr int largestPercent = 100;

template<typename Number>
Number ParseNumber(const std::string& text, Number fallback) {
    Number value = fallback;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

void Assign(Options& options, const OptionRow& row, const std::string& text) {
    struct Setter {
        Options& target;
        const std::string& value;

        void operator()(std::string Options::*member) const { target.*member = value; }
        void operator()(int Options::*member) const {
            target.*member = ParseNumber(value, target.*member);
        }
        void operator()(double Options::*member) const {
            target.*member = ParseNumber(value, target.*member);
        }
        void operator()(bool Options::*member) const {
            target.*member = UpperCase(value) != "FALSE";
        }
    };
    std::visit(Setter{options, text}, row.Target);
}

/// As the store has it.
std::string TextOf(const Options& options, const OptionRow& row) {
    struct Getter {
        const Options& source;

        std::string operator()(std::string Options::*member) const { return source.*member; }
        std::string operator()(int Options::*member) const {
            return std::to_string(source.*member);
        }
        std::string operator()(double Options::*member) const {
            constexpr std::size_t room = 32;
            char text[room];
            return {text, std::to_chars(text, text + room, source.*member).ptr};
        }
        std::string operator()(bool Options::*member) const {
            return source.*member ? "TRUE" : "FALSE";
        }
    };
    return std::visit(Getter{options}, row.Target);
}

std::string PresentText(const Options& options, const OptionRow& row) {
    const auto* text = std::get_if<std::string Options::*>(&row.Target);
    return text != nullptr ? options.**text : std::string();
}

void ReadSection(const SettingsDoor& store, const char* section, Options& options) {
    for (const OptionRow& row : OptionRows(section)) {
        const std::string fallback =
            row.Default != nullptr ? row.Default : PresentText(options, row);
        Assign(options, row, store.ReadSetting(row.Section, row.Name, fallback));
    }
}

/// A path in an old value is cut down to its lower-cased file name.
std::string CatalogueFileName(const std::string& value) {
    const std::size_t slash = value.find_last_of("/\\");
    return slash == std::string::npos ? value : LowerCase(value.substr(slash + 1));
}

constexpr const char* printerSection = "Printer Opts";
constexpr const char* stitchStyle = "StitchesDisplayAs";
constexpr const char* lineStyle = "LinesDisplayAs";

void ReadPrintStyles(const SettingsDoor& store, Options& options) {
    options.StitchSymbol = ParseNumber(store.ReadSetting(printerSection, stitchStyle, ""), 0);
    options.BackStitchSymbol = ParseNumber(store.ReadSetting(printerSection, lineStyle, ""), 0);
    if (options.StitchSymbol == 0) {
        options.StitchSymbol = ParseNumber(store.ReadSetting("Options", "StitchSymbol", "2"), 2);
    }
    if (options.BackStitchSymbol == 0) {
        options.BackStitchSymbol =
            ParseNumber(store.ReadSetting("Options", "BackStitchSymbol", "2"), 2);
    }
}

void ReadColors(const SettingsDoor& store, Options& options) {
    using namespace ColorLists;
    options.ClothColor = GetClothColor(store, options.ClothColorIndex).Value;
    options.NormalGLColor = GetGridColor(store, NormalLines, options.GridlineColor1Index).Value;
    options.BoldGLColor = GetGridColor(store, BoldLines, options.GridlineColor2Index).Value;
    options.PrintNormalGLColor =
        GetGridColor(store, PrintNormalLines, options.PrintGridlineColor1Index).Value;
    options.PrintBoldGLColor =
        GetGridColor(store, PrintBoldLines, options.PrintGridlineColor2Index).Value;
}

void ClampPercents(Options& options) {
    for (int* percent :
         {&options.GridLineWidthPercentage1, &options.GridLineWidthPercentage2,
          &options.BackStitchLineWidthPercentage, &options.PrintGridLineWidthPercentage1,
          &options.PrintGridLineWidthPercentage2, &options.PrintBackStitchLineWidthPercentage}) {
        *percent = std::clamp(*percent, smallestPercent, largestPercent);
    }
}

void MakeFolder(const std::string& path) {
    std::error_code ignored;
    fs::create_directory(PathOf(path), ignored);
}

bool IsBritish(const std::string& spelling) {
    if (!spelling.empty()) {
        return LowerCase(spelling) == "british";
    }
    const QLocale locale;
    return locale.language() == QLocale::English && locale.territory() != QLocale::UnitedStates;
}

/// Every write goes to the disk at once, so what stands there already is left alone.
void WriteIfOther(SettingsDoor& store, const char* section, const char* name,
                  const std::string& value) {
    if (store.ReadSetting(section, name, value + "?") != value) {
        store.WriteSetting(section, name, value);
    }
}

void LoadCatalogue(const Options& options, ProgramContext& context) {
    context.CurrentCatalogue = std::make_shared<AvailColors>(context);
    context.CurrentCatalogue->Initialize(PathOf(options.DefaultFlossFile));
}

} // namespace

Options BuiltInOptions(const ProgramContext& context) {
    Options options;
    const std::string folder = PathText(context.AppPath);
    options.BasePath = folder;
    options.HelpFile = PathText(context.AppPath / "ZOL6.HLP");
    options.CustStitchPath = PathText(context.AppPath / "Custom Stitches");
    options.StitchedFontPath = PathText(context.AppPath / "Stitched Fonts");
    options.CategoryDirectory = PathText(context.AppPath / "Patterns");
    for (const char* section : {"Options", "Design Grid Opts", "Printer Opts",
                                "Pattern Default Properties", "PatternViewer"}) {
        for (const OptionRow& row : OptionRows(section)) {
            if (row.Default != nullptr) {
                Assign(options, row, row.Default);
            }
        }
    }
    return options;
}

Options LoadOptions(const SettingsDoor& store, ProgramContext& context) {
    Options options = BuiltInOptions(context);
    options.DefaultFlossFile =
        CatalogueFileName(store.ReadSetting("Options", "DefaultFlossFile", "dmc.col"));
    context.BritishSpelling = IsBritish(store.ReadSetting("Options", "Spelling", ""));
    LoadCatalogue(options, context);

    for (const char* section : {"Design Grid Opts", "Printer Opts", "Pattern Default Properties",
                                "Settings", "Options", "PatternViewer"}) {
        ReadSection(store, section, options);
    }
    options.DefaultFlossFile = CatalogueFileName(options.DefaultFlossFile);
    while (options.BasePath.size() > 1 &&
           (options.BasePath.back() == '\\' || options.BasePath.back() == '/')) {
        options.BasePath.pop_back();
    }
    ReadPrintStyles(store, options);
    ClampPercents(options);
    ReadColors(store, options);
    MakeFolder(options.CustStitchPath);
    MakeFolder(options.StitchedFontPath);
    ApplyOptions(options, context);
    return options;
}

void SaveOptions(const Options& options, SettingsDoor& store) {
    for (const char* section :
         {"Options", "Design Grid Opts", printerSection, "Pattern Default Properties"}) {
        for (const OptionRow& row : OptionRows(section)) {
            if (row.Edited) {
                WriteIfOther(store, row.Section, row.Name, TextOf(options, row));
            }
        }
    }
    SavePrintStyles(options, store);
}

void SaveOption(const Options& options, SettingsDoor& store, std::string_view section,
                std::string_view name) {
    for (const OptionRow& row : OptionRows(section)) {
        if (name == row.Name) {
            WriteIfOther(store, row.Section, row.Name, TextOf(options, row));
        }
    }
}

void SavePrintStyles(const Options& options, SettingsDoor& store) {
    WriteIfOther(store, printerSection, stitchStyle, std::to_string(options.StitchSymbol));
    WriteIfOther(store, printerSection, lineStyle, std::to_string(options.BackStitchSymbol));
}

void FollowChoices(const SettingsDoor& store, Options& options, ProgramContext& context) {
    ReadColors(store, options);
    LoadCatalogue(options, context);
    ApplyOptions(options, context);
}

void ApplyOptions(const Options& options, ProgramContext& context) {
    context.StitchStrands = options.StitchStrands;
    context.BackStitchStrands = options.BackStitchStrands;
    context.DefaultAuthor = options.Author;
    context.DefaultTitle = options.Title;
    context.DefaultCopyright = options.Copyright;
    context.DefaultFabric = options.Fabric;
    context.SymbolFontName = options.SymbolFontName;
    context.SymbolFontBold = options.SymbolFontBold;
    context.SymbolFontItalic = options.SymbolFontItalic;
    context.RecolorPatterns = options.RecolorPatterns;
    context.BritishSpelling = IsBritish(options.Spelling);
}

} // namespace zol::basOptions
