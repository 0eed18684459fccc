#include "engines/EnumEngine.h"

#include "engines/ParameterKinds.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>
#include <limits>
#include <type_traits>
#include <vector>

namespace {

// Nothing but the pointer of the virtual destructor, so there is nothing that making one could allocate.
static_assert(sizeof(CEnumEngine) == sizeof(void*));
static_assert(std::is_nothrow_default_constructible_v<CEnumEngine>);

unsigned long ItemIdOf(int type, unsigned long value) {
    unsigned long id = 77;
    EXPECT_TRUE(CEnumEngine().GetItemID(type, value, id)) << type;
    return id;
}

CString Shown(int type, unsigned long value) {
    CString text = "before";
    EXPECT_TRUE(CEnumEngine().GetDisplayString(type, value, text)) << type;
    return text;
}

} // namespace

TEST(EnumEngine, ItemIsThePictureWhereTheListHasPicturesElseTheText) {
    EXPECT_EQ(ItemIdOf(KindArrowStyle, 0), 1124);
    EXPECT_EQ(ItemIdOf(KindArrowStyle, 1), 1123);
    EXPECT_EQ(ItemIdOf(KindArrowStyle, 10), 1133);
    EXPECT_EQ(ItemIdOf(KindTextAlign4, 2), 1336);
    EXPECT_EQ(ItemIdOf(KindDraftingStandard, 7), 1827);
    EXPECT_EQ(ItemIdOf(KindFileLocationType, 35), 2462);
    EXPECT_EQ(ItemIdOf(KindSheetFormatRule, 1), 2491);
}

TEST(EnumEngine, ItemOfAFileLocationOptionIsTheHostsOwnNumber) {
    EXPECT_EQ(ItemIdOf(KindFileLocationOption, 0), 6);
    EXPECT_EQ(ItemIdOf(KindFileLocationOption, 24), 7);
    EXPECT_EQ(ItemIdOf(KindFileLocationOption, 35), 58);
    EXPECT_EQ(ItemIdOf(KindFileLocationOption, 36), 0);
}

TEST(EnumEngine, MissingKeysHaveTheNumberZeroAndTheEmptyText) {
    EXPECT_EQ(ItemIdOf(KindArrowStyle, 11), 0);
    EXPECT_EQ(ItemIdOf(KindDraftingStandard, 0), 0);
    EXPECT_EQ(ItemIdOf(KindDocumentUnit10, 8), 0);
    EXPECT_EQ(ItemIdOf(KindLengthUnit, CEnumEngine::NotFound), 0);
    EXPECT_EQ(Shown(KindAngleUnit, 1), "");
    EXPECT_EQ(Shown(KindCustomPropertyType, 1), "");
}

TEST(EnumEngine, OnlyListsHaveItems) {
    for (const int type : {-1, 0, 1, 2, 5, 12, 23, 24, 31, 37, 1000}) {
        unsigned long id = 77;
        EXPECT_FALSE(CEnumEngine().GetItemID(type, 1, id)) << type;
        EXPECT_EQ(id, 77) << type;
    }
    for (const int type : {3, 4, 6, 11, 13, 16, 22, 25, 30, 32, 33, 34, 35, 36})
        ItemIdOf(type, 1);
}

TEST(EnumEngine, TextsFollowTheKeysOfTheHost) {
    EXPECT_EQ(Shown(KindLengthUnit, 3), LoadString(1629));
    EXPECT_EQ(Shown(KindLengthUnit, 10), LoadString(1627));
    EXPECT_EQ(Shown(KindCustomPropertyType, 64), LoadString(1718));
    EXPECT_EQ(Shown(KindLineStyle, 3), LoadString(1854));
    EXPECT_EQ(Shown(KindTextAlign4, 4), LoadString(1337));
    EXPECT_EQ(Shown(KindSketchState, 5), LoadString(1932));
    EXPECT_NE(Shown(KindSketchState, 5), "");
}

TEST(EnumEngine, PlainNumbersAreShownAsSignedNumbers) {
    EXPECT_EQ(Shown(KindPlain, 12), "12");
    EXPECT_EQ(Shown(KindPlain, 0xFFFFFFFF), "-1");
    EXPECT_EQ(Shown(KindPlain, std::numeric_limits<unsigned long>::max()), "-1");
}

TEST(EnumEngine, AnyNonZeroBooleanIsYes) {
    EXPECT_EQ(Shown(KindBoolean, 0), LoadString(1661));
    EXPECT_EQ(Shown(KindBoolean, 1), LoadString(1660));
    EXPECT_EQ(Shown(KindBoolean, 2), LoadString(1660));
    EXPECT_NE(LoadString(1660), LoadString(1661));
}

TEST(EnumEngine, TheUnusedListShowsAnEmptyTextForAnyValue) {
    EXPECT_EQ(Shown(KindUnused, 0), "");
    EXPECT_EQ(Shown(KindUnused, 12345), "");
}

TEST(EnumEngine, TypesWithoutATextEmptyIt) {
    for (const int type : {-1, 1, 2, 5, 12, 31, 34, 37, 1000}) {
        CString text = "before";
        EXPECT_FALSE(CEnumEngine().GetDisplayString(type, 1, text)) << type;
        EXPECT_EQ(text, "") << type;
    }
}

TEST(EnumEngine, PicturesComeWithTheirText) {
    CString text;
    QImage bitmap;
    EXPECT_TRUE(CEnumEngine().GetImageAndText(KindLineStyle, 3, text, bitmap));
    EXPECT_EQ(text, LoadString(1854));
    EXPECT_EQ(bitmap, LoadImageOf(ImageType::Bitmap, 149));
    EXPECT_FALSE(bitmap.isNull());
    EXPECT_FALSE(CEnumEngine().GetImageAndText(KindLengthUnit, 0, text, bitmap));
    EXPECT_EQ(text, "");
    EXPECT_TRUE(bitmap.isNull());
}

TEST(EnumEngine, AValueIsFoundByItsPicture) {
    unsigned long value = 77;
    EXPECT_TRUE(CEnumEngine().FindValueByImage(KindLineStyle, 149, value));
    EXPECT_EQ(value, 3);
    EXPECT_TRUE(CEnumEngine().FindValueByImage(KindTextAlign4, 1337, value));
    EXPECT_EQ(value, 4);
}

TEST(EnumEngine, NoPictureAskedForIsASuccessThatChangesNothing) {
    unsigned long value = 77;
    EXPECT_TRUE(CEnumEngine().FindValueByImage(KindLineStyle, 0, value));
    EXPECT_EQ(value, 77);
}

TEST(EnumEngine, AnUnknownPictureStoresMinusOneIn32Bits) {
    unsigned long value = 77;
    EXPECT_FALSE(CEnumEngine().FindValueByImage(KindLineStyle, 1124, value));
    EXPECT_EQ(value, 0xFFFFFFFF);
    value = 77;
    EXPECT_FALSE(CEnumEngine().FindValueByImage(KindLengthUnit, 1624, value));
    EXPECT_EQ(value, 0xFFFFFFFF);
}

TEST(EnumEngine, EveryShownTextOfASearchedListLeadsBackToItsValue) {
    for (const int type : {4, 6, 7, 8, 9, 10, 11, 13, 14, 15, 17, 18, 19, 22, 30, 33, 35, 36})
        for (unsigned long key = 0; key <= 64; ++key) {
            const CString text = Shown(type, key);
            if (text.isEmpty())
                continue;
            unsigned long value = 77;
            EXPECT_TRUE(CEnumEngine().FindValueByText(type, text, value));
            EXPECT_EQ(value, key) << "type " << type;
        }
}

TEST(EnumEngine, AnEmptyTextIsFoundWithoutChangingTheValue) {
    unsigned long value = 77;
    EXPECT_TRUE(CEnumEngine().FindValueByText(KindLengthUnit, "", value));
    EXPECT_EQ(value, 77);
}

TEST(EnumEngine, TextsAreComparedExactly) {
    unsigned long value = 77;
    EXPECT_FALSE(CEnumEngine().FindValueByText(KindLengthUnit, LoadString(1624).toUpper(), value));
    EXPECT_EQ(value, 0xFFFFFFFF);
    EXPECT_FALSE(CEnumEngine().FindValueByText(KindLengthUnit, LoadString(1624) + " ", value));
}

TEST(EnumEngine, PicturesAndSketchStatesAreNotFoundByTheirText) {
    for (const auto& [type, id] : {std::pair(KindLineStyle, 1851U), std::pair(KindSketchState, 1931U),
                                   std::pair(KindBoolean, 1660U), std::pair(KindUnused, 1660U)}) {
        unsigned long value = 77;
        EXPECT_FALSE(CEnumEngine().FindValueByText(type, LoadString(id), value)) << type;
        EXPECT_EQ(value, 0xFFFFFFFF) << type;
    }
}

TEST(EnumEngine, ValueKindsTellTextMeasureColourAndPicture) {
    const std::vector<int> expected{0, 1, 1, 3, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                    0, 0, 0, 3, 3, 0, 0, 0, 3, 3, 3, 3, 3, 0, 1, 3};
    for (int type = 0; type <= 32; ++type) {
        int kind = 77;
        EXPECT_TRUE(CEnumEngine().GetValueKind(type, kind)) << type;
        EXPECT_EQ(kind, expected[type]) << type;
    }
}

TEST(EnumEngine, LaterTypesHaveNoValueKind) {
    for (const int type : {-1, 33, 34, 35, 36, 37}) {
        int kind = 77;
        EXPECT_FALSE(CEnumEngine().GetValueKind(type, kind)) << type;
        EXPECT_EQ(kind, 77) << type;
    }
}

TEST(EnumEngine, CriticalitiesHaveOnePictureInTheReportAndAnotherInTheWindows) {
    const std::vector<std::vector<unsigned>> expected{
        {2267, 1425, 1429}, {2268, 1424, 1428}, {2269, 1423, 1426}, {2270, 1422, 1427}, {2268, 1424, 1428}};
    for (unsigned long value = 0; value < expected.size(); ++value) {
        CString text;
        unsigned long icon = 0;
        CEnumEngine().GetCriticalityTextAndIcon(value, text, icon);
        EXPECT_EQ(text, LoadString(expected[value][0]));
        EXPECT_EQ(icon, expected[value][1]);
        text.clear();
        GetCriticalityIcon(value, text, icon);
        EXPECT_EQ(text, LoadString(expected[value][0]));
        EXPECT_EQ(icon, expected[value][2]);
    }
}

TEST(EnumEngine, HoleTypesHaveFixedNames) {
    CString name = "before";
    CEnumEngine().GetHoleTypeName(149, name);
    EXPECT_EQ(name, "Slotted Cheese Head  JIS B 1101p1");
    CEnumEngine().GetHoleTypeName(246, name);
    EXPECT_EQ(name, "");
}
