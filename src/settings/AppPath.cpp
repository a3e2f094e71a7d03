// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/AppPath.h"

#include <QStandardPaths>

#include <system_error>

#include "model/SafeFile.h"

namespace zol::AppPath {

namespace fs = std::filesystem;

namespace {

void AddMissing(const fs::path& source, const fs::path& target) {
    std::error_code error;
    fs::create_directories(target, error);
    for (const auto& entry : fs::directory_iterator(source, error)) {
        const fs::path name = target / entry.path().filename();
        if (entry.is_directory(error)) {
            AddMissing(entry.path(), name);
        } else if (!fs::exists(name, error)) {
            fs::copy_file(entry.path(), name, fs::copy_options::skip_existing, error);
        }
    }
}

} // namespace

fs::path Resolve(const fs::path& programFolder, const fs::path& installedData,
                 const fs::path& userData) {
    std::error_code error;
    if (fs::is_directory(SafeFile::FindIgnoringCase(programFolder, "Flosses"), error)) {
        return programFolder;
    }
    if (fs::is_directory(installedData, error)) {
        AddMissing(installedData, userData);
    }
    return userData;
}

fs::path UserDataFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return PathOf(folder.toStdString()) / "korvanta";
}

} // namespace zol::AppPath
