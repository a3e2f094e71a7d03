// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/SaneWords.h"

#include <array>

namespace zol {

namespace {

struct StatusWords {
    int Status;
    std::string_view Text;
    std::string_view More;
};

// Not in the header of every release of SANE, but sent by drivers.
constexpr int WarmingUp = 12;
constexpr int LockedForTransport = 13;

constexpr std::array<StatusWords, 13> Statuses{{
    {SANE_STATUS_UNSUPPORTED, "The scanner cannot do what it was asked to.",
     "Choose another mode, resolution or area."},
    {SANE_STATUS_CANCELLED, "The scanner stopped the scan.",
     "Somebody may have pressed its own cancel button. Scan again."},
    {SANE_STATUS_DEVICE_BUSY, "The scanner is busy.",
     "Wait until it has finished, or close the program that uses it, and try again."},
    {SANE_STATUS_INVAL, "The scanner does not accept these settings.",
     "Choose another mode, resolution or area."},
    {SANE_STATUS_EOF, "The scanner sent no picture.", "Scan again."},
    {SANE_STATUS_JAMMED, "Paper is jammed in the scanner.", "Take it out and scan again."},
    {SANE_STATUS_NO_DOCS, "There is nothing in the document feeder.",
     "Put the picture in and scan again."},
    {SANE_STATUS_COVER_OPEN, "The scanner's cover is open.", "Close it and scan again."},
    {SANE_STATUS_IO_ERROR, "The connection to the scanner was lost.",
     "Check that it is switched on and that its cable or network is connected, and scan again."},
    {SANE_STATUS_NO_MEM, "There is not enough memory for this scan.",
     "Choose a lower resolution or a smaller area."},
    {SANE_STATUS_ACCESS_DENIED, "You are not allowed to use this scanner.",
     "Ask whoever looks after this computer to let you use scanners."},
    {WarmingUp, "The scanner is warming up.", "Wait a minute and scan again."},
    {LockedForTransport, "The scanner is locked for transport.",
     "Move its lock to the open position and scan again."},
}};

ScanProblem Failed(std::string_view text, std::string_view more) {
    return {ScanProblem::Kind::Failed, std::string(text), std::string(more)};
}

std::string WithReason(std::string_view advice, std::string_view reason) {
    std::string text(advice);
    if (!reason.empty()) {
        text.append(" (SANE: ").append(reason).append(")");
    }
    return text;
}

/// Whether bytes from 0x80 on make whole UTF-8 characters. Overlong forms and surrogates do not
/// matter here: no driver sends them, and no Latin text looks like them.
bool IsUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        std::size_t following = 0;
        if (lead >= 0xC2U && lead <= 0xDFU) {
            following = 1;
        } else if (lead >= 0xE0U && lead <= 0xEFU) {
            following = 2;
        } else if (lead >= 0xF0U && lead <= 0xF4U) {
            following = 3;
        } else if (lead >= 0x80U) {
            return false;
        }
        for (; following > 0; --following) {
            ++i;
            if (i >= text.size() || (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U) {
                return false;
            }
        }
    }
    return true;
}

std::string FromLatin1(std::string_view text) {
    std::string utf8;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80U) {
            utf8.push_back(c);
        } else {
            utf8.push_back(static_cast<char>(0xC0U | (code >> 6U)));
            utf8.push_back(static_cast<char>(0x80U | (code & 0x3FU)));
        }
    }
    return utf8;
}

} // namespace

std::string SaneWords::TextOf(const char* saneText) {
    if (saneText == nullptr) {
        return {};
    }
    const std::string_view text(saneText);
    return IsUtf8(text) ? std::string(text) : FromLatin1(text);
}

ScanProblem SaneWords::OfStatus(SANE_Status status, std::string_view saneText) {
    for (const StatusWords& words : Statuses) {
        if (words.Status == static_cast<int>(status)) {
            return Failed(words.Text, WithReason(words.More, saneText));
        }
    }
    return Failed("The scanner reported an error.", WithReason("Scan again.", saneText));
}

ScanProblem SaneWords::OfOpening(SANE_Status status, std::string_view saneText) {
    if (status == SANE_STATUS_INVAL) {
        return Failed(
            "The scanner is not there any more.",
            WithReason("Switch it on, connect it and look for scanners again.", saneText));
    }
    return OfStatus(status, saneText);
}

ScanProblem SaneWords::Cancelled() {
    return {ScanProblem::Kind::Cancelled, "The scan was cancelled.", {}};
}

ScanProblem SaneWords::NoLibrary(std::string_view library, std::string_view reason) {
    std::string more = "Korvanta scans through SANE. Install it (on Debian the package libsane1) "
                       "and look for scanners again. (";
    more.append(reason.empty() ? library : reason).append(")");
    return {ScanProblem::Kind::NoScanning, "This computer has no software for scanners.",
            std::move(more)};
}

ScanProblem SaneWords::TooLarge() {
    return Failed("The picture would have more than 200 megapixels.",
                  "Choose a lower resolution or a smaller area.");
}

ScanProblem SaneWords::Damaged(std::string_view what) {
    return Failed("The scanner sent a picture that cannot be read.",
                  WithReason("Choose another mode or resolution.", what));
}

ScanProblem SaneWords::NoAnswer() {
    return Failed("The scanner does not answer.",
                  "Switch it off and on again before the next scan.");
}

} // namespace zol
