// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "print/CheckedOutput.h"
#include "print/PageDevice.h"

namespace zol {

/// Pages of a printer. They are collected in a file of their own and handed over once the document
/// has ended, so a document that is killed prints nothing, and one that the printer does not take
/// says so.
class SpooledPages : public PageDevice {
public:
    /// Gives the file to the printer; answers what went wrong, or an empty text.
    using HandOver = std::function<std::string(const std::filesystem::path& pdf)>;

    explicit SpooledPages(HandOver handOver) : m_handOver(std::move(handOver)) {}
    ~SpooledPages() override;

    /// The paper of documents to come, with the printer's border as its margins.
    void SetPaper(const QPageLayout& paper) { m_paper = paper; }
    [[nodiscard]] const QPageLayout& Paper() const { return m_paper; }
    void SetTitle(const QString& title) { m_title = title; }

    [[nodiscard]] int Width() const override;
    [[nodiscard]] int Height() const override;
    [[nodiscard]] int ScaleWidth() const override;
    [[nodiscard]] int ScaleHeight() const override;
    /// A pixel is a twip, so that nothing is rounded on its way to the page.
    [[nodiscard]] double TwipsPerPixelX() const override { return 1; }
    [[nodiscard]] double TwipsPerPixelY() const override { return 1; }
    [[nodiscard]] bool IsPrinter() const override { return true; }
    [[nodiscard]] QPainter* Painter() override;
    bool NewPage() override;
    bool EndDoc() override;
    void KillDoc() override;
    [[nodiscard]] std::string ErrorText() const override { return m_errorText; }

private:
    [[nodiscard]] bool Open();
    [[nodiscard]] int Close();

    HandOver m_handOver;
    QPageLayout m_paper;
    QString m_title;
    std::string m_errorText;
    std::unique_ptr<QTemporaryDir> m_folder; ///< of the document that is open
    std::unique_ptr<CheckedOutput> m_output;
    std::unique_ptr<QPdfWriter> m_writer;
    QPainter m_painter;
};

} // namespace zol
