// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "PictureViewKit.h"
#include "import/windows/ZoomBox.h"
#include "support/DialogHands.h"

namespace zol {

using test::PartOf;

/// A dialog with two views, one box and a default button.
class ZoomScene {
public:
    ZoomScene() {
        auto* layout = new QVBoxLayout(&Dialog);
        Close = new QPushButton(QStringLiteral("Done"), &Dialog);
        Close->setDefault(true);
        QObject::connect(Close, &QPushButton::clicked, &Dialog, &QDialog::accept);
        Box = new ZoomBox(&Dialog);
        View = new PictureView(&Dialog);
        Other = new PictureView(&Dialog);
        for (QWidget* part : std::initializer_list<QWidget*>{Box, View, Other, Close}) {
            layout->addWidget(part);
        }
        View->ShowPicture(test::PlacePicture(2000, 1500));
        Other->ShowPicture(test::PlacePicture(500, 1500));
        Box->Attach(*View);
        Box->Attach(*Other);
        Dialog.resize(400, 600);
        Dialog.show();
        Dialog.activateWindow();
        if (!QTest::qWaitForWindowActive(&Dialog)) {
            qFatal("the dialog does not come up");
        }
    }
    [[nodiscard]] QString Text() { return Combo().currentText(); }
    [[nodiscard]] QComboBox& Combo() { return PartOf<QComboBox>(Dialog, "cmbZoomLevel"); }
    [[nodiscard]] QToolButton& In() { return PartOf<QToolButton>(Dialog, "cmdZoomIn"); }
    [[nodiscard]] QToolButton& Out() { return PartOf<QToolButton>(Dialog, "cmdZoomOut"); }
    void Type(const QString& text) {
        Combo().setFocus();
        Combo().lineEdit()->selectAll();
        QTest::keyClicks(&Combo(), text);
    }

    QDialog Dialog;
    ZoomBox* Box = nullptr;
    PictureView* View = nullptr;
    PictureView* Other = nullptr;
    QPushButton* Close = nullptr;
};

class test_ZoomBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theListIsToFitAndSixZooms();
    void aLineOfTheListIsTaken();
    void aTypedNumberGetsItsSign_data();
    void aTypedNumberGetsItsSign();
    void buttonsStepBy25Points();
    void stepsEndAtTheLimits();
    void aStepFromFittingStartsAtWhatIsShown();
    void enterDoesNotLeaveTheDialogAndEscapeTakesBack();
    void theWheelInAViewShowsAndTheOtherFollows();
};

void test_ZoomBox::theListIsToFitAndSixZooms() {
    ZoomScene scene;
    QStringList items;
    for (int i = 0; i < scene.Combo().count(); ++i) {
        items << scene.Combo().itemText(i);
    }
    const QStringList expected{QStringLiteral("To Fit"), QStringLiteral("10%"),
                               QStringLiteral("25%"),    QStringLiteral("50%"),
                               QStringLiteral("100%"),   QStringLiteral("200%"),
                               QStringLiteral("300%")};
    QCOMPARE(items, expected);
    QCOMPARE(scene.Text(), QStringLiteral("To Fit"));
    QVERIFY(scene.View->IsToFit());
}

void test_ZoomBox::aLineOfTheListIsTaken() {
    ZoomScene scene;
    scene.Combo().setFocus();
    scene.Combo().showPopup();
    QTest::keyClick(scene.Combo().view(), Qt::Key_End);
    QTest::keyClick(scene.Combo().view(), Qt::Key_Return);
    QCOMPARE(scene.Text(), QStringLiteral("300%"));
    QCOMPARE(scene.View->Zoom(), 300.0);
    QCOMPARE(scene.Other->Zoom(), 300.0);
    scene.Combo().showPopup();
    QTest::keyClick(scene.Combo().view(), Qt::Key_Home);
    QTest::keyClick(scene.Combo().view(), Qt::Key_Return);
    QCOMPARE(scene.Text(), QStringLiteral("To Fit"));
    QVERIFY(scene.View->IsToFit());
    QVERIFY(scene.Other->IsToFit());
}

void test_ZoomBox::aTypedNumberGetsItsSign_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<double>("zoom");
    QTest::newRow("a number") << QStringLiteral("60") << QStringLiteral("60%") << 60.0;
    QTest::newRow("too large") << QStringLiteral("99999") << QStringLiteral("3200%") << 3200.0;
    QTest::newRow("nothing") << QStringLiteral("0") << QStringLiteral("50%") << 50.0;
    QTest::newRow("letters do not enter") << QStringLiteral("7x5") << QStringLiteral("75%") << 75.0;
}

void test_ZoomBox::aTypedNumberGetsItsSign() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(double, zoom);
    ZoomScene scene;
    scene.Box->SetZoom(50);
    scene.Type(typed);
    QTest::keyClick(&scene.Combo(), Qt::Key_Return);
    QCOMPARE(scene.Text(), shown);
    QCOMPARE(scene.View->Zoom(), zoom);
    scene.Type(QStringLiteral("40"));
    scene.View->setFocus();
    QCOMPARE(scene.Text(), QStringLiteral("40%"));
    QCOMPARE(scene.View->Zoom(), 40.0);
}

void test_ZoomBox::buttonsStepBy25Points() {
    ZoomScene scene;
    scene.Box->SetZoom(100);
    QTest::mouseClick(&scene.In(), Qt::LeftButton);
    QCOMPARE(scene.Text(), QStringLiteral("125%"));
    QTest::mouseClick(&scene.Out(), Qt::LeftButton);
    QTest::mouseClick(&scene.Out(), Qt::LeftButton);
    QCOMPARE(scene.Text(), QStringLiteral("75%"));
    QCOMPARE(scene.View->Zoom(), 75.0);
}

void test_ZoomBox::stepsEndAtTheLimits() {
    ZoomScene scene;
    scene.Box->SetZoom(25);
    QTest::mouseClick(&scene.Out(), Qt::LeftButton);
    QCOMPARE(scene.Text(), QStringLiteral("10%"));
    QVERIFY(!scene.Out().isEnabled());
    scene.Box->SetZoom(3190);
    QTest::mouseClick(&scene.In(), Qt::LeftButton);
    QCOMPARE(scene.Text(), QStringLiteral("3200%"));
    QVERIFY(!scene.In().isEnabled());
    QVERIFY(scene.Out().isEnabled());
}

void test_ZoomBox::aStepFromFittingStartsAtWhatIsShown() {
    ZoomScene scene;
    const double fits = scene.View->Zoom();
    QTest::mouseClick(&scene.In(), Qt::LeftButton);
    QCOMPARE(scene.View->Zoom(), fits + 25);
    QCOMPARE(scene.Text(), QString::number(qRound(fits + 25)) + QLatin1Char('%'));
}

void test_ZoomBox::enterDoesNotLeaveTheDialogAndEscapeTakesBack() {
    ZoomScene scene;
    scene.Type(QStringLiteral("120"));
    QTest::keyClick(&scene.Combo(), Qt::Key_Return);
    QVERIFY(scene.Dialog.isVisible());
    scene.Type(QStringLiteral("7"));
    QTest::keyClick(&scene.Combo(), Qt::Key_Escape);
    QVERIFY(scene.Dialog.isVisible());
    QCOMPARE(scene.Text(), QStringLiteral("120%"));
    QTest::keyClick(&scene.Combo(), Qt::Key_Escape);
    QVERIFY(!scene.Dialog.isVisible());
}

void test_ZoomBox::theWheelInAViewShowsAndTheOtherFollows() {
    ZoomScene scene;
    scene.Box->SetZoom(100);
    scene.View->SetZoom(150);
    QCOMPARE(scene.Text(), QStringLiteral("150%"));
    QCOMPARE(scene.Other->Zoom(), 150.0);
    scene.Other->ZoomToFit();
    QVERIFY(scene.View->IsToFit());
    QCOMPARE(scene.Text(), QStringLiteral("To Fit"));
}

} // namespace zol

QTEST_MAIN(zol::test_ZoomBox)
#include "test_ZoomBox.moc"
