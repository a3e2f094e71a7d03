// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PagePicture.h"

#include <QImageWriter>

#include "model/Rounding.h"
#include "model/RunTimeError.h"
#include "print/KeptRange.h"
#include "print/PageDevice.h"
#include "print/Paper.h"
#include "print/PrintJob.h"
#include "print/basExport.h"

namespace zol {

namespace {

constexpr double InchesPerMetre = 1 / 0.0254;

} // namespace

PagePicture PaintPage(PrintFuncs& job, int page, int dotsPerInch, ProgressDoor* progress) {
    const Paper without{QPageSize(QPageSize::A4)};
    const PageDevice* paper = job.Printer() != nullptr ? job.Printer() : &without;
    ImagePageDevice device(paper->Width(), paper->Height(), dotsPerInch);
    if (device.Image().isNull()) {
        return {{}, RunTimeErrorText(ErrOutOfMemory)};
    }
    const KeptRange kept(job);
    job.SetRange({page, page, page, job.Range().KeyOnly});
    PrintJob painting(job, device, progress);
    if (painting.Run() != PrintJob::State::Done) {
        return {{}, painting.ErrorText()};
    }
    QImage image = device.Image();
    const int dotsPerMetre = RoundToInt(dotsPerInch * InchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return {image, {}};
}

WholeFileResult SavePagePicture(const QImage& page, const std::filesystem::path& file) {
    const bool isPng = PictureFormatOf(file) == PictureFormat::Png;
    return WriteWholeFile(file, [&](CheckedOutput& output) {
        return QImageWriter(&output, isPng ? "PNG" : "BMP").write(page);
    });
}

} // namespace zol
