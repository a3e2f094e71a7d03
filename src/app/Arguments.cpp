// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "app/Arguments.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "model/SafeFile.h"

namespace zol {

namespace {

/// Options of the window system that come with one dash or two; most have a word behind them.
constexpr std::array<std::string_view, 20> WindowSystemOptions{
    "platform",        "platformpluginpath",
    "platformtheme",   "plugin",
    "qwindowgeometry", "qwindowicon",
    "qwindowtitle",    "reverse",
    "session",         "display",
    "style",           "stylesheet",
    "widgetcount",     "icon",
    "fontengine",      "nograb",
    "dograb",          "sync",
    "title",           "geometry",
};

bool IsForWindowSystem(const std::string& option) {
    const std::string name = option.substr(2, option.find('=') - 2);
    return std::find(WindowSystemOptions.begin(), WindowSystemOptions.end(), name) !=
           WindowSystemOptions.end();
}

} // namespace

Arguments ReadArguments(const std::vector<std::string>& words) {
    Arguments arguments;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        const bool takesPath = word == "--settings" || word == "--app-path";
        if (takesPath && i + 1 == words.size()) {
            arguments.Fault = word + " needs a path behind it";
        } else if (takesPath) {
            (word == "--settings" ? arguments.Settings : arguments.AppPath) = PathOf(words[++i]);
        } else if (word == "--help" || word == "-h") {
            arguments.WantsHelp = true;
        } else if (word == "--version") {
            arguments.WantsVersion = true;
        } else if (word.starts_with("--") && !IsForWindowSystem(word)) {
            arguments.Fault = "there is no option " + word;
        } else {
            arguments.CommandLine += (arguments.CommandLine.empty() ? "" : " ") + word;
        }
    }
    return arguments;
}

std::string HelpText() {
    return "usage: korvanta [--settings FILE] [--app-path FOLDER] [FILE]\n"
           "\n"
           "Designs counted cross-stitch patterns. FILE is a pattern (.pat, .bpt) to open.\n"
           "\n"
           "  --settings FILE    keep the settings in FILE instead of the user's own\n"
           "  --app-path FOLDER  look for Flosses, Patterns and their like in FOLDER\n"
           "  --help             show this text\n"
           "  --version          show the version\n";
}

} // namespace zol
