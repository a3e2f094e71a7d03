// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/EraseWork.h"

#include "import/Eraser.h"

namespace zol {

void EraseWork::Take(const SharedPicture& picture) {
    m_own = std::make_shared<Picture>(picture ? *picture : Picture());
    m_handedOn = false;
    m_undo = nullptr;
    m_kept.Forget();
    m_hasStep = false;
}

SharedPicture EraseWork::HandOn() {
    m_handedOn = true;
    return m_own;
}

void EraseWork::MakeOwn() {
    if (m_handedOn) {
        m_own = std::make_shared<Picture>(*m_own);
        m_handedOn = false;
    }
}

PixelRect EraseWork::Whole() const {
    return {0, 0, m_own->ImageWidth(), m_own->ImageHeight()};
}

/// What was kept of the step before is given up only when the picture is really changed.
void EraseWork::BeginStep() {
    if (!m_stepBegun) {
        m_stepBegun = true;
        m_hasStep = true;
        m_undo = nullptr;
        m_kept.Forget();
    }
}

PixelRect EraseWork::BeginStroke(PicturePoint place, int across) {
    m_stepBegun = false;
    m_place = place;
    m_across = across;
    return EraseWay(place);
}

PixelRect EraseWork::MoveStroke(PicturePoint place) {
    return EraseWay(place);
}

PixelRect EraseWork::EraseWay(PicturePoint to) {
    const PicturePoint from = m_place;
    m_place = to;
    const PixelRect reach =
        Eraser::ReachOf(from, to, m_across, m_own->ImageWidth(), m_own->ImageHeight());
    if (reach.Width < 1 || reach.Height < 1) {
        return {};
    }
    MakeOwn();
    BeginStep();
    m_kept.Keep(*m_own, reach);
    Eraser::Erase(*m_own, from, to, m_across);
    return reach;
}

PixelRect EraseWork::ClearSelected(const PictureRegion& region) {
    if (!region.HasRegion()) {
        return {};
    }
    const PixelRect bounds = region.Bounds();
    MakeOwn();
    m_stepBegun = false;
    BeginStep();
    m_kept.Keep(*m_own, bounds);
    region.FillRegion(*m_own, EraseColor);
    return bounds;
}

PixelRect EraseWork::ClearUnselected(const PictureRegion& region) {
    PictureRegion outside = region;
    outside.Invert();
    return ClearSelected(outside);
}

PixelRect EraseWork::Undo() {
    if (m_undo) {
        m_own = std::make_shared<Picture>(*m_undo);
        m_handedOn = false;
        m_undo = nullptr;
        m_kept.Forget();
        return Whole();
    }
    if (m_kept.IsEmpty()) {
        return {};
    }
    MakeOwn();
    const PixelRect changed = m_kept.PutBack(*m_own);
    m_kept.Forget();
    return changed;
}

void EraseWork::Reset(const SharedPicture& picture) {
    const bool hadStep = m_hasStep;
    SharedPicture before = m_undo;
    if (hadStep && !before) {
        MakeOwn();
        m_kept.PutBack(*m_own);
        before = m_own;
    }
    Take(picture);
    m_undo = before;
    m_hasStep = hadStep;
}

} // namespace zol
