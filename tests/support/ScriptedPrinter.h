// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QMarginsF>
#include <QPageSize>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "print/windows/PrinterDoor.h"

namespace zol::test {

/// Paper in a printer with an unprintable border. Its pages are kept as pictures of the printable
/// area, and what a job does with its document is counted.
class PicturePrinter : public PageDevice {
public:
    static constexpr int DotsPerInch = 72;

    [[nodiscard]] int Width() const override { return width; }
    [[nodiscard]] int Height() const override { return height; }
    [[nodiscard]] int ScaleWidth() const override { return width - 2 * borderX; }
    [[nodiscard]] int ScaleHeight() const override { return height - 2 * borderY; }
    [[nodiscard]] double TwipsPerPixelX() const override { return TwipsPerDot(); }
    [[nodiscard]] double TwipsPerPixelY() const override { return TwipsPerDot(); }
    [[nodiscard]] bool IsPrinter() const override { return true; }
    [[nodiscard]] QPainter* Painter() override {
        if (refusesDocuments) {
            return nullptr;
        }
        if (!m_painter.isActive()) {
            TakePaper();
            m_painter.begin(&m_page);
            if (onPage) {
                onPage(static_cast<int>(m_pages.size()) + 1);
            }
        }
        return &m_painter;
    }
    bool NewPage() override {
        PutPageAway();
        return Painter() != nullptr;
    }
    bool EndDoc() override {
        PutPageAway();
        ++ended;
        if (!refusesDocuments) {
            printed.insert(printed.end(), m_pages.begin(), m_pages.end());
        }
        m_pages.clear();
        return !refusesDocuments;
    }
    void KillDoc() override {
        if (m_painter.isActive()) {
            m_painter.end();
        }
        m_pages.clear();
        ++killed;
    }

    [[nodiscard]] std::string ErrorText() const override { return why; }

    int width = 11906; ///< A4 in twips
    int height = 16838;
    int borderX = 360;
    int borderY = 360;
    bool refusesDocuments = false;
    std::string why; ///< it refuses them, if it tells
    int ended = 0;
    int killed = 0;
    std::vector<QImage> printed; ///< the pages of whole documents
    /// Called at the beginning of each page of a document, from 1.
    std::function<void(int page)> onPage;

private:
    [[nodiscard]] static double TwipsPerDot() {
        return static_cast<double>(TwipsPerInch) / DotsPerInch;
    }
    void TakePaper() {
        m_page = QImage(qRound(ScaleWidth() / TwipsPerDot()), qRound(ScaleHeight() / TwipsPerDot()),
                        QImage::Format_RGB32);
        m_page.fill(Qt::white);
    }
    void PutPageAway() {
        if (m_painter.isActive()) {
            m_painter.end();
            m_pages.push_back(m_page);
        }
    }

    QImage m_page;
    std::vector<QImage> m_pages;
    QPainter m_painter;
};

/// Printers as a test wants them, and a user who answers their dialogs in a given order.
class ScriptedPrinter : public PrinterDoor {
public:
    /// What the user does in a dialog; the device can be changed before it is answered.
    struct Choice {
        QString Name;
        bool Taken = true; ///< false: cancelled
    };

    [[nodiscard]] bool IsPrinterDefined() override { return isDefined; }
    [[nodiscard]] QString DeviceName() const override { return isDefined ? name : QString(); }
    [[nodiscard]] PageDevice* Printer() override { return isDefined ? &device : nullptr; }
    bool ChoosePrinter(QWidget* /*parent*/) override {
        ++choosers;
        if (choices.empty()) {
            return false;
        }
        const Choice choice = choices.front();
        choices.pop_front();
        if (choice.Taken) {
            name = choice.Name;
        }
        return choice.Taken;
    }
    void NameDocument(const QString& document) override { documents.push_back(document); }
    bool SelectPrinter(const QString& deviceName) override {
        const bool isThere = isDefined && others.contains(deviceName);
        if (isThere) {
            name = deviceName;
        }
        return isThere;
    }
    [[nodiscard]] PrinterState State() override { return state; }
    [[nodiscard]] QPageLayout Paper() const override {
        const QMarginsF border(device.BorderX() / 20.0, device.BorderY() / 20.0,
                               device.BorderX() / 20.0, device.BorderY() / 20.0);
        return {QPageSize(QSizeF(device.Width(), device.Height()) / 20.0, QPageSize::Point),
                QPageLayout::Portrait, isDefined ? border : QMarginsF(), QPageLayout::Point};
    }
    [[nodiscard]] std::optional<QMarginsF> SetUpPage(QWidget* /*parent*/,
                                                     const QMarginsF& margins) override {
        pageSetUps.push_back(margins);
        return newMargins;
    }

    bool isDefined = true;
    QString name = QStringLiteral("Loom");
    QStringList others; ///< device names that can be selected
    PrinterState state = PrinterState::Ready;
    PicturePrinter device;
    std::deque<Choice> choices;
    int choosers = 0; ///< times that the printer dialog was opened
    QStringList documents;
    std::vector<QMarginsF> pageSetUps;   ///< the margins that page set-up began with
    std::optional<QMarginsF> newMargins; ///< its answer
};

} // namespace zol::test
