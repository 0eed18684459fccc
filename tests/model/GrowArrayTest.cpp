#include "model/GrowArray.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

namespace {

CGrowArray<int> ArrayOf(int count) {
    CGrowArray<int> array;
    for (int i = 0; i < count; ++i)
        array.Add(i + 1);
    return array;
}

} // namespace

TEST(GrowArray, NewOneHasTenSlotsThatReadAsZero) {
    const CGrowArray<int*> array;
    EXPECT_EQ(array.Count, 0);
    EXPECT_EQ(array.Capacity, 10);
    EXPECT_EQ(array.GrowBy, 1);
    for (int i = 0; i < array.Capacity; ++i)
        EXPECT_EQ(array[i], nullptr);
}

TEST(GrowArray, EleventhElementGivesCapacityElevenAndTheTwelfthFifteen) {
    CGrowArray<int> array = ArrayOf(10);
    EXPECT_EQ(array.Capacity, 10);
    array.Add(11);
    EXPECT_EQ(array.Capacity, 11);
    array.Add(12);
    EXPECT_EQ(array.Capacity, 15);
}

TEST(GrowArray, StepGrowsByThreeAndFromTenOnByAFifth) {
    CGrowArray<int> array;
    std::vector<int> capacities{array.Capacity};
    for (int i = 0; i < 80; ++i) {
        EXPECT_EQ(array.Add(i), i);
        if (array.Capacity != capacities.back())
            capacities.push_back(array.Capacity);
    }
    EXPECT_EQ(capacities, (std::vector<int>{10, 11, 15, 22, 32, 44, 58, 74, 93}));
    for (int i = 0; i < array.Capacity; ++i)
        EXPECT_EQ(array[i], i < 80 ? i : 0);
}

TEST(GrowArray, RemovingMovesTheLaterOnesDown) {
    CGrowArray<int> array = ArrayOf(4);
    EXPECT_TRUE(array.RemoveAt(1));
    EXPECT_EQ(std::vector<int>(array.begin(), array.end()), (std::vector<int>{1, 3, 4}));
    EXPECT_EQ(array[3], 0);
    EXPECT_TRUE(array.Remove(4));
    EXPECT_FALSE(array.Remove(4));
    EXPECT_EQ(array.Count, 2);
}

TEST(GrowArray, RemovingOutsideIsRefused) {
    CGrowArray<int> array = ArrayOf(2);
    EXPECT_FALSE(array.RemoveAt(2));
    EXPECT_FALSE(array.RemoveAt(-1));
    EXPECT_EQ(array.Count, 2);
}

TEST(GrowArray, ClearingGoesBackToTheStart) {
    for (int count : {3, 30}) {
        CGrowArray<int> array = ArrayOf(count);
        array.Clear();
        EXPECT_EQ(array.Count, 0);
        EXPECT_EQ(array.Capacity, 10);
        EXPECT_EQ(array.GrowBy, 1);
        for (int i = 0; i < array.Capacity; ++i)
            EXPECT_EQ(array[i], 0);
    }
}

TEST(GrowArray, ClearingReusesTheMemoryOfAnArrayThatHasNotGrown) {
    CGrowArray<int> array = ArrayOf(10);
    const auto memory = reinterpret_cast<std::uintptr_t>(array.Data.get());
    array.Clear();
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(array.Data.get()), memory);
}

TEST(GrowArray, AssigningCopiesElementsCapacityAndStepIntoMemoryOfItsOwn) {
    CGrowArray<int> source = ArrayOf(12);
    CGrowArray<int> copy = ArrayOf(40);
    copy = source;
    source[0] = 99;
    EXPECT_EQ(copy.Count, 12);
    EXPECT_EQ(copy.Capacity, 15);
    EXPECT_EQ(copy.GrowBy, 7);
    EXPECT_EQ(copy[0], 1);
    EXPECT_EQ(copy[11], 12);
    EXPECT_EQ(copy[14], 0);
    const auto& itself = copy;
    copy = itself;
    EXPECT_EQ(copy[11], 12);
}
