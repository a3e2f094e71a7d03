// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstdlib>

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QTest>
#include <QWidget>

#include "windowkit/IconFamily.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

QStringList Wanted() {
    return QStringLiteral(
               "about add-rows align-center align-left align-right cancel center-both "
               "center-horizontal center-vertical clear-palette "
               "color-key color-picker copy-to custom-stitches default-palette delete-rows "
               "display-black-symbols display-blocks-symbols display-color-squares "
               "display-color-stitches display-color-symbols display-virtual-stitches draw-editbox "
               "draw-lines draw-stitches draw-text edit-copy edit-cut edit-paste edit-undo erase "
               "erase-selection exit export file-browse file-new file-open file-print file-save "
               "file-save-as flex-backstitch flip-horizontal flip-vertical floss-usage grid-lines "
               "help help-search help-tutorials help-update import insert-library install-font "
               "install-library knot-horizontal knot-normal knot-ul-diagonal knot-ur-diagonal "
               "knot-vertical korvanta library-add library-add-box library-install library-maint "
               "line-dash line-delete line-dots line-plus line-squiggle line-straight line-tracks "
               "load-palette mirror-horizontal mirror-none mirror-vertical more-down more-right "
               "options page-setup "
               "paint "
               "paint-once palette palette-left palette-right paste-from pattern-info "
               "print-preview "
               "refresh rotate-180 rotate-270 rotate-90 rulers save-palette select-all shrink "
               "status-bar stitch-bth stitch-custom stitch-fknot stitch-ll3q stitch-llq "
               "stitch-lr3q "
               "stitch-lrq stitch-s3q stitch-sq stitch-tbh stitch-ul3q stitch-ulq stitch-ur3q "
               "stitch-urq stitch-whole stitched-fonts text-bold text-bullets text-color "
               "text-italic text-underline tips toolbar view-pattern warning zoom "
               "zoom-in "
               "zoom-out zoom-previous zoom-setting zoom-tool")
        .split(QLatin1Char(' '));
}

IconFamily::Tones PlainTones() {
    return {QColor(Qt::black), QColor(0xB2, 0x3A, 0x48), QColor(0x88, 0x88, 0x88)};
}

/// The smallest rectangle of pixels that are more than a breath of ink.
QRect Ink(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 8) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/// Pixel by pixel, whatever ratio the icon is for.
QImage OnGround(QImage icon, const QColor& ground) {
    icon.setDevicePixelRatio(1);
    QImage image(icon.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter(&image).drawImage(0, 0, icon);
    return image;
}

/// Mean distance of two pictures' pixels in a channel, 0 to 255.
double Distance(const QImage& one, const QImage& other) {
    int sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        const uchar* a = one.constScanLine(y);
        const uchar* b = other.constScanLine(y);
        for (int x = 0; x < one.width() * 4; ++x) {
            sum += std::abs(a[x] - b[x]);
        }
    }
    return sum / (3.0 * one.width() * one.height());
}

bool HasColor(const QImage& image, const QColor& color) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color.rgba()) {
                return true;
            }
        }
    }
    return false;
}

void AddRowPerIcon() {
    QTest::addColumn<QString>("name");
    const QStringList names = Wanted();
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

QString Drawing(const QString& name) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class IconFamilyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(Theme::Palette(Theme::Look::Light)); }

    void TheFamilyIsWholeAndHasNothingElse() { QCOMPARE(IconFamily::Names(), Wanted()); }

    void AnUnknownNameGivesANullIcon() {
        QVERIFY(IconFamily::Icon(QStringLiteral("no-such-icon")).isNull());
        QVERIFY(IconFamily::Icon(QString()).isNull());
        QVERIFY(IconFamily::Picture(QStringLiteral("no-such-icon"), 24, PlainTones()).isNull());
    }

    void EachDrawingIsSoundAndUsesOnlyTheTones_data() { AddRowPerIcon(); }
    void EachDrawingIsSoundAndUsesOnlyTheTones() {
        QFETCH(QString, name);
        const QString drawing = Drawing(name);
        QSvgRenderer renderer(drawing.toUtf8());
        QVERIFY(renderer.isValid());
        QCOMPARE(renderer.viewBoxF(), QRectF(0, 0, 24, 24));
        if (name == QLatin1String("korvanta")) {
            return; // has colours of its own
        }
        const QSet<QString> tones{QStringLiteral("#000000"), QStringLiteral("#B23A48"),
                                  QStringLiteral("#888888"), QStringLiteral("none")};
        const QRegularExpression color(QStringLiteral("(?:fill|stroke)=\"([^\"]*)\""));
        auto match = color.globalMatch(drawing);
        QVERIFY(match.hasNext());
        while (match.hasNext()) {
            const QString tone = match.next().captured(1);
            QVERIFY2(tones.contains(tone), qPrintable(tone));
        }
    }

    void EachDrawingKeepsTheMarginAndFillsTheRest_data() { AddRowPerIcon(); }
    void EachDrawingKeepsTheMarginAndFillsTheRest() {
        QFETCH(QString, name);
        const int margin = name == QLatin1String("korvanta") ? 1 : 2;
        for (const int side : {24, 48}) {
            const int scale = side / 24;
            const QRect ink = Ink(IconFamily::Picture(name, side, PlainTones()));
            const QRect room(margin * scale, margin * scale, side - 2 * margin * scale,
                             side - 2 * margin * scale);
            QVERIFY2(room.contains(ink), qPrintable(QStringLiteral("%1 at %2: %3,%4 to %5,%6")
                                                        .arg(name)
                                                        .arg(side)
                                                        .arg(ink.left())
                                                        .arg(ink.top())
                                                        .arg(ink.right())
                                                        .arg(ink.bottom())));
            QVERIFY2(std::max(ink.width(), ink.height()) >= 14 * scale, qPrintable(name));
        }
    }

    void NoTwoIconsLookAlike() {
        // Measured by their ink: two thin lines differ in few pixels, but in most of those they
        // have. A plus and a minus in the same lens are as near as icons may come.
        const QStringList names = IconFamily::Names();
        const QColor ground(Qt::white);
        QStringList alike;
        for (const int side : {16, 24}) {
            QImage blank(side, side, QImage::Format_RGB32);
            blank.fill(ground);
            QList<QImage> pictures;
            for (const QString& name : names) {
                pictures.append(OnGround(IconFamily::Picture(name, side, PlainTones()), ground));
            }
            for (int i = 0; i < names.size(); ++i) {
                for (int j = 0; j < i; ++j) {
                    const double share =
                        Distance(pictures[i], pictures[j]) /
                        (Distance(pictures[i], blank) + Distance(pictures[j], blank));
                    if (share < 0.03) {
                        alike.append(QStringLiteral("%1 and %2 at %3: %4")
                                         .arg(names[i], names[j])
                                         .arg(side)
                                         .arg(share));
                    }
                }
            }
        }
        QVERIFY2(alike.isEmpty(), qPrintable(alike.join(QLatin1Char('\n'))));
    }

    void UprightStrokesFillWholePixelsAtSixteenAndFortyEight() {
        // The left edge of the floppy: a column that is all ink beside one that has none.
        const auto alpha = [](const QImage& image, int x) {
            return qAlpha(image.pixel(x, image.height() / 2));
        };
        const QString name = QStringLiteral("file-save");
        const QImage small = IconFamily::Picture(name, 16, PlainTones());
        QCOMPARE(alpha(small, 1), 0);
        QCOMPARE(alpha(small, 2), 255);
        QCOMPARE(alpha(small, 3), 0);
        const QImage large = IconFamily::Picture(name, 48, PlainTones());
        QCOMPARE(alpha(large, 5), 0);
        QCOMPARE(alpha(large, 6), 255);
        QCOMPARE(alpha(large, 8), 255);
        QCOMPARE(alpha(large, 9), 0);
    }

    void IconsFollowThePaletteWithoutBeingMadeAnew() {
        const QIcon icon = IconFamily::Icon(QStringLiteral("file-new"));
        for (const auto look : {Theme::Look::Light, Theme::Look::Dark}) {
            const QPalette palette = Theme::Palette(look);
            QApplication::setPalette(palette);
            const QImage image = icon.pixmap(QSize(48, 48), 1.0).toImage();
            QVERIFY(HasColor(image, palette.color(QPalette::WindowText)));
            QVERIFY(HasColor(image, Theme::Accent(palette)));
        }
    }

    void DisabledIconsFade() {
        for (const auto look : {Theme::Look::Light, Theme::Look::Dark}) {
            const QPalette palette = Theme::Palette(look);
            QApplication::setPalette(palette);
            const QIcon icon = IconFamily::Icon(QStringLiteral("file-new"));
            const QImage image = icon.pixmap(QSize(48, 48), 1.0, QIcon::Disabled).toImage();
            const IconFamily::Tones faded = IconFamily::TonesOf(palette, QIcon::Disabled);
            QVERIFY(HasColor(image, faded.Text));
            QVERIFY(!HasColor(image, Theme::Accent(palette)));
            const QColor window = palette.color(QPalette::Window);
            QVERIFY(Theme::Contrast(faded.Text, window) > 1.5);
            QVERIFY(Theme::Contrast(faded.Text, window) < 4.5);
        }
    }

    void AnIconOnAWidgetTakesTheWidgetsColours() {
        QWidget widget;
        QPalette palette = Theme::Palette(Theme::Look::Dark);
        palette.setColor(QPalette::WindowText, QColor(1, 200, 3));
        widget.setPalette(palette);
        widget.resize(48, 48);
        class Canvas : public QWidget {
        public:
            using QWidget::QWidget;
            void paintEvent(QPaintEvent* /*event*/) override {
                QPainter painter(this);
                IconFamily::Icon(QStringLiteral("file-save")).paint(&painter, rect());
            }
        } canvas(&widget);
        canvas.resize(48, 48);
        QVERIFY(HasColor(canvas.grab().toImage().convertToFormat(QImage::Format_ARGB32),
                         QColor(1, 200, 3)));
    }

    void IconsAreSharpOnFineScreens_data() {
        QTest::addColumn<qreal>("ratio");
        QTest::newRow("150 percent") << 1.5;
        QTest::newRow("200 percent") << 2.0;
    }
    void IconsAreSharpOnFineScreens() {
        QFETCH(qreal, ratio);
        const QIcon icon = IconFamily::Icon(QStringLiteral("stitch-whole"));
        const QPixmap fine = icon.pixmap(QSize(24, 24), ratio);
        QCOMPARE(fine.devicePixelRatio(), ratio);
        const int side = qRound(24 * ratio);
        QCOMPARE(fine.size(), QSize(side, side));
        const QImage drawn = fine.toImage().convertToFormat(QImage::Format_ARGB32);
        const QImage enlarged =
            icon.pixmap(QSize(24, 24), 1.0)
                .toImage()
                .convertToFormat(QImage::Format_ARGB32)
                .scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QImage exact = IconFamily::Picture(QStringLiteral("stitch-whole"), side,
                                                 IconFamily::TonesOf(QApplication::palette()))
                                 .convertToFormat(QImage::Format_ARGB32);
        const QColor ground(Qt::white);
        QCOMPARE(Distance(OnGround(drawn, ground), OnGround(exact, ground)), 0.0);
        QVERIFY(Distance(OnGround(drawn, ground), OnGround(enlarged, ground)) > 1.0);
    }

    void TheProgramsIconReadsAtSixteenOnBothGrounds() {
        const QIcon icon = IconFamily::ProgramIcon();
        QVERIFY(icon.availableSizes().contains(QSize(16, 16)));
        const QImage small = icon.pixmap(QSize(16, 16), 1.0).toImage();
        for (const auto look : {Theme::Look::Light, Theme::Look::Dark}) {
            const QColor window = Theme::Palette(look).color(QPalette::Window);
            const QImage image = OnGround(small, window);
            // The stitch on its cloth, and the cloth's corner of the cross on the ground.
            QVERIFY(Theme::Contrast(image.pixelColor(8, 8), image.pixelColor(8, 3)) > 3.0);
        }
    }
};

} // namespace zol

QTEST_MAIN(zol::IconFamilyTest)
#include "test_IconFamily.moc"
