// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/KeyInstructions.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

#include "model/RunTimeError.h"
#include "print/RichTextFormatter.h"

namespace zol {

QSizeF KeyInstructions::FreshRoom() const {
    return {m_pages->FrameWidth() - 2 * Air(), m_pages->FreshHeight() - 3 * Air()};
}

void KeyInstructions::Print(bool countOnly) {
    const double lineHeight = m_pages->Font().TextHeight();
    const QSizeF fresh = FreshRoom();
    // The heading has room above the first page's text, also where that is a single line.
    const auto text = MakeFormatter(m_job->PrintPattern()->Instructions, m_pages->Font(),
                                    {fresh.width(), fresh.height() - 2 * lineHeight});
    if (countOnly) {
        m_job->SetKeyNotePositions({});
    }
    if (text->Length() == 0) {
        return;
    }
    m_pages->NeedRoom(2 * lineHeight + 3 * Air() +
                      std::max(lineHeight, text->FirstLineHeight(fresh.width())));
    KeyNotes notes{fresh, m_pages->PageNo(), {}};
    const KeyNotes& counted = m_job->KeyNotePositions();
    const int ahead = m_pages->WantedPage() - notes.FirstPage;
    if (!countOnly && ahead > 0 && counted.Room == fresh && counted.FirstPage == notes.FirstPage) {
        if (ahead < static_cast<int>(counted.Positions.size())) {
            m_pages->GoOnAt(m_pages->WantedPage());
            PrintPiece(*text, counted.Positions[static_cast<std::size_t>(ahead)]);
        }
        return;
    }
    m_pages->PrintInfoRow(QStringLiteral("Instructions:"), QString());
    PrintPieces(*text, 0, countOnly ? std::numeric_limits<int>::max() : m_pages->WantedPage(),
                notes);
    if (countOnly) {
        m_job->SetKeyNotePositions(std::move(notes));
    }
}

void KeyInstructions::PrintPieces(const TextFormatter& text, int position, int last,
                                  KeyNotes& notes) {
    for (;;) {
        if (m_pages->PageNo() + 1 > LastNotePosition) {
            throw RunTimeError(ErrSubscript);
        }
        notes.Positions.push_back(position);
        position = PrintPiece(text, position);
        if (position >= text.Length() || m_pages->PageNo() >= last) {
            return;
        }
        m_pages->NewKeyPage();
    }
}

int KeyInstructions::PrintPiece(const TextFormatter& text, int position) {
    const PageCanvas& canvas = m_pages->Canvas();
    const double air = Air();
    const double top = m_pages->CurrentY() + air;
    const QRectF room(m_pages->Left() + air, top + air, m_pages->FrameWidth() - 2 * air,
                      m_pages->Bottom() - top - 2 * air);
    const TextFormatter::Piece piece = text.FormatRange(canvas, room, position);
    canvas.Frame({m_pages->Left(), top, m_pages->FrameWidth(), piece.Height + 2 * air},
                 canvas.Hairline());
    m_pages->MoveDown(piece.Height + 3 * air);
    return piece.Next;
}

} // namespace zol
