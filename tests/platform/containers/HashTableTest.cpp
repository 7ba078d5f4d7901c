#include "velkor/containers/QORHashTable.h"
#include "velkor/containers/QORListVal.h"
#include "velkor/containers/QORSysSimpleHashTable.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace {

struct Record {
    unsigned int key;
    std::string text;
};

unsigned int keyOf(void* record) {
    return static_cast<Record*>(record)->key;
}
int sameText(void* a, void* b) {
    return static_cast<Record*>(a)->text == static_cast<Record*>(b)->text ? 1 : 0;
}
int compareKeys(void* a, void* b) {
    return keyOf(a) == keyOf(b) ? 0 : 1;
}

TEST(QORSysSimpleHashTable, keepsTheFirstOfTheSame) {
    Record first{1, "wall"}, again{1, "wall"}, collides{1, "door"}, absent{1, "slab"};
    QORSysSimpleHashTable table(0, keyOf, sameText);
    EXPECT_EQ(table.Insert(&first), 1);
    EXPECT_EQ(table.Insert(&again), 0);
    EXPECT_EQ(table.Insert(&collides), 1);
    EXPECT_EQ(table.Insert(nullptr), 0);
    EXPECT_EQ(table.Size(), 2);
    EXPECT_EQ(table.Locate(&again), &first);
    EXPECT_EQ(table.Locate(&absent), nullptr);
    EXPECT_EQ(table.KeyLocate(1), &first);
    EXPECT_EQ(table.KeyLocate(2), nullptr);

    EXPECT_EQ(table.Remove(&again), &first);
    EXPECT_EQ(table.Remove(&again), nullptr);
    EXPECT_EQ(table.KeyLocate(1), &collides);
    table.RemoveAll();
    EXPECT_EQ(table.Size(), 0);
    EXPECT_EQ(table.Insert(&again), 1);
}

TEST(QORSysSimpleHashTable, keepsOrderThroughGrowthAndRemoval) {
    std::deque<Record> records;
    QORSysSimpleHashTable table(0, keyOf, sameText);
    for (unsigned int i = 0; i < 5000; ++i) {
        records.push_back({i * 4096, std::to_string(i)});
        ASSERT_EQ(table.Insert(&records.back()), 1);
    }
    for (unsigned int i = 0; i < 5000; i += 2) ASSERT_EQ(table.Remove(&records[i]), &records[i]);
    for (unsigned int i = 0; i < 5000; i += 4) ASSERT_EQ(table.Insert(&records[i]), 1);
    std::vector<void*> expected;
    for (unsigned int i = 1; i < 5000; i += 2) expected.push_back(&records[i]);
    for (unsigned int i = 0; i < 5000; i += 4) expected.push_back(&records[i]);
    std::vector<void*> walked;
    for (void* entry = table.Next(nullptr); entry != nullptr; entry = table.Next(entry)) walked.push_back(entry);
    EXPECT_EQ(walked, expected);
    for (void* entry : expected) ASSERT_EQ(table.Locate(entry), entry);
}

TEST(QORHashTable, walksAndFindsByPosition) {
    Record a{10, "a"}, b{20, "b"}, sameAsA{10, "c"};
    int extra = 0;
    QORHashTable table(keyOf, compareKeys, 3, &extra);
    EXPECT_EQ(table.Extra(), &extra);
    EXPECT_EQ(table.Insert(&a), &a);
    EXPECT_EQ(table.Insert(&b), &b);
    EXPECT_EQ(table.Insert(&sameAsA), &a);
    EXPECT_EQ(table.Size(), 2);
    EXPECT_EQ(table.Collisions() + table.Dimension() - table.Unused(), 2);

    int bucket = 1, place = 0;
    EXPECT_EQ(table.Next(bucket, place), &a);
    EXPECT_EQ(table.Retrieve(bucket, place), &a);
    EXPECT_EQ(table.Next(bucket, place), &b);
    EXPECT_EQ(table.Next(bucket, place), nullptr);
    int foundBucket = 0, foundPlace = 0;
    EXPECT_EQ(table.LocatePosition(&b, foundBucket, foundPlace), 1);
    EXPECT_EQ(std::pair(foundBucket, foundPlace), std::pair(bucket, place));
    EXPECT_EQ(table.KeyLocatePosition(30, foundBucket, foundPlace), 0);

    std::vector<void*> iterated;
    for (QORHashCodeIter it = table.CreateIterator(); !it.AtEnd(); ++it) iterated.push_back(table[it]);
    EXPECT_EQ(iterated, (std::vector<void*>{&a, &b}));

    void* last = nullptr;
    int result = 0;
    const auto stopAtB = [](void* entry) { return static_cast<Record*>(entry)->text == "b" ? 5 : 0; };
    EXPECT_EQ(table.ApplyGlobalFunct(stopAtB, nullptr, &last, &result), 2);
    EXPECT_EQ(last, &b);
    EXPECT_EQ(result, 5);

    QORHashTable copy = table;
    EXPECT_EQ(copy, table);
    EXPECT_EQ(copy.RemovePosition(1, 1), &a);
    EXPECT_NE(copy, table);
    EXPECT_EQ(table.Locate(&sameAsA), &a);
}

TEST(QORListVal, sortKeepsTheOrderOfTies) {
    QORListVal<std::pair<int, char>> list;
    for (int i = 0; i < 64; ++i) list.Append({i % 3, static_cast<char>('a' + i / 3)});
    list.QuickSort([](const auto& a, const auto& b) { return b.first - a.first; });
    for (int i = 2; i <= list.Size(); ++i) {
        ASSERT_GE(list[i - 1].first, list[i].first);
        if (list[i - 1].first == list[i].first) {
            ASSERT_LT(list[i - 1].second, list[i].second);
        }
    }
    EXPECT_EQ(list.Locate({0, 'a'}), 43);
}

} // namespace
