// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/EraseWork.h"

#include <utility>

#include "import/Eraser.h"

namespace zol {

namespace {

std::shared_ptr<Picture> CopyOf(const SharedPicture& picture) {
    return std::make_shared<Picture>(picture ? *picture : Picture());
}

} // namespace

void EraseWork::Take(const SharedPicture& picture) {
    Begin(CopyOf(picture));
    m_hasStep = false;
}

void EraseWork::Begin(std::shared_ptr<Picture> own) {
    m_own = std::move(own);
    m_handedOn = false;
    m_undo = nullptr;
    m_kept.Forget();
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

/// Before that part of the picture changes. What was kept of the step before is given up only once
/// there is what takes its place.
void EraseWork::Keep(const PixelRect& rect) {
    if (m_stepBegun) {
        m_kept.Keep(*m_own, rect);
        return;
    }
    KeptTiles kept;
    kept.Keep(*m_own, rect);
    m_kept = std::move(kept);
    m_undo = nullptr;
    m_stepBegun = true;
    m_hasStep = true;
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
    Keep(reach);
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
    Keep(bounds);
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
    std::shared_ptr<Picture> own = CopyOf(picture);
    SharedPicture before = m_undo;
    if (m_hasStep && !before) {
        MakeOwn();
        m_kept.PutBack(*m_own);
        before = m_own;
    }
    Begin(std::move(own));
    m_undo = std::move(before);
}

} // namespace zol
