// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/basExport.h"

#include <QBuffer>
#include <QPainter>

#include <gtest/gtest.h>

#include "grid/painting/GridPainter.h"
#include "model/RunTimeError.h"
#include "print/PdfReading.h"
#include "print/PrintScene.h"
#include "settings/Options.h"
#include "support/RecordingDoors.h"

namespace zol::test {

namespace {

constexpr Colour Red = MakeColour(200, 10, 20);

class ExportTest : public ::testing::Test {
protected:
    ExportTest() {
        options.ClothColor = 0xFFFFFF;
        options.NormalGLColor = 0x808080;
        PrintScene::AddFloss(*pattern, Red, "310", 1, "!");
    }
    [[nodiscard]] PatternPicture Picture() const { return Picture({1, 1, 999, 999}); }
    [[nodiscard]] PatternPicture Picture(const SquareRect& squares) const {
        return settings.PictureOf(*pattern, squares, options);
    }
    /// Stitches, part stitches, knots and lines over all of the pattern.
    void Fill() {
        for (int x = 1; x <= pattern->GetPatternWidth(); ++x) {
            for (int y = 1; y <= pattern->GetPatternHeight(); ++y) {
                if ((x * 7 + y * 3) % 5 != 0) {
                    pattern->SetStitch(x, y, (x + y) % 3 == 0 ? StitchUL3Q : StitchWhole, 1, 5);
                }
            }
        }
        pattern->SetStitch(3, 3, StitchFKnot, 1, 1);
        BackStitchLine line;
        line.StartX = line.StartY = 1;
        line.EndX = static_cast<std::int16_t>(pattern->GetPatternWidth());
        line.EndY = static_cast<std::int16_t>(pattern->GetPatternHeight());
        line.StartPos = line.EndPos = 5;
        line.PaletteIndex = 1;
        pattern->SetBackstitchLine(line);
    }

    PrintScene scene;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(12, 8);
    Options options;
    basExport settings;
};

std::string Bytes(const PatternPicture& picture, PictureFormat format) {
    QBuffer buffer;
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    EXPECT_TRUE(WritePicture(picture, {}, format, buffer, nullptr));
    return buffer.data().toStdString();
}

} // namespace

TEST_F(ExportTest, AZoomOfOneIsAPixelASquare) {
    pattern->SetStitch(2, 3, StitchWhole, 1, 5);
    settings.ExportZoom = 1;
    const QImage image = Picture().Raster(nullptr);
    ASSERT_EQ(image.size(), QSize(12, 8));
    for (int x = 0; x < 12; ++x) {
        for (int y = 0; y < 8; ++y) {
            const QRgb expected = x == 1 && y == 2 ? qRgb(200, 10, 20) : qRgb(255, 255, 255);
            EXPECT_EQ(image.pixel(x, y), expected) << x << "," << y;
        }
    }
}

TEST_F(ExportTest, AnOblongClothHasOblongSquares) {
    pattern = scene.MakePattern(4, 6, 14, 18);
    settings.ExportZoom = 10;
    EXPECT_EQ(Picture().Width(), 40);
    EXPECT_EQ(Picture().Height(), 6 * 8); // 10 x 14 / 18 rounds to 8
    EXPECT_EQ(Picture().Raster(nullptr).size(), QSize(40, 48));
}

TEST_F(ExportTest, ASelectionIsThatPieceOfTheWhole) {
    Fill();
    settings.ExportZoom = 9;
    settings.ExportGridlines = true;
    const QImage whole = Picture().Raster(nullptr);
    const QImage piece = Picture({3, 2, 7, 5}).Raster(nullptr);
    EXPECT_EQ(piece, whole.copy(2 * 9, 9, 5 * 9, 4 * 9));
    // A box that reaches over the edge is cut.
    EXPECT_EQ(Picture({11, 7, 40, 40}).Raster(nullptr), whole.copy(90, 54, 18, 18));
    EXPECT_FALSE(Picture({20, 20, 30, 30}).IsPossible());
}

TEST_F(ExportTest, PaintingInStepsIsPaintingAtOnce) {
    pattern = scene.MakePattern(300, 300);
    PrintScene::AddFloss(*pattern, Red, "310", 1, "!");
    Fill();
    settings.ExportZoom = 12;
    settings.ExportGridlines = true;
    RecordingProgress progress;
    const QImage stepped = Picture().Raster(&progress);
    ASSERT_GT(progress.updates.size(), 5U);
    EXPECT_EQ(progress.updates.back(), 3600);
    EXPECT_EQ(progress.stopped, 1);
    GridView view;
    view.Source = pattern.get();
    view.Scale = GridScale::ForPicture(12, 14, 14);
    view.Options = Picture().Paint;
    QImage whole(3600, 3600, QImage::Format_RGB32);
    GridPainter().PaintImage(whole, {}, view, view.Everything());
    EXPECT_EQ(stepped, whole);
}

TEST_F(ExportTest, ShapesInStepsCutNoKnot) {
    pattern = scene.MakePattern(20, 6000); // so tall that each column is a step of its own
    PrintScene::AddFloss(*pattern, Red, "310", 1, "!");
    PrintScene::AddFloss(*pattern, MakeColour(20, 60, 200), "796", 2, "!");
    for (int x = 1; x <= 20; ++x) {
        for (int y = 1; y <= 20; ++y) {
            pattern->SetStitch(x, y, StitchWhole, 1, 5);
        }
    }
    for (int position = 1; position <= 9; ++position) {
        scene.context.FrenchKnotStyle = static_cast<std::uint8_t>(position % 5);
        pattern->SetStitch(2 * position, 2 * position, StitchFKnot, 2, position);
    }
    settings.ExportZoom = 12;
    const auto shapes = [](const PatternPicture& picture, ProgressDoor* progress) {
        QImage image(240, 240, QImage::Format_RGB32);
        QPainter painter(&image);
        EXPECT_TRUE(picture.PaintShapes(painter, progress));
        return image;
    };
    RecordingProgress progress;
    const QImage stepped = shapes(Picture({1, 1, 20, 6000}), &progress);
    EXPECT_EQ(progress.updates.size(), 20U);
    EXPECT_EQ(stepped, shapes(Picture({1, 1, 20, 20}), nullptr)); // few squares: one step
}

TEST_F(ExportTest, CancelGivesNoPictureAndNoFile) {
    pattern = scene.MakePattern(300, 300);
    settings.ExportZoom = 12;
    RecordingProgress progress;
    progress.cancelAfter = 1;
    EXPECT_TRUE(Picture().Raster(&progress).isNull());
    EXPECT_EQ(progress.asked, 2);
    EXPECT_EQ(progress.stopped, 1);
    for (const char* name : {"a.bmp", "a.png", "a.svg", "a.pdf"}) {
        progress.asked = 0;
        progress.cancelAfter = 1;
        EXPECT_EQ(SavePicture(Picture(), {}, scene.Path(name), &progress), WholeFileResult())
            << name;
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(scene.Folder()), {}), 1);
}

TEST_F(ExportTest, CancelWhileAPaintedPictureIsSavedLeavesTheOldFile) {
    const QImage painted = Picture().Raster(nullptr);
    for (const char* name : {"a.bmp", "a.png"}) {
        WriteFile(scene.Path(name), "old");
        RecordingProgress progress;
        progress.cancelAfter = 0;
        EXPECT_EQ(SavePicture(Picture(), painted, scene.Path(name), &progress), WholeFileResult());
        EXPECT_EQ(ReadFile(scene.Path(name)), "old");
        EXPECT_TRUE(SavePicture(Picture(), painted, scene.Path(name), nullptr).IsWritten);
    }
}

TEST_F(ExportTest, WhatNoMemoryHoldsIsRefusedBeforeItIsAskedFor) {
    settings.ExportZoom = 2'000'000'000;
    EXPECT_FALSE(Picture().IsPossible());
    EXPECT_THROW((void)Picture().Raster(nullptr), RunTimeError);
    settings.ExportZoom = 20000; // 240,000 by 160,000 pixels
    EXPECT_FALSE(Picture().IsPossible());
    EXPECT_THROW((void)SavePicture(Picture(), {}, scene.Path("a.svg"), nullptr), RunTimeError);
    settings.ExportZoom = 0;
    EXPECT_FALSE(Picture().IsPossible());
    settings.ExportZoom = 10;
    EXPECT_TRUE(Picture().IsPossible());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(scene.Folder()), {}), 1);
}

TEST_F(ExportTest, ABitmapIsReadByHand) {
    pattern = scene.MakePattern(2, 1);
    PrintScene::AddFloss(*pattern, Red, "310", 1, "!");
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    settings.ExportZoom = 1;
    const std::string expected("BM\x3e\0\0\0\0\0\0\0\x36\0\0\0" // 62 bytes, pixels at 54
                               "\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0" // 2 by 1, 24 bits
                               "\0\0\0\0\x08\0\0\0\xc4\x0e\0\0\xc4\x0e\0\0" // 3780 dots a metre
                               "\0\0\0\0\0\0\0\0"
                               "\x14\x0a\xc8\xff\xff\xff\0\0", // blue, green, red; padded to 8
                               62);
    EXPECT_EQ(Bytes(Picture(), PictureFormat::Bmp), expected);
}

TEST_F(ExportTest, EveryFormatComesBackAsThePicture) {
    Fill();
    settings.ExportZoom = 9;
    const QImage picture = Picture().Raster(nullptr);
    for (const char* name : {"a.bmp", "A.PNG"}) {
        const auto path = scene.Path(name);
        EXPECT_EQ(SavePicture(Picture(), picture, path, nullptr), (WholeFileResult{0, true}));
        EXPECT_EQ(QImage(QString::fromStdString(path.string())).convertToFormat(picture.format()),
                  picture)
            << name;
    }
    EXPECT_EQ(ReadFile(scene.Path("A.PNG")).substr(0, 8), "\x89PNG\r\n\x1a\n");
}

TEST_F(ExportTest, ThePdfIsOnePageOfShapes) {
    Fill();
    const auto path = scene.Path("a.pdf");
    ASSERT_TRUE(SavePicture(Picture(), {}, path, nullptr).IsWritten);
    EXPECT_EQ(PdfPageCount(path), 1);
    EXPECT_FALSE(HasImages(path));
    // 120 by 80 pixels, 96 an inch.
    EXPECT_TRUE(OutputOf(QStringLiteral("pdfinfo"), {QString::fromStdString(path.string())})
                    .contains(QStringLiteral("90 x 60 pts")));
}

TEST_F(ExportTest, StylesStandInTheListsOrder) {
    const auto styles = ExportStyles("Colour");
    ASSERT_EQ(styles.size(), 5U);
    EXPECT_EQ(styles[0].Text, "Coloured Squares");
    EXPECT_EQ(styles[1].Text, "Coloured Stitches");
    EXPECT_EQ(styles[2].Text, "B&W Symbols");
    EXPECT_EQ(styles[3].Text, "Coloured Symbols");
    EXPECT_EQ(styles[4].Text, "Blocks & Symbols");
    std::vector<int> values;
    for (const auto& style : styles) {
        values.push_back(style.Value);
        settings.ExportDisplayAs = style.Value;
        EXPECT_EQ(Picture().Paint.StitchStyle, style.Value == 5 ? ShowVStitches : style.Value);
        EXPECT_EQ(Picture().Paint.Target, TargetPicture);
    }
    EXPECT_EQ(values, (std::vector<int>{1, 5, 2, 3, 4}));
}

TEST_F(ExportTest, TheProposalEndsAtTheFirstPoint) {
    EXPECT_EQ(ExportProposal("/patterns/v1.2/my.cat.pat"), "my");
    EXPECT_EQ(ExportProposal("rose"), "rose");
    EXPECT_EQ(ExportProposal(""), "");
}

TEST_F(ExportTest, AFailureLeavesTheOldFileAndNothingElse) {
    WriteFile(scene.Path("old.bmp"), "old");
    EXPECT_EQ(SavePicture(Picture(), {}, "/dev/full", nullptr).Number, ErrDiskFull);
    EXPECT_EQ(SavePicture(Picture(), {}, scene.Path("none/a.bmp"), nullptr).Number,
              ErrPathNotFound);
    EXPECT_EQ(SavePicture(Picture(), {}, scene.Path("old.bmp/a.png"), nullptr).IsWritten, false);
    std::filesystem::create_directory(scene.Path("folder.bmp"));
    EXPECT_EQ(SavePicture(Picture(), {}, scene.Path("folder.bmp"), nullptr).Number, ErrPathAccess);
    settings.ExportZoom = 0;
    EXPECT_THROW((void)SavePicture(Picture(), {}, scene.Path("old.bmp"), nullptr), RunTimeError);
    EXPECT_EQ(ReadFile(scene.Path("old.bmp")), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(scene.Folder()), {}), 3);
}

} // namespace zol::test
