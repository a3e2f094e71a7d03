// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <optional>
#include <vector>

#include "import/Picture.h"
#include "import/scan/ScannerDoor.h"
#include "windowkit/LatestJob.h"

class QComboBox;
class QPushButton;
class QWidget;

namespace zol {

class MessageDoor;
class SettingsDoor;
struct ProgramContext;

/// Keeps a list of the scanners of the system, which it looks for beside the window; the last line
/// looks again. The scanner used last is chosen again.
class ScannerList : public QObject {
    Q_OBJECT

public:
    /// What it works with; all of it outlives it.
    struct Outside {
        ScannerDoor& Scanners;
        ProgramContext& Context;
        SettingsDoor& Store;
        MessageDoor& Messages;
    };

    /// Fills `list`, and enables `acquire` while a scanner is chosen in it.
    ScannerList(const Outside& outside, QComboBox& list, QPushButton& acquire, QObject* parent);

    /// Looks for scanners anew. Until they are found the list says so.
    void Look();
    /// The list is not wanted any more: what is still found is not shown.
    void Leave();
    /// The list is wanted after all: a search that Leave cut off begins anew.
    void ComeBack();
    /// The scanner that is chosen; nothing while there is none.
    [[nodiscard]] std::optional<ScanSource> Chosen() const;
    /// Lets the user scan a picture from it; nothing if that was cancelled.
    [[nodiscard]] std::optional<Picture> Acquire(QWidget* over);

private:
    void Show(const SourcesFound& found);
    void Choose(int line);
    void AddLine(const QString& text, const QString& tip = {});

    Outside m_outside;
    QComboBox& m_list;
    QPushButton& m_acquire;
    std::vector<ScanSource> m_sources; ///< the list's first lines
    bool m_cutOff = false;             ///< the last search brought nothing
    LatestJob m_job{this};
};

} // namespace zol
