// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QLocale>

#include <gtest/gtest.h>

#include "settings/basCommonFunctions.h"

namespace zol {
namespace {

using namespace basCommonFunctions;

int Press(const QString& text, int key, int before, int after, qsizetype start = -1,
          qsizetype length = 0) {
    const qsizetype at = start < 0 ? text.size() : start;
    return FilterNumericKey({text, at, length}, key, before, after, QChar(u'.'));
}

TEST(FilterNumericKey, EnterIsSwallowedAndControlKeysPass) {
    EXPECT_EQ(Press({}, KeyEnter, 2, 0), 0);
    EXPECT_EQ(Press({}, 9, 2, 0), 9);
    EXPECT_EQ(Press({}, 27, 2, 0), 27);
}

TEST(FilterNumericKey, LettersAndSignsAreSwallowed) {
    for (const int key : {int('a'), int('Z'), int('-'), int('+'), int('!'), int('/'), int(':')}) {
        EXPECT_EQ(Press({}, key, 5, 5), 0) << key;
    }
    for (int key = '0'; key <= '9'; ++key) {
        EXPECT_EQ(Press({}, key, 5, 5), key);
    }
    EXPECT_EQ(Press({}, ' ', 5, 5), ' ');
}

TEST(FilterNumericKey, OneBeforeAndTwoAfterReachesOneDigitTheSeparatorAndTwoDigits) {
    QString text;
    for (const char key : {'1', '.', '2', '3'}) {
        ASSERT_EQ(Press(text, key, 1, 2), key);
        text.append(QLatin1Char(key));
    }
    EXPECT_EQ(Press(text, '4', 1, 2), 0);
    EXPECT_EQ(Press(text, '4', 1, 2, 0), 0) << "nor a second digit in front";
}

TEST(FilterNumericKey, SeparatorNeedsRoomBehindIt) {
    EXPECT_EQ(Press(QStringLiteral("1"), '.', 3, 0), 0);
    EXPECT_EQ(Press(QStringLiteral("1"), '.', 3, 1), '.');
}

TEST(FilterNumericKey, SecondSeparatorOnlyInPlaceOfTheFirst) {
    EXPECT_EQ(Press(QStringLiteral("1.5"), '.', 3, 3), 0);
    EXPECT_EQ(Press(QStringLiteral("1.5"), '.', 3, 3, 1, 1), '.');
}

TEST(FilterNumericKey, SelectionIsReplaced) {
    EXPECT_EQ(Press(QStringLiteral("12"), '3', 2, 0, 2), 0);
    EXPECT_EQ(Press(QStringLiteral("12"), '3', 2, 0, 0, 1), '3');
}

TEST(FilterNumericKey, DeletingTheSeparatorMayNotJoinTooManyDigits) {
    const QString text = QStringLiteral("12.34");
    EXPECT_EQ(Press(text, KeyDelete, 2, 2, 2), 0);
    EXPECT_EQ(Press(text, KeyBackspace, 2, 2, 3), 0);
    EXPECT_EQ(Press(text, KeyBackspace, 2, 2, 5), KeyBackspace);
    EXPECT_EQ(Press(text, KeyDelete, 2, 2, 2, 3), KeyDelete);
    EXPECT_EQ(Press(text, KeyDelete, 4, 2, 2), KeyDelete);
}

TEST(FilterNumericKey, NoLimitMeansNone) {
    const QString text(200, QChar(u'7'));
    EXPECT_EQ(Press(text, '7', NoLimit, 0), '7');
    EXPECT_EQ(Press(text, '7', 200, 0), 0);
}

TEST(FilterNumericKey, FollowsTheLocalesSeparator) {
    EXPECT_EQ(FilterNumericKey({QStringLiteral("1"), 1, 0}, ',', 3, 3, QChar(u',')), ',');
    EXPECT_EQ(FilterNumericKey({QStringLiteral("1"), 1, 0}, '.', 3, 3, QChar(u',')), 0);
}

TEST(FieldValue, TakesTheLocalesSeparatorAndThePoint) {
    EXPECT_EQ(FieldValue(QStringLiteral("7.143")), 7.143);
    EXPECT_EQ(FieldValue(QStringLiteral(" 12 inches")), 12);
    EXPECT_EQ(FieldValue(QStringLiteral("abc")), 0);
    EXPECT_EQ(FieldValue(QStringLiteral("-5")), 0);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(FieldValue(QStringLiteral("7,143")), 7.143);
    EXPECT_EQ(FieldValue(QStringLiteral("7.143")), 7.143);
    EXPECT_EQ(FieldText("7.143"), QStringLiteral("7,143"));
    QLocale::setDefault(before);
    EXPECT_EQ(FieldText("7.143"), QStringLiteral("7.143"));
}

TEST(KeepNumericChars, KeepsDigitsAndFullStopsInOrder) {
    EXPECT_EQ(KeepNumericChars(QStringLiteral("a1.2b,3..-4")), QStringLiteral("1.23..4"));
    EXPECT_EQ(KeepNumericChars({}), QString());
}

} // namespace
} // namespace zol
