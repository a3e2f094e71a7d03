// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QGuiApplication>
#include <QTextDocument>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "print/RTFFuncs.h"

using namespace zol;

namespace {

std::string ReadAndWritten(const std::string& rtf) {
    QTextDocument document;
    RTFFuncs::LoadRichText(document, rtf);
    return RTFFuncs::SaveRichText(document);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv); // fonts need one
    return 0;
}

/// What was read is written, and from then on reads the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string once = ReadAndWritten(std::string(reinterpret_cast<const char*>(data), size));
    if (ReadAndWritten(once) != once) {
        std::abort();
    }
    return 0;
}
