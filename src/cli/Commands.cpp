// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/Commands.h"

#include <array>

namespace zol {

namespace {

constexpr std::array commands{
    Command{"info", RunInfo, false, "info FILE [--json]", "what a file is and holds"},
    Command{"dump", RunDump, false, "dump FILE", "everything in a file as JSON"},
    Command{"edit", RunEdit, false, "edit [IN] --script OPS -o OUT [--dump]",
            "run an operation script on a pattern"},
    Command{"convert", RunConvert, false, "convert IN OUT", "write a pattern in another format"},
    Command{"import", RunImport, false,
            "import PICTURE -o OUT [--catalogue NAME.col | --palette FILE.fls]\n"
            "    [--max-colors N] [--width W] [--height H]\n"
            "    [--units stitches|inches|centimetres] [--cloth-count N] [--no-smooth]\n"
            "    [--crop X,Y,W,H] [--brightness N] [--contrast N] [--saturation N] [--hue N]\n"
            "    [--gamma N] [--equalize] [--grey] [--stretch] [--edges]",
            "turn a picture into a pattern"},
    Command{"chart", RunChart, true,
            "chart FILE -o OUT.pdf [--stitches-as N] [--backstitches-as N]\n"
            "    [--gspi X | --fit-page] [--page-size NAME] [--landscape]\n"
            "    [--margins L,R,T,B] [--no-grid] [--no-key] [--no-page-numbers] [--pages A-B]",
            "print chart pages and colour key to a PDF"},
    Command{"render", RunRender, true,
            "render FILE -o OUT.png|.bmp|.svg|.pdf [--style 1..6]\n"
            "    [--pixels-per-square N] [--grid] [--area X1,Y1,X2,Y2]",
            "paint a pattern as a picture"},
    Command{"usage", RunUsage, false, "usage FILE [--json | --csv]", "the floss usage report"},
    Command{"legend", RunLegend, true, "legend FILE -o OUT.rtf",
            "a pattern's facts and key as rich text"},
    Command{"catalogue", RunCatalogue, false,
            "catalogue build IN.csv -o OUT.col --name N --short-name S --base-id B",
            "make a floss catalogue from a table"},
};

} // namespace

std::span<const Command> AllCommands() {
    return commands;
}

} // namespace zol
