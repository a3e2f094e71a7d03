// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include "settings/INIFuncs.h"
#include "windowkit/DialogSize.h"

namespace zol {
namespace {

class TestDialogSize : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ComesBackAsItWasLeft();
    void FitsTheScreenAndItsContent_data();
    void FitsTheScreenAndItsContent();

private:
    [[nodiscard]] std::filesystem::path StoreFile(const char* name) const {
        return std::filesystem::path(m_folder.path().toStdString()) / name;
    }

    QTemporaryDir m_folder;
};

/// A dialog with something in it.
class Sample : public QDialog {
public:
    explicit Sample(SettingsDoor& store) {
        setObjectName(QStringLiteral("frmSample"));
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(QStringLiteral("Flosses"), this));
        RememberSize(*this, store);
    }
};

void TestDialogSize::ComesBackAsItWasLeft() {
    INIFuncs store(StoreFile("left.ini"), nullptr);
    {
        Sample dialog(store);
        dialog.show();
        dialog.resize(311, 222);
        dialog.reject();
    }
    Sample again(store);
    QCOMPARE(again.size(), QSize(311, 222));
}

void TestDialogSize::FitsTheScreenAndItsContent_data() {
    QTest::addColumn<QString>("stored");
    QTest::newRow("too large") << "90000x80000";
    QTest::newRow("too small") << "1x1";
    QTest::newRow("nonsense") << "wide";
    QTest::newRow("negative") << "-5x-5";
}

void TestDialogSize::FitsTheScreenAndItsContent() {
    QFETCH(QString, stored);
    INIFuncs store(StoreFile("bounds.ini"), nullptr);
    store.WriteSetting("Windows", "frmSampleSize", stored.toStdString());
    Sample dialog(store);
    const QSize room = dialog.screen()->availableSize();
    QVERIFY(dialog.width() <= room.width() && dialog.height() <= room.height());
    QVERIFY(dialog.width() >= dialog.minimumSizeHint().width());
    QVERIFY(dialog.height() >= dialog.minimumSizeHint().height());
}

} // namespace
} // namespace zol

QTEST_MAIN(zol::TestDialogSize)
#include "test_DialogSize.moc"
