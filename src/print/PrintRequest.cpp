// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintRequest.h"

#include "model/LengthUnits.h"
#include "model/Rounding.h"

namespace zol {

PrintRequestFault CheckPrintRequest(const PrintRequest& request) {
    if (request.GSPI == 0) {
        return {PrintField::GSPI,
                "Stitches per inch can not be 0.  Please enter a valid entry here."};
    }
    if (request.FromPage == 0) {
        return {PrintField::FromPage,
                "The starting print page can not be 0.  Please enter a valid entry here."};
    }
    if (request.ToPage == 0) {
        return {PrintField::ToPage,
                "The Ending print page can not be 0.  Please enter a valid entry here."};
    }
    if (request.ToPage < request.FromPage) {
        return {PrintField::ToPage, "The ending print page must be greater then the starting "
                                    "print page.  Please enter a valid entry here."};
    }
    if (request.ToPage > request.LastPage) {
        return {PrintField::ToPage,
                "The ending page can not be larger " + std::to_string(request.LastPage) + "."};
    }
    return {};
}

std::string AllPagesCaption(int pages) {
    return "All:   (" + std::to_string(pages) + (pages == 1 ? " Page)" : " Pages)");
}

int GetToPage(int pageCount, int keyPages, bool keyOnly, bool printColorKey) {
    if (keyOnly) {
        return keyPages;
    }
    return printColorKey ? pageCount : pageCount - keyPages;
}

double GSPIFromField(double typed, bool inches) {
    return inches ? typed : typed * CentimetresPerInch;
}

std::string GSPIFieldText(double gspi, bool inches) {
    return FormatFixed(inches ? gspi : gspi / CentimetresPerInch, 1);
}

std::string GSPILabel(bool inches) {
    return inches ? "Grid Squares Per Inch" : "Grid Squares Per CM";
}

} // namespace zol
