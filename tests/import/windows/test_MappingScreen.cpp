// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractItemModel>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <filesystem>
#include <memory>

#include "import/SampleCatalogue.h"
#include "import/windows/DeskKit.h"
#include "import/windows/MappingScreen.h"
#include "import/windows/PictureViewKit.h"
#include "support/DialogHands.h"
#include "support/TempFolder.h"
#include "windowkit/JobStatus.h"

using namespace zol;
using namespace zol::test;

namespace {

constexpr Colour Red = MakeColour(200, 0, 0);
constexpr Colour Green = MakeColour(0, 200, 0);
constexpr Colour Blue = MakeColour(0, 0, 200);

using Texts = std::vector<std::string>;

} // namespace

class TestMappingScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ListsCataloguesAndPalettes();
    void NothingChosenIsSaidInWords();
    void AFamilyProposesAtMostFiftyColors();
    void APaletteProposesItsCountWithTheFieldShut();
    void APaletteOfNoEntriesGivesZeroAndNextWarns();
    void TwoHundredAndOneIsTooMany();
    void WithTheEditBoxThePatternsPaletteIsTheLeast();
    void WithTheEditBoxASavedPaletteAddsThePatternsCount();
    void AFileThatCannotBeReadIsNotChosen();
    void TheButtonShowsThePreviewAndItsFlosses();
    void ThePreviewComesByItselfWhereItIsFast();
    void APreviewGoesWhenOtherFlossesAreChosen();
    void CancelKeepsTheOldPreview();
    void AnOutdatedPreviewNeverLands();
    void FinishWorksWithoutAPreview();
    void ANumberTypedAfterThePreviewCounts();
    void AStitchIsAsLargeAsOnTheCloth();
    void ComingAgainTakesTheNewPicture();
    void TheFlossesSortByAnyColumn();
    void ErasedSquaresShowTheCloth();
    void BothPicturesShowTheSamePlaceWhenAPreviewComesAndGoes();

private:
    void ShowScreen();
    void Come(std::shared_ptr<Picture> picture);
    void ChooseLine(const QString& text);
    void PickPalette() { ClickIn(*m_window, "optPalette"); }
    void WritePalette(const char* file, int entries);
    void UseEditBoxWith(int flosses);
    [[nodiscard]] QString MaxColors();
    [[nodiscard]] QString Cell(int row, int column);
    [[nodiscard]] const Picture& Shown() {
        return *PartOf<PictureView>(*m_window, "lpicPreviewPattern").Shown();
    }

    std::unique_ptr<TempFolder> m_folder;
    std::unique_ptr<DeskKit> m_kit;
    std::unique_ptr<QDialog> m_window;
    MappingScreen* m_screen = nullptr;
};

void TestMappingScreen::init() {
    m_folder = std::make_unique<TempFolder>();
    m_kit = std::make_unique<DeskKit>();
    m_kit->Context.AppPath = m_folder->Path();
    QVERIFY(WriteCatalogue(m_kit->Context, "few.col", "Few Threads", {Red, Green, Blue}));
    std::vector<Colour> many;
    for (unsigned i = 0; i < 60; ++i) {
        many.push_back(MakeColour(4 * i, 255 - 4 * i, 100));
    }
    QVERIFY(WriteCatalogue(m_kit->Context, "many.col", "Many Threads", many));
    ShowScreen();
    auto picture = std::make_shared<Picture>(4, 1);
    picture->Pixels() = {Red, Blue, EraseColor, Red};
    Come(picture);
}

void TestMappingScreen::cleanup() {
    m_window.reset();
    m_kit.reset();
    m_folder.reset();
}

void TestMappingScreen::ShowScreen() {
    m_window = std::make_unique<QDialog>();
    m_screen = new MappingScreen(m_kit->Desk, m_window.get());
    auto* layout = new QVBoxLayout(m_window.get());
    layout->addWidget(m_screen);
    m_window->resize(1000, 560);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestMappingScreen::Come(std::shared_ptr<Picture> picture) {
    m_kit->Work.TheImage = std::move(picture);
    m_screen->DisplayScreen(false);
}

void TestMappingScreen::WritePalette(const char* file, int entries) {
    Palette palette = Palette::Empty(m_kit->Context);
    for (int i = 1; i <= entries; ++i) {
        palette.AddPaletteEntry(MakeColour(unsigned(i), 0, 0), std::to_string(i), "thread", "Mill",
                                std::string(1, char('A' + i)), 2, 1, i, i, 0, "The Mill");
    }
    QCOMPARE(palette.SaveToDisk(m_folder->Path() / file), 0);
}

void TestMappingScreen::UseEditBoxWith(int flosses) {
    Palette palette = Palette::Empty(m_kit->Context);
    for (int i = 1; i <= flosses; ++i) {
        palette.AddPaletteEntry(MakeColour(0, unsigned(i), 0), std::to_string(i), "own", "Own",
                                std::string(1, char('a' + i)), 2, 1, i, i, 0, "Own");
    }
    m_kit->Design.GetPalette() = palette;
    m_kit->Work.UseEditBox = true;
    m_kit->Work.EditBox = SquareRect{3, 4, 6, 4};
    m_screen->DisplayScreen(false);
}

/// With the keyboard, as far down as needed.
void TestMappingScreen::ChooseLine(const QString& text) {
    auto& box = PartOf<QComboBox>(*m_window, "cmbFlossFamily");
    const int line = box.findText(text);
    QVERIFY2(line >= 0, qPrintable(text));
    box.setFocus();
    while (box.currentIndex() != line) {
        QTest::keyClick(&box, box.currentIndex() < line ? Qt::Key_Down : Qt::Key_Up);
    }
}

QString TestMappingScreen::MaxColors() {
    return PartOf<QLineEdit>(*m_window, "txtMaxColors").text();
}

QString TestMappingScreen::Cell(int row, int column) {
    const auto& model = *PartOf<QTreeView>(*m_window, "lstFlosses").model();
    return model.index(row, column).data().toString();
}

void TestMappingScreen::ListsCataloguesAndPalettes() {
    const auto& box = PartOf<QComboBox>(*m_window, "cmbFlossFamily");
    QCOMPARE(box.count(), 2);
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(MaxColors(), QStringLiteral("30"));
    const auto plain = [this](const char* name) {
        return PartOf<QLabel>(*m_window, name).text().remove(QLatin1Char('&'));
    };
    QCOMPARE(plain("lblFlossType"), QStringLiteral("Floss Family"));
    WritePalette("Mill.fls", 2);
    PickPalette();
    QCOMPARE(plain("lblFlossType"), QStringLiteral("Floss Palette"));
    QCOMPARE(box.itemText(0), QStringLiteral("Current Palette"));
    QCOMPARE(box.itemText(1), QStringLiteral("Mill.fls"));
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(PartOf<QPushButton>(*m_window, "cmdPreviewPattern").text(),
             QStringLiteral("Pre&view Pattern"));
}

void TestMappingScreen::NothingChosenIsSaidInWords() {
    QVERIFY(!m_screen->ValidateScreen());
    QVERIFY(PartOf<QComboBox>(*m_window, "cmbFlossFamily").hasFocus());
    PickPalette();
    QVERIFY(!m_screen->ValidateScreen());
    QCOMPARE(m_kit->User.ToldTexts(), (Texts{"You must select a floss family to import.",
                                             "You must select a floss palette to import."}));
}

void TestMappingScreen::AFamilyProposesAtMostFiftyColors() {
    ChooseLine(QStringLiteral("Few Threads"));
    QCOMPARE(MaxColors(), QStringLiteral("3"));
    ChooseLine(QStringLiteral("Many Threads"));
    QCOMPARE(MaxColors(), QStringLiteral("50"));
    QVERIFY(PartOf<QLineEdit>(*m_window, "txtMaxColors").isEnabled());
}

void TestMappingScreen::APaletteProposesItsCountWithTheFieldShut() {
    WritePalette("Mill.fls", 2);
    PickPalette();
    QVERIFY(!PartOf<QLineEdit>(*m_window, "txtMaxColors").isEnabled());
    QVERIFY(!PartOf<QLabel>(*m_window, "lblMaxColors").isEnabled());
    ChooseLine(QStringLiteral("Mill.fls"));
    QCOMPARE(MaxColors(), QStringLiteral("2"));
    ChooseLine(QStringLiteral("Current Palette"));
    QCOMPARE(MaxColors().toInt(), m_kit->Design.GetPalette().GetEntriesCount());
    ClickIn(*m_window, "optFlossList");
    QVERIFY(PartOf<QLineEdit>(*m_window, "txtMaxColors").isEnabled());
    QCOMPARE(PartOf<QComboBox>(*m_window, "cmbFlossFamily").currentIndex(), -1);
}

void TestMappingScreen::APaletteOfNoEntriesGivesZeroAndNextWarns() {
    WritePalette("Empty.fls", 0);
    PickPalette();
    ChooseLine(QStringLiteral("Empty.fls"));
    QCOMPARE(MaxColors(), QStringLiteral("0"));
    QVERIFY(!m_screen->ValidateScreen());
    QCOMPARE(m_kit->User.ToldTexts(), Texts{"Pattern must contain at least one color"});
}

void TestMappingScreen::TwoHundredAndOneIsTooMany() {
    ChooseLine(QStringLiteral("Few Threads"));
    TypeIn(*m_window, "txtMaxColors", QStringLiteral("201"));
    PartOf<QPushButton>(*m_window, "cmdPreviewPattern").setFocus();
    QVERIFY(!m_screen->ValidateScreen());
    QCOMPARE(m_kit->User.ToldTexts(), Texts{"Pattern can contain no more than 200 colors"});
    QVERIFY(PartOf<QLineEdit>(*m_window, "txtMaxColors").hasFocus());
    TypeIn(*m_window, "txtMaxColors", QStringLiteral("200"));
    QVERIFY(m_screen->ValidateScreen());
    QCOMPARE(m_kit->Work.MaxColors, 200);
}

void TestMappingScreen::WithTheEditBoxThePatternsPaletteIsTheLeast() {
    ChooseLine(QStringLiteral("Few Threads"));
    UseEditBoxWith(5);
    TypeIn(*m_window, "txtMaxColors", QStringLiteral("4"));
    QVERIFY(!m_screen->ValidateScreen());
    QCOMPARE(m_kit->User.ToldTexts(),
             Texts{"You must import to at least the 5 colors in your current palette"});
    QCOMPARE(MaxColors(), QStringLiteral("5"));
    QVERIFY(m_screen->ValidateScreen());
}

void TestMappingScreen::WithTheEditBoxASavedPaletteAddsThePatternsCount() {
    WritePalette("Mill.fls", 2);
    UseEditBoxWith(5);
    PickPalette();
    ChooseLine(QStringLiteral("Mill.fls"));
    QCOMPARE(MaxColors(), QStringLiteral("7"));
    ChooseLine(QStringLiteral("Current Palette"));
    QCOMPARE(MaxColors(), QStringLiteral("5"));
}

void TestMappingScreen::AFileThatCannotBeReadIsNotChosen() {
    WriteFile(*m_folder / "Bad.fls", "nothing of the kind");
    PickPalette();
    ChooseLine(QStringLiteral("Current Palette"));
    auto& box = PartOf<QComboBox>(*m_window, "cmbFlossFamily");
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(m_kit->User.ToldTexts(), Texts{"Invalid File Format"});
    QCOMPARE(box.currentIndex(), -1);
}

void TestMappingScreen::TheButtonShowsThePreviewAndItsFlosses() {
    ChooseLine(QStringLiteral("Few Threads"));
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_COMPARE(Shown().Pixels(), (std::vector<Colour>{Red, Blue, EraseColor, Red}));
    QCOMPARE(PartOf<QTreeView>(*m_window, "lstFlosses").model()->rowCount(), 2);
    QCOMPARE(Cell(0, 0), QStringLiteral("1")); // the most stitches first
    QCOMPARE(Cell(0, 1), QStringLiteral("floss 1"));
    QCOMPARE(Cell(0, 2), QStringLiteral("2"));
    QCOMPARE(Cell(1, 0), QStringLiteral("3"));
    QCOMPARE(Cell(1, 2), QStringLiteral("1"));
    QCOMPARE(PartOf<QLabel>(*m_window, "lblFlossesUsed").text(),
             QStringLiteral("Flosses used: 2, stitches: 3"));
    QCOMPARE(PartOf<PictureView>(*m_window, "lpicMappedImage").Shown(), m_kit->Work.TheImage);
}

void TestMappingScreen::ThePreviewComesByItselfWhereItIsFast() {
    ChooseLine(QStringLiteral("Few Threads"));
    QVERIFY(Shown().IsEmpty());
    QTRY_COMPARE(Shown().ImageWidth(), 4);
    TypeIn(*m_window, "txtMaxColors", QStringLiteral("1"));
    QTRY_COMPARE(PartOf<QTreeView>(*m_window, "lstFlosses").model()->rowCount(), 1);
    QVERIFY(m_kit->User.told.empty());
    TypeIn(*m_window, "txtMaxColors", QStringLiteral("999"));
    QTest::keyClick(&PartOf<QLineEdit>(*m_window, "txtMaxColors"), Qt::Key_Backspace);
    QTRY_COMPARE(PartOf<QTreeView>(*m_window, "lstFlosses").model()->rowCount(), 2); // 99
    QVERIFY(m_kit->User.told.empty());
}

void TestMappingScreen::APreviewGoesWhenOtherFlossesAreChosen() {
    ChooseLine(QStringLiteral("Few Threads"));
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_VERIFY(!Shown().IsEmpty());
    ChooseLine(QStringLiteral("Many Threads"));
    QVERIFY(Shown().IsEmpty());
    QVERIFY(m_kit->Work.Session.Preview().IsEmpty());
    QCOMPARE(PartOf<QTreeView>(*m_window, "lstFlosses").model()->rowCount(), 0);
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_VERIFY(!Shown().IsEmpty());
    PickPalette();
    QVERIFY(Shown().IsEmpty());
}

void TestMappingScreen::CancelKeepsTheOldPreview() {
    Come(PlacePicture(1200, 1000)); // too large to be previewed without the button
    ChooseLine(QStringLiteral("Many Threads"));
    TypeIn(*m_window, "txtMaxColors", QStringLiteral("20"));
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_VERIFY_WITH_TIMEOUT(!Shown().IsEmpty(), 30000);
    const SharedPicture before = PartOf<PictureView>(*m_window, "lpicPreviewPattern").Shown();
    const auto flosses = m_kit->Work.Session.PreviewFlosses();
    TypeIn(*m_window, "txtMaxColors", QStringLiteral("2"));
    ClickIn(*m_window, "cmdPreviewPattern");
    auto& status = PartOf<JobStatus>(*m_window, "picStatus");
    status.StartStatus({}, 0); // as it comes up by itself when the work takes longer
    QTest::mouseClick(&PartOf<QPushButton>(*m_window, "cmdCancelStatus"), Qt::LeftButton);
    QVERIFY(!status.isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(PartOf<PictureView>(*m_window, "lpicPreviewPattern").Shown(), before);
    QCOMPARE(m_kit->Work.Session.PreviewPicture(), before);
    QVERIFY(m_kit->Work.Session.PreviewFlosses() == flosses);
}

void TestMappingScreen::AnOutdatedPreviewNeverLands() {
    Come(PlacePicture(900, 900));
    ChooseLine(QStringLiteral("Many Threads"));
    ClickIn(*m_window, "cmdPreviewPattern");
    ChooseLine(QStringLiteral("Few Threads")); // the first is on its way
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_VERIFY_WITH_TIMEOUT(!Shown().IsEmpty(), 30000);
    const auto& pixels = Shown().Pixels();
    QVERIFY(std::all_of(pixels.begin(), pixels.end(), [](Colour colour) {
        return colour == Red || colour == Green || colour == Blue;
    }));
}

void TestMappingScreen::FinishWorksWithoutAPreview() {
    ChooseLine(QStringLiteral("Few Threads"));
    QVERIFY(m_screen->ValidateScreen());
    QVERIFY(m_kit->Work.Session.Preview().IsEmpty());
    QVERIFY(m_kit->Work.Session.CreateThePattern(m_kit->Design, m_kit->Work.MaxColors, 14, 14)
                .IsDone());
    QCOMPARE(m_kit->Design.GetPatternWidth(), 4);
    QCOMPARE(m_kit->Work.Session.Figures().Stitches, 3);
}

void TestMappingScreen::ANumberTypedAfterThePreviewCounts() {
    ChooseLine(QStringLiteral("Few Threads"));
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_VERIFY(!Shown().IsEmpty());
    QVERIFY(m_screen->ValidateScreen());
    QVERIFY(!m_kit->Work.Session.Preview().IsEmpty()); // its number is the field's
    TypeIn(*m_window, "txtMaxColors", QStringLiteral("1"));
    QVERIFY(m_screen->ValidateScreen());
    QVERIFY(m_kit->Work.Session.CreateThePattern(m_kit->Design, m_kit->Work.MaxColors, 14, 14)
                .IsDone());
    QCOMPARE(m_kit->Design.GetPalette().GetEntriesCount(), 1);
}

void TestMappingScreen::AStitchIsAsLargeAsOnTheCloth() {
    m_kit->Work.Size.ClothCountX = 12;
    m_kit->Work.Size.ClothCountY = 24;
    Come(PlainPicture(10, 20, Red));
    const auto& view = PartOf<PictureView>(*m_window, "lpicMappedImage");
    QCOMPARE(view.Zoom(), 100.0);
    const double inch = view.logicalDpiX() * view.devicePixelRatioF();
    QVERIFY(std::abs(view.Place().Content.width() - 10 * inch / 12) < 1);
    QVERIFY(std::abs(view.Place().Content.height() - 20 * inch / 24) < 1);
}

void TestMappingScreen::ComingAgainTakesTheNewPicture() {
    ChooseLine(QStringLiteral("Few Threads"));
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_VERIFY(!Shown().IsEmpty());
    Come(PlainPicture(3, 2, Green));
    QVERIFY(Shown().IsEmpty());
    QCOMPARE(MaxColors(), QStringLiteral("3"));
    QTRY_COMPARE(Shown().ImageWidth(), 3);
}

void TestMappingScreen::TheFlossesSortByAnyColumn() {
    ChooseLine(QStringLiteral("Few Threads"));
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_COMPARE(PartOf<QTreeView>(*m_window, "lstFlosses").model()->rowCount(), 2);
    auto& header = *PartOf<QTreeView>(*m_window, "lstFlosses").header();
    const auto clickColumn = [&header](int column) {
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(header.sectionViewportPosition(column) + 6, header.height() / 2));
    };
    clickColumn(2); // was sorted down
    QCOMPARE(Cell(0, 2), QStringLiteral("1"));
    clickColumn(0);
    clickColumn(0);
    const bool down = header.sortIndicatorOrder() == Qt::DescendingOrder;
    QCOMPARE(Cell(0, 0), down ? QStringLiteral("3") : QStringLiteral("1"));
}

void TestMappingScreen::ErasedSquaresShowTheCloth() {
    m_kit->Settings.ClothColor = MakeColour(10, 220, 240);
    ShowScreen();
    m_screen->DisplayScreen(false);
    ChooseLine(QStringLiteral("Few Threads"));
    ClickIn(*m_window, "cmdPreviewPattern");
    auto& view = PartOf<PictureView>(*m_window, "lpicPreviewPattern");
    QTRY_VERIFY(!Shown().IsEmpty());
    const QImage shot = Shot(view);
    QCOMPARE(ShownAt(view, shot, {2, 0}), OnScreen(m_kit->Settings.ClothColor));
    QCOMPARE(ShownAt(view, shot, {0, 0}), OnScreen(Red));
}

void TestMappingScreen::BothPicturesShowTheSamePlaceWhenAPreviewComesAndGoes() {
    Come(PlacePicture(200, 200));
    auto& before = *PartOf<PictureView>(*m_window, "lpicMappedImage").verticalScrollBar();
    auto& preview = *PartOf<PictureView>(*m_window, "lpicPreviewPattern").verticalScrollBar();
    QTRY_VERIFY(before.maximum() > 300);
    before.setValue(300);
    ChooseLine(QStringLiteral("Few Threads"));
    ClickIn(*m_window, "cmdPreviewPattern");
    QTRY_VERIFY(!Shown().IsEmpty());
    QCOMPARE(preview.value(), 300);
    ChooseLine(QStringLiteral("Many Threads")); // the preview goes
    QVERIFY(Shown().IsEmpty());
    QCOMPARE(before.value(), 300);
}

QTEST_MAIN(TestMappingScreen)
#include "test_MappingScreen.moc"
