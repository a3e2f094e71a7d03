// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

#include "windowkit/WrappedLabel.h"

namespace zol {

class WrappedLabelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_window = std::make_unique<QWidget>();
        m_label = new WrappedLabel;
        auto* layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_label);
        layout->addWidget(new QPushButton(QStringLiteral("Next")));
        m_label->setText(QStringLiteral("One word and another. ").repeated(6));
        m_window->resize(200, 20);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void AWindowThatIsTooLowGrows() {
        QTRY_VERIFY(IsWhole());
        QVERIFY(m_window->height() > 60);
        m_window->resize(120, 20);
        QTRY_VERIFY(IsWhole());
    }

    void ALongerTextIsWholeToo() {
        m_label->setText(m_label->text().repeated(3));
        QTRY_VERIFY(IsWhole());
    }

    void AWiderWindowMayBeLower() {
        QTRY_VERIFY(IsWhole());
        const int narrow = m_window->height();
        m_window->resize(800, narrow);
        QTRY_VERIFY(m_window->minimumHeight() < narrow);
        m_window->resize(800, 20);
        QVERIFY(m_window->height() < narrow);
        QVERIFY(IsWhole());
    }

private:
    [[nodiscard]] bool IsWhole() const {
        return m_label->height() >= m_label->heightForWidth(m_label->width());
    }
    std::unique_ptr<QWidget> m_window;
    WrappedLabel* m_label = nullptr;
};

} // namespace zol

QTEST_MAIN(zol::WrappedLabelTest)
#include "test_WrappedLabel.moc"
