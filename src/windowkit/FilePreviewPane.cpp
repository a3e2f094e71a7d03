// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/FilePreviewPane.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

#include <utility>

namespace zol {

namespace {

QImage ImageOf(const FilePreview& preview) {
    QImage image(preview.Width, preview.Height, QImage::Format_RGB32);
    std::size_t next = 0;
    for (int y = 0; y < preview.Height; ++y) {
        for (int x = 0; x < preview.Width; ++x) {
            const std::uint32_t pixel = preview.Pixels[next++];
            image.setPixel(x, y,
                           qRgb(static_cast<int>(pixel & 255U),
                                static_cast<int>((pixel >> 8U) & 255U),
                                static_cast<int>((pixel >> 16U) & 255U)));
        }
    }
    return image;
}

} // namespace

FilePreviewPane::FilePreviewPane(Maker maker, QWidget* parent)
    : QWidget(parent),
      m_maker(std::move(maker)) {
    setObjectName(QStringLiteral("fraPreview"));
    m_picture = new QLabel(this);
    m_picture->setObjectName(QStringLiteral("picPreview"));
    m_picture->setAccessibleName(QStringLiteral("Preview"));
    m_picture->setFixedSize(Side, Side);
    m_picture->setAlignment(Qt::AlignCenter);
    m_words = new QLabel(this);
    m_words->setObjectName(QStringLiteral("lblPreview"));
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    m_words->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(m_picture);
    column->addWidget(m_words, 1);
}

void FilePreviewPane::AddTo(QFileDialog& dialog, Maker maker) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
    if (grid == nullptr) {
        return;
    }
    auto* pane = new FilePreviewPane(std::move(maker), &dialog);
    // Row 1 is that of the files; the rows above and below keep their full width.
    grid->addWidget(pane, 1, grid->columnCount());
    dialog.resize(dialog.width() + Side, dialog.height());
    connect(&dialog, &QFileDialog::currentChanged, pane, &FilePreviewPane::ShowFile);
}

void FilePreviewPane::ShowFile(const QString& file) {
    m_job.Cancel();
    m_picture->clear();
    m_words->clear();
    if (!QFileInfo(file).isFile()) {
        return;
    }
    m_job.Start([maker = m_maker, path = std::filesystem::path(file.toStdString())](
                    ProgressDoor& progress) { return maker(path, progress); },
                [this](const FilePreview& preview) { Show(preview); });
}

void FilePreviewPane::Show(const FilePreview& preview) {
    m_words->setText(QString::fromStdString(preview.Words));
    if (!preview.Pixels.empty()) {
        m_picture->setPixmap(QPixmap::fromImage(ImageOf(preview)));
    }
}

} // namespace zol
