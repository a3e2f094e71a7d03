// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QPageSize>
#include <QTemporaryDir>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "model/CodePage.h"
#include "model/SafeFile.h"
#include "print/ChartPdf.h"
#include "print/PrintRequest.h"

namespace zol {

namespace {

constexpr double largestMargin = 100;
constexpr double largestGSPI = 1440;

QPageSize PageSizeNamed(const std::string& name) {
    for (int id = 0; id <= static_cast<int>(QPageSize::LastPageSize); ++id) {
        const auto sizeID = static_cast<QPageSize::PageSizeId>(id);
        if (sizeID != QPageSize::Custom &&
            LowerCase(QPageSize::key(sizeID).toStdString()) == LowerCase(name)) {
            return QPageSize(sizeID);
        }
    }
    throw WrongUsage("there is no page size " + name);
}

void ReadMargins(const std::string& text, PrintOptions& print) {
    const auto margins = CommandLine::ParseList(text);
    if (!margins || margins->size() != 4) {
        throw WrongUsage("option --margins takes four numbers: L,R,T,B");
    }
    for (const double margin : *margins) {
        if (margin < 0 || margin > largestMargin) {
            throw WrongUsage("a margin cannot be " + text);
        }
    }
    print.LeftMargin = (*margins)[0];
    print.RightMargin = (*margins)[1];
    print.TopMargin = (*margins)[2];
    print.BottomMargin = (*margins)[3];
}

void ReadPages(const std::string& text, ChartPdfOptions& chart) {
    const std::size_t dash = text.find('-');
    const auto from = CommandLine::ParseInteger(text.substr(0, dash));
    const auto to =
        dash == std::string::npos ? from : CommandLine::ParseInteger(text.substr(dash + 1));
    constexpr std::int64_t most = 32767;
    if (!from || !to || *from < 0 || *to < 0 || *from > most || *to > most) {
        throw WrongUsage("option --pages takes two page numbers: A-B");
    }
    chart.FromPage = static_cast<int>(*from);
    chart.ToPage = static_cast<int>(*to);
}

int StyleValue(const CommandLine& line, const char* option, int most) {
    const auto value = line.Integer(option, PrintNone, most);
    if (value && *value == 0) {
        throw WrongUsage("option " + std::string(option) + " cannot be 0");
    }
    return static_cast<int>(value.value_or(PrintBlackSymbols));
}

ChartPdfOptions ReadOptions(const CommandLine& line, const Options& options) {
    ChartPdfOptions chart;
    chart.Print = PrintOptionsOf(options);
    chart.Print.LeftMargin = chart.Print.RightMargin = PrintOptions::BuiltInMargin;
    chart.Print.TopMargin = chart.Print.BottomMargin = PrintOptions::BuiltInMargin;
    chart.Print.StitchSymbol = StyleValue(line, "--stitches-as", PrintVirtualStitches);
    chart.Print.BackStitchSymbol = StyleValue(line, "--backstitches-as", PrintBlackLines);
    chart.Print.GSPI = line.Decimal("--gspi", 0, largestGSPI).value_or(chart.Print.GSPI);
    chart.Print.PrintGridLines = !line.Has("--no-grid");
    chart.Print.PrintColorKey = !line.Has("--no-key");
    chart.Print.PrintPageNumbers = !line.Has("--no-page-numbers");
    // Told before the page is laid out: with no square at all, pages cannot be counted.
    const PrintRequestFault fault = CheckPrintRequest({.GSPI = chart.Print.GSPI});
    if (fault.Field == PrintField::GSPI) {
        throw CommandFailed(fault.Text);
    }
    chart.Landscape = line.Has("--landscape");
    chart.FitPage = line.Has("--fit-page");
    if (chart.FitPage && line.Has("--gspi")) {
        throw WrongUsage("only one of --gspi and --fit-page can be given");
    }
    if (const auto size = line.Value("--page-size")) {
        chart.PageSize = PageSizeNamed(*size);
    }
    if (const auto margins = line.Value("--margins")) {
        ReadMargins(*margins, chart.Print);
    }
    if (const auto pages = line.Value("--pages")) {
        ReadPages(*pages, chart);
    }
    return chart;
}

/// Writes the chart; answers its pages.
int WriteChart(Environment& environment, Pattern& pattern, const ChartPdfOptions& chart,
               const std::filesystem::path& path) {
    const ChartPdfResult result =
        WriteChartPdf(pattern, chart, path, environment.Context().Progress);
    if (!result.IsWhole()) {
        throw CommandFailed(result.ErrorText);
    }
    return result.Pages;
}

/// To standard output goes a chart that is whole, or nothing.
void SendChart(Environment& environment, Pattern& pattern, const ChartPdfOptions& chart) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("chart.pdf")));
    WriteChart(environment, pattern, chart, PathOf(file.fileName().toStdString()));
    if (!file.open(QIODevice::ReadOnly)) {
        throw CommandFailed(file.errorString().toStdString());
    }
    const QByteArray bytes = file.readAll();
    WriteOutput("-", {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                      static_cast<std::size_t>(bytes.size())});
}

} // namespace

void RunChart(Environment& environment, const CommandWords& words) {
    const CommandLine line(words, {{"-o", true, "--output"},
                                   {"--stitches-as", true},
                                   {"--backstitches-as", true},
                                   {"--gspi", true},
                                   {"--fit-page"},
                                   {"--page-size", true},
                                   {"--landscape"},
                                   {"--margins", true},
                                   {"--no-grid"},
                                   {"--no-key"},
                                   {"--no-page-numbers"},
                                   {"--pages", true}});
    line.ExpectFiles(1, 1);
    const std::string output = line.Required("-o");
    const ChartPdfOptions chart = ReadOptions(line, environment.GetOptions());
    Pattern pattern(environment.Context());
    environment.LoadPattern(pattern, line.Files()[0]);
    if (output == "-") {
        SendChart(environment, pattern, chart);
        return;
    }
    const int pages = WriteChart(environment, pattern, chart, PathOf(output));
    environment.Say(output, std::to_string(pages) + (pages == 1 ? " page" : " pages"));
}

} // namespace zol
