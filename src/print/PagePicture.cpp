// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PagePicture.h"

#include <QImageWriter>

#include <cstdint>

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
/// With fewer dots to the inch a square of a chart is but a few dots wide.
constexpr int FewDots = 80;
constexpr int DotsOfAFinerPage = 160;
/// A page of A3 has fewer then; larger paper is painted less fine rather than fill the memory.
constexpr std::int64_t MostPixels = 8'000'000;

void SetResolution(QImage& image, int dotsPerInch) {
    const int dotsPerMetre = RoundToInt(dotsPerInch * InchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
}

const PageDevice* PaperOf(const PrintFuncs& job, const Paper& without) {
    return job.Printer() != nullptr ? job.Printer() : &without;
}

} // namespace

PagePicture PaintPage(PrintFuncs& job, int page, int dotsPerInch, ProgressDoor* progress) {
    const Paper without{QPageSize(QPageSize::A4)};
    const PageDevice* paper = PaperOf(job, without);
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
    SetResolution(image, dotsPerInch);
    return {image, {}};
}

PagePicture PaintShownPage(PrintFuncs& job, int page, int dotsPerInch, ProgressDoor* progress) {
    if (dotsPerInch <= 0 || dotsPerInch >= FewDots) {
        return PaintPage(job, page, dotsPerInch, progress);
    }
    const Paper without{QPageSize(QPageSize::A4)};
    const PageDevice* paper = PaperOf(job, without);
    const QSize size = ImagePageDevice(paper->Width(), paper->Height(), dotsPerInch).Image().size();
    const std::int64_t pixels = std::int64_t{size.width()} * size.height();
    int finer = (DotsOfAFinerPage + dotsPerInch - 1) / dotsPerInch;
    while (finer > 1 && pixels * finer * finer > MostPixels) {
        --finer;
    }
    PagePicture picture = PaintPage(job, page, dotsPerInch * finer, progress);
    if (!picture.Image.isNull()) {
        picture.Image = picture.Image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        SetResolution(picture.Image, dotsPerInch);
    }
    return picture;
}

WholeFileResult SavePagePicture(const QImage& page, const std::filesystem::path& file) {
    const bool isPng = PictureFormatOf(file) == PictureFormat::Png;
    return WriteWholeFile(file, [&](CheckedOutput& output) {
        return QImageWriter(&output, isPng ? "PNG" : "BMP").write(page);
    });
}

} // namespace zol
