// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "flosses/AvailColors.h"
#include "flosses/windows/AvailableList.h"
#include "flosses/windows/PaletteGrid.h"
#include "flosses/windows/frmPalette.h"
#include "settings/INIFuncs.h"
#include "support/DialogHands.h"
#include "support/ScriptedUser.h"

namespace zol::test {

/// Does something to the modal window that opens next, which has to close by it.
inline void InNextWindow(const char* name, std::function<void(QDialog&)> work) {
    QTimer::singleShot(0, qApp, [name, work = std::move(work)] {
        auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (window == nullptr || window->objectName() != QLatin1String(name)) {
            qFatal("%s has not opened", name);
        }
        work(*window);
        if (window->isVisible()) {
            qFatal("%s was left open", name);
        }
    });
}
inline void AcceptNext(const char* name) {
    InNextWindow(name, [](QDialog& window) { ClickIn(window, "cmdOK"); });
}

/// The palette editor on a pattern of four flosses (red, green, blue and an unused grey), with
/// catalogues of five flosses and of none.
class PaletteWindow {
public:
    explicit PaletteWindow(std::optional<SquareRect> editBox = std::nullopt, bool british = false)
        : Store(Path() / "settings.ini") {
        Context.AppPath = Path();
        Context.BritishSpelling = british;
        WriteCatalogues();
        Design = std::make_unique<Pattern>(Context);
        Design->Initialize(10, 10, 14, 14);
        Flosses().ClearPalette();
        AddFloss(MakeColour(200, 0, 0), "R1", "red", "R");
        AddFloss(MakeColour(0, 200, 0), "G1", "green", "G");
        AddFloss(MakeColour(0, 0, 200), "B1", "blue", "U");
        AddFloss(MakeColour(99, 99, 99), "Y1", "grey", "Y");
        Design->SetStitch(1, 1, StitchWhole, 1, 5);
        Design->SetStitch(5, 5, StitchWhole, 1, 5);
        Design->SetStitch(2, 2, StitchWhole, 2, 5);
        Design->SetStitch(3, 3, StitchWhole, 3, 5);
        Window = std::make_unique<frmPalette>(
            PaletteDesk{*Design, User, Store, "dmc.col", 1, editBox, [this] { ++FirstChanges; }});
    }

    [[nodiscard]] bool Show() {
        Window->show();
        Window->activateWindow();
        return QTest::qWaitForWindowActive(Window.get());
    }
    [[nodiscard]] Palette& Flosses() { return Design->GetPalette(); }
    [[nodiscard]] std::filesystem::path Path() const { return m_folder.path().toStdString(); }
    [[nodiscard]] AvailableList& Available() {
        return PartOf<AvailableList>(*Window, "picAvailable");
    }
    [[nodiscard]] PaletteGrid& Grid() { return PartOf<PaletteGrid>(*Window, "picPalette"); }
    template<typename Widget>
    [[nodiscard]] Widget& Find(const char* name) {
        return PartOf<Widget>(*Window, name);
    }
    void Click(const char* button) { ClickIn(*Window, button); }
    void ClickEntry(int entry) {
        QTest::mouseClick(&Grid(), Qt::LeftButton, {}, Grid().RectOf(entry).center());
    }
    [[nodiscard]] QPoint PlaceOfRow(int row) {
        return Available().visualRect(Available().model()->index(row - 1, 0)).center();
    }
    /// Holds the left button in `from` and lets it go over `to`.
    static void Drag(QWidget& from, QPoint start, QWidget& to, QPoint end) {
        const QPoint there = from.mapFromGlobal(to.mapToGlobal(end));
        QTest::mousePress(&from, Qt::LeftButton, {}, start);
        QTest::mouseMove(&from, (start + there) / 2);
        QTest::mouseMove(&from, there);
        QTest::mouseRelease(&from, Qt::LeftButton, {}, there);
    }
    /// Chooses a line of a list as the keyboard does.
    void Choose(const char* list, int steps) {
        auto& combo = Find<QWidget>(list);
        combo.setFocus();
        for (int i = 0; i < std::abs(steps); ++i) {
            QTest::keyClick(&combo, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
        }
    }
    [[nodiscard]] QString ShownNumber() {
        return Available().currentIndex().data(Qt::DisplayRole).toString();
    }

    /// By the search, since numbers typed in a row would be one.
    [[nodiscard]] bool Show321() {
        auto& field = Find<QLineEdit>("txtSearch");
        field.setText(QStringLiteral("321"));
        Click("cmdSearch");
        return ShownNumber() == QLatin1String("321");
    }

    ScriptedUser User;
    ProgramContext Context;
    std::unique_ptr<Pattern> Design;
    int FirstChanges = 0;

private:
    QTemporaryDir m_folder;

public:
    INIFuncs Store;
    std::unique_ptr<frmPalette> Window;

private:
    void AddFloss(Colour rgb, const char* number, const char* name, const char* symbol) {
        Flosses().AddPaletteEntry(rgb, number, name, "ABC", symbol, 2, 1, 0, 0, 0, "");
    }
    void WriteCatalogues() {
        std::filesystem::create_directories(Path() / "Flosses");
        AvailColors catalogue(Context);
        catalogue.Setheader("DMC", 1, "DMC", 0);
        catalogue.AddEntry(310, "Black", "310", 0, 0, 0, 1, 0, 0, "");
        catalogue.AddEntry(666, "Bright Red", "666", 227, 29, 66, 2, 0, 0, "");
        catalogue.AddEntry(321, "Red", "321", 199, 43, 59, 3, 0, 0, "");
        catalogue.AddEntry(3, "Ash", "3", 180, 180, 180, 4, 0, 0, "");
        catalogue.AddEntry(5, "Snow White", "B5200", 255, 255, 255, 5, 0, 0, "");
        bool saved = catalogue.SaveToFile(Path() / "Flosses" / "dmc.col");
        AvailColors empty(Context);
        empty.Setheader("Empty", 1, "Empty", 0);
        saved = empty.SaveToFile(Path() / "Flosses" / "empty.col") && saved;
        if (!saved) {
            qFatal("the catalogues cannot be written");
        }
    }
};

} // namespace zol::test
