// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <map>
#include <random>

#include "model/KeyedTable.h"

namespace zol {
namespace {

using Table = KeyedTable<int>;
using ::testing::ElementsAre;

std::vector<int> Records(const Table& table) {
    std::vector<int> records;
    table.ForEach([&records](int record) { records.push_back(record); });
    return records;
}

TEST(KeyedTable, KeepsTheOrderOfAddingOverRemovals) {
    Table table;
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(table.Add(Table::KeyOf(i, 9 - i), i));
    }
    EXPECT_TRUE(table.Remove(Table::KeyOf(1, 8)));
    EXPECT_TRUE(table.Add(Table::KeyOf(1, 8), 10));
    EXPECT_THAT(Records(table), ElementsAre(0, 2, 3, 4, 10));
}

TEST(KeyedTable, AKeyThatIsThereAlreadyChangesNothing) {
    Table table;
    EXPECT_TRUE(table.Add(5, 1));
    EXPECT_FALSE(table.Add(5, 2));
    EXPECT_EQ(*table.Find(5), 1);
    EXPECT_EQ(table.Count(), 1U);
}

TEST(KeyedTable, MissingKeysAreOrdinary) {
    Table table;
    EXPECT_EQ(table.Find(1), nullptr);
    EXPECT_FALSE(table.Remove(1));
    EXPECT_TRUE(table.IsEmpty());
}

TEST(KeyedTable, KeyTellsRowFromColumn) {
    EXPECT_NE(Table::KeyOf(1, 2), Table::KeyOf(2, 1));
    EXPECT_EQ(Table::KeyOf(1, 2), 0x00010002U);
}

TEST(KeyedTable, RemoveUnlessWalksInOrderAndRemoves) {
    Table table;
    for (int i = 0; i < 10; ++i) {
        table.Add(static_cast<Table::Key>(i), i);
    }
    std::vector<int> seen;
    table.RemoveUnless([&seen](int record) {
        seen.push_back(record);
        return record % 3 == 0;
    });
    EXPECT_EQ(seen.size(), 10U);
    EXPECT_THAT(Records(table), ElementsAre(0, 3, 6, 9));
    EXPECT_EQ(*table.Find(6), 6);
    EXPECT_EQ(table.Find(4), nullptr);
}

TEST(KeyedTable, AgreesWithAnOrdinaryMapOverManyChanges) {
    std::mt19937 random(7);
    Table table;
    std::map<Table::Key, int> told;
    std::vector<Table::Key> order;
    for (int i = 0; i < 20'000; ++i) {
        const Table::Key key = static_cast<Table::Key>(random() % 300U) << (random() % 2 * 16U);
        if (random() % 2 == 0) {
            const bool fresh = told.try_emplace(key, i).second;
            ASSERT_EQ(table.Add(key, i), fresh);
            if (fresh) {
                order.push_back(key);
            }
        } else {
            ASSERT_EQ(table.Remove(key), told.erase(key) == 1);
            std::erase(order, key);
        }
        ASSERT_EQ(table.Count(), told.size());
    }
    std::vector<int> expected;
    for (const Table::Key key : order) {
        expected.push_back(told.at(key));
        ASSERT_EQ(*table.Find(key), told.at(key));
    }
    EXPECT_EQ(Records(table), expected);
}

} // namespace
} // namespace zol
