// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/CatalogueList.h"

#include <algorithm>
#include <system_error>

#include "flosses/InputFile.h"
#include "model/ByteStream.h"
#include "model/CodePage.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

constexpr std::string_view extension = ".col";

bool IsCatalogueName(const std::string& lowerCaseName) {
    return lowerCaseName.size() >= extension.size() &&
           lowerCaseName.substr(lowerCaseName.size() - extension.size()) == extension;
}

} // namespace

std::filesystem::path CatalogueFolder(const ProgramContext& context) {
    return SafeFile::FindIgnoringCase(context.AppPath, "Flosses");
}

std::filesystem::path CataloguePath(const ProgramContext& context, const std::string& name) {
    return SafeFile::FindIgnoringCase(CatalogueFolder(context), name);
}

std::vector<CatalogueName> ListCatalogues(const ProgramContext& context) {
    std::vector<CatalogueName> catalogues;
    std::error_code error;
    for (const auto& item : std::filesystem::directory_iterator(CatalogueFolder(context), error)) {
        const std::string fileName = LowerCase(PathText(item.path().filename()));
        auto file = IsCatalogueName(fileName) ? OpenInputFile(item.path()) : std::nullopt;
        if (file) {
            FixedText<30> name;
            ByteReader(*file).ReadBytes(name.Bytes());
            catalogues.push_back({fileName, name.Text()});
        }
    }
    std::sort(
        catalogues.begin(), catalogues.end(),
        [](const CatalogueName& a, const CatalogueName& b) { return a.FileName < b.FileName; });
    return catalogues;
}

std::vector<std::string> SplitMapFlosses(const std::string& option) {
    std::vector<std::string> names;
    std::size_t start = 0;
    while (start <= option.size()) {
        const std::size_t end = std::min(option.find('|', start), option.size());
        if (end > start) {
            names.push_back(option.substr(start, end - start));
        }
        start = end + 1;
    }
    return names;
}

std::string JoinMapFlosses(const std::vector<std::string>& fileNames) {
    std::string option;
    for (const std::string& name : fileNames) {
        option += (option.empty() ? "" : "|") + name;
    }
    return option;
}

bool IsMappedFloss(const std::string& option, const std::string& fileName) {
    const auto closed = [](const std::string& text) { return "|" + LowerCase(text) + "|"; };
    return closed(option).find(closed(fileName)) != std::string::npos;
}

} // namespace zol
