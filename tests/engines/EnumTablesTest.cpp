#include "engines/EnumTables.h"

#include "engines/ParameterKinds.h"

#include <gtest/gtest.h>

TEST(EnumTables, ARunCountsOnFromItsFirstKeyAndNumber) {
    constexpr IdRun Runs[] = {{1, 100, 3}, {7, 50}};
    EXPECT_EQ(IdOf(Runs, 0), 0U);
    EXPECT_EQ(IdOf(Runs, 1), 100U);
    EXPECT_EQ(IdOf(Runs, 3), 102U);
    EXPECT_EQ(IdOf(Runs, 4), 0U);
    EXPECT_EQ(IdOf(Runs, 7), 50U);
    EXPECT_EQ(IdOf(Runs, 4294967295U), 0U);
    EXPECT_EQ(IdOf({}, 0), 0U);
}

TEST(EnumTables, TheLowestOfTwoMatchingKeysIsFound) {
    constexpr IdRun Runs[] = {{2, 100, 2}, {7, 100}};
    const FoundKey found = FindKey(Runs, [](std::uint32_t id) { return id == 100; });
    EXPECT_TRUE(found.found);
    EXPECT_EQ(found.key, 2U);
    EXPECT_FALSE(FindKey(Runs, [](std::uint32_t id) { return id == 99; }).found);
}

TEST(EnumTables, EveryPictureHasATextUnderTheSameKey) {
    for (int type = 0; type < ParameterKindCount; ++type) {
        const ValueList& list = ValueListOf(type);
        FindKey(list.images, [&](std::uint32_t image) {
            const FoundKey key = FindKey(list.images, [image](std::uint32_t id) { return id == image; });
            EXPECT_NE(IdOf(list.texts, key.key), 0U) << "image " << image;
            return false;
        });
    }
}

TEST(EnumTables, NumbersThatAreNoKindHaveAnEmptyList) {
    for (const int type : {-1, ParameterKindCount}) {
        EXPECT_EQ(ValueListOf(type).use, ListUse::None);
        EXPECT_EQ(ValueListOf(type).valueKind, NoValueKind);
        EXPECT_TRUE(ValueListOf(type).texts.empty());
    }
}
