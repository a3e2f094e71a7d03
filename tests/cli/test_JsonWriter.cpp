// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

#include "cli/JsonWriter.h"

namespace zol {
namespace {

TEST(JsonWriter, WritesWithoutBlanksInAscii) {
    std::ostringstream out;
    JsonWriter json(out);
    json.BeginObject();
    json.Key("a");
    json.BeginArray();
    json.Number(-1);
    json.BeginArray();
    json.EndArray();
    json.Boolean(true);
    json.EndArray();
    json.TextMember("b", "x\"\\\n\x01 \xC3\xA4 \xF0\x9F\xA7\xB5");
    json.Member("c", 4);
    json.EndObject();
    EXPECT_EQ(out.str(), R"({"a":[-1,[],true],"b":"x\"\\\n\u0001 \u00e4 \ud83e\uddf5","c":4})");
}

TEST(JsonWriter, DecimalsHaveAPointAndAtMostSixPlaces) {
    std::ostringstream out;
    JsonWriter json(out);
    json.BeginArray();
    for (const double value : {0.0, 2.0, 0.1, 1.0 / 3, 1234567.8912347}) {
        json.Decimal(value);
    }
    json.EndArray();
    EXPECT_EQ(out.str(), "[0.0,2.0,0.1,0.333333,1234567.891235]");
}

TEST(JsonWriter, WhatIsNoNumberIsNull) {
    std::ostringstream out;
    JsonWriter json(out);
    json.BeginArray();
    for (const double value : {std::nan(""), std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(), 1e300}) {
        json.Decimal(value);
    }
    json.EndArray();
    const std::string text = out.str();
    EXPECT_EQ(text.substr(0, 16), "[null,null,null,");
    EXPECT_EQ(text.size(), 16U + 301U + 3U) << text;
}

} // namespace
} // namespace zol
