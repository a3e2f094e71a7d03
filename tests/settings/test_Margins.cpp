// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <QLocale>

#include "settings/Margins.h"
#include "settings/basCommonFunctions.h"

namespace zol {
namespace {

QString Q(const char* text) {
    return QString::fromLatin1(text);
}

/// A locale for as long as it lives.
class InLocale {
public:
    explicit InLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~InLocale() { QLocale::setDefault(m_before); }
    InLocale(const InLocale&) = delete;
    InLocale& operator=(const InLocale&) = delete;

private:
    QLocale m_before;
};

TEST(Margins, StandardHasTwoPlacesAndThousands) {
    const InLocale american(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(Margins::FormatStandard(0), Q("0.00"));
    EXPECT_EQ(Margins::FormatStandard(0.5), Q("0.50"));
    EXPECT_EQ(Margins::FormatStandard(0.635), Q("0.64"));
    EXPECT_EQ(Margins::FormatStandard(999.994), Q("999.99"));
    EXPECT_EQ(Margins::FormatStandard(1234567.891), Q("1,234,567.89"));
    EXPECT_EQ(Margins::FormatStandard(-123), Q("-123.00"));
    EXPECT_EQ(Margins::FormatStandard(32767), Q("32,767.00"));
}

TEST(Margins, LocaleSeparatorAndPointAreBothRead) {
    const InLocale german(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(Margins::FormatStandard(1234.5), Q("1.234,50"));
    EXPECT_DOUBLE_EQ(basCommonFunctions::FieldValue(Q("1.234,50")), 1234.5);
    EXPECT_DOUBLE_EQ(basCommonFunctions::FieldValue(Q("0,75")), 0.75);
    EXPECT_DOUBLE_EQ(basCommonFunctions::FieldValue(Q("0.75")), 0.75);
}

TEST(Margins, TextIsNothing) {
    EXPECT_DOUBLE_EQ(basCommonFunctions::FieldValue(Q("")), 0);
    EXPECT_DOUBLE_EQ(basCommonFunctions::FieldValue(Q("wide")), 0);
    EXPECT_DOUBLE_EQ(Margins::Inches(Q(""), true, 0.5), 0);
}

TEST(Margins, TwoChangesOfUnitBringAMarginBack) {
    const InLocale american(QLocale(QLocale::English, QLocale::UnitedStates));
    for (int hundredths = 0; hundredths < 1000; ++hundredths) {
        const QString inches = Margins::FormatStandard(hundredths / 100.0);
        const QString centimetres = Margins::Convert(inches, false);
        EXPECT_EQ(Margins::Convert(centimetres, true), inches) << centimetres.toStdString();
    }
    EXPECT_EQ(Margins::Convert(Q("0.50"), false), Q("1.27"));
}

TEST(Margins, LookingAtAMarginLosesNothing) {
    const InLocale american(QLocale(QLocale::English, QLocale::UnitedStates));
    const double odd = 0.51181;
    EXPECT_EQ(Margins::Text(odd, true), Q("0.51"));
    EXPECT_EQ(Margins::Inches(Q("0.51"), true, odd), odd);
    EXPECT_EQ(Margins::Inches(Margins::Text(odd, false), false, odd), odd);
    EXPECT_DOUBLE_EQ(Margins::Inches(Q("2.54"), false, odd), 1);
    EXPECT_DOUBLE_EQ(Margins::Inches(Q("0.52"), true, odd), 0.52);
}

} // namespace
} // namespace zol
