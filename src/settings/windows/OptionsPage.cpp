// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/OptionsPage.h"

#include <QPushButton>

#include "flosses/windows/ColorSample.h"
#include "flosses/windows/frmClothColors.h"
#include "settings/ColorLists.h"

namespace zol {

OptionsPage::OptionsPage(const OptionsDesk& desk, QWidget* parent)
    : QWidget(parent),
      m_desk(desk) {}

void OptionsPage::FillColors(const ColorChoice& choice) {
    const int selected = choice.Combo->currentIndex();
    choice.Combo->clear();
    for (const ColorLists::NamedColor& line :
         ColorLists::LoadColorsList(m_desk.Store, choice.List)) {
        choice.Combo->addItem(SwatchIcon(line.Value), QString::fromStdString(line.Description),
                              choice.Combo->count() + 1);
    }
    choice.Combo->setCurrentIndex(selected);
}

void OptionsPage::ConnectCustomize(const ColorChoice& choice) {
    connect(choice.Customize, &QPushButton::clicked, this, [this, choice] {
        frmClothColors editor(choice.List, m_desk.Store, m_desk.Context, this);
        editor.exec();
        FillColors(choice);
    });
}

} // namespace zol
