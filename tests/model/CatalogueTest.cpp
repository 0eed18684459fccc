#include "model/Catalogue.h"

#include "model/CheckManager.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

namespace {

constexpr CAppCheckInfo Zero;
static_assert(Zero.GetGroup() == 0 && Zero.GetPosition() == 0 && Zero.GetBitmapID() == 0);
static_assert(Zero.GetMenuTextID() == 0 && Zero.GetTabTextID() == 0 && Zero.GetCommandID() == 0);

std::vector<int> TypesOfGroup(unsigned group) {
    std::vector<int> types;
    for (const AppCheckRow& row : AppChecks())
        if (row.info.GetGroup() == group)
            types.push_back(row.type);
    return types;
}

int CountOfGroupsThatHold(int type) {
    int count = 0;
    for (const CheckGroup& group : CheckGroups())
        count += group.Holds(type);
    return count;
}

bool HasPicture(ImageType type, unsigned id) {
    return !LoadImageSource(type, id).isEmpty();
}

} // namespace

TEST(Catalogue, RecordGivesItsSixFields) {
    constexpr CAppCheckInfo Info(1, 2, 3, 4, 5, 6);
    EXPECT_EQ(Info.GetGroup(), 1u);
    EXPECT_EQ(Info.GetPosition(), 2u);
    EXPECT_EQ(Info.GetBitmapID(), 3u);
    EXPECT_EQ(Info.GetMenuTextID(), 4u);
    EXPECT_EQ(Info.GetTabTextID(), 5u);
    EXPECT_EQ(Info.GetCommandID(), 6u);
}

TEST(Catalogue, BothTablesHoldTheOfferedChecksInOneOrder) {
    ASSERT_EQ(AppChecks().size(), 54u);
    ASSERT_EQ(PageChecks().size(), 54u);
    for (size_t i = 0; i < AppChecks().size(); ++i) {
        const CAppCheckInfo& info = AppChecks()[i].info;
        const PageCheckRow& page = PageChecks()[i];
        EXPECT_EQ(page.commandID, info.GetCommandID());
        EXPECT_EQ(page.group, info.GetGroup());
        EXPECT_EQ(page.position, info.GetPosition());
        const ContainerType* container = FindContainerOfChild(AppChecks()[i].type);
        EXPECT_EQ(page.type, container ? container->container : AppChecks()[i].type);
    }
}

TEST(Catalogue, PositionsRestartInEachGroupWithoutGaps) {
    std::map<unsigned, unsigned> next;
    for (const AppCheckRow& row : AppChecks())
        EXPECT_EQ(row.info.GetPosition(), next[row.info.GetGroup()]++) << row.type;
    EXPECT_EQ(next, (std::map<unsigned, unsigned>{{0, 20}, {1, 4}, {2, 8}, {3, 8}, {4, 2}, {5, 7}, {6, 5}}));
}

TEST(Catalogue, OrderWithinAGroupIsNotThatOfTheCodes) {
    EXPECT_EQ(TypesOfGroup(0), (std::vector<int>{101, 102, 104, 108, 107, 109, 110, 111, 119, 112,
                                                 120, 113, 114, 115, 116, 117, 118, 121, 123, 124}));
    EXPECT_EQ(TypesOfGroup(1), (std::vector<int>{201, 202, 301, 203}));
    EXPECT_EQ(TypesOfGroup(3), (std::vector<int>{302, 304, 307, 308, 309, 312, 313, 314}));
}

TEST(Catalogue, CodesAndCommandsAreUnique) {
    std::set<int> appTypes;
    std::set<int> pageTypes;
    std::set<unsigned> commands;
    for (size_t i = 0; i < AppChecks().size(); ++i) {
        EXPECT_TRUE(appTypes.insert(AppChecks()[i].type).second);
        EXPECT_TRUE(pageTypes.insert(PageChecks()[i].type).second);
        EXPECT_TRUE(commands.insert(AppChecks()[i].info.GetCommandID()).second);
    }
    EXPECT_GE(*commands.begin(), 32771u);
    EXPECT_LE(*commands.rbegin(), 32936u);
}

TEST(Catalogue, GroupOfEveryRowFollowsFromItsCode) {
    for (size_t i = 0; i < AppChecks().size(); ++i) {
        const unsigned group = AppChecks()[i].info.GetGroup();
        for (const int type : {AppChecks()[i].type, PageChecks()[i].type}) {
            EXPECT_EQ(GroupOfCheckType(type), group) << type;
            EXPECT_TRUE(CheckGroups()[group].Holds(type)) << type;
        }
    }
}

TEST(Catalogue, DatumCheckBelongsToTheAnnotations) {
    EXPECT_EQ(GroupOfCheckType(301), 1u);
    EXPECT_EQ(GroupOfCheckType(302), 3u);
    EXPECT_TRUE(CheckGroups()[1].Holds(301));
    EXPECT_FALSE(CheckGroups()[3].Holds(301));
}

TEST(Catalogue, GroupChangesAtTheTurnOfTheRanges) {
    const std::map<int, unsigned> groups{{100, 0}, {199, 0}, {200, 1}, {399, 3}, {400, 2}, {499, 2},
                                         {500, 4}, {599, 4}, {600, 5}, {699, 5}, {700, 6}, {799, 6}};
    for (const auto& [type, group] : groups)
        EXPECT_EQ(GroupOfCheckType(type), group) << type;
    for (int type = 100; type < 800; ++type)
        EXPECT_EQ(CountOfGroupsThatHold(type), 1) << type;
}

TEST(Catalogue, CodeOutsideAllRangesIsShownInTheFirstGroupButStandsInNone) {
    for (int type : {-1, 0, 99, 800, 1000000}) {
        EXPECT_EQ(GroupOfCheckType(type), 0u) << type;
        EXPECT_EQ(CountOfGroupsThatHold(type), 0) << type;
    }
}

TEST(Catalogue, RepeatableCheckIsPairedByItsCommand) {
    EXPECT_EQ(FindPageCheck(104), nullptr);
    const std::map<int, int> containers{{104, 105}, {121, 122}, {124, 127}, {304, 303}, {308, 310}};
    for (const AppCheckRow& row : AppChecks()) {
        const PageCheckRow* page = FindPageCheckByCommand(row.info.GetCommandID());
        ASSERT_TRUE(page);
        const auto container = containers.find(row.type);
        EXPECT_EQ(page->type, container != containers.end() ? container->second : row.type);
        EXPECT_EQ(FindAppCheckByCommand(page->commandID), &row);
        EXPECT_EQ(FindPageCheck(page->type), page);
    }
    EXPECT_EQ(FindPageCheckByCommand(32773)->type, 105);
}

TEST(Catalogue, UnknownCommandOrCodeHasNoRow) {
    for (unsigned command : {0u, 32770u, 32937u}) {
        EXPECT_EQ(FindPageCheckByCommand(command), nullptr);
        EXPECT_EQ(FindAppCheckByCommand(command), nullptr);
    }
    for (int type : {0, 103, 106, 125, 126, 128, 305, 306, 311, 605})
        EXPECT_EQ(FindPageCheck(type), nullptr) << type;
}

TEST(Catalogue, NumbersThatStandForSeveralThings) {
    EXPECT_EQ(FindAppCheckByCommand(32788)->info.GetBitmapID(), 1167u);
    EXPECT_EQ(FindAppCheckByCommand(32889)->info.GetBitmapID(), 1167u);
    EXPECT_EQ(FindAppCheckByCommand(32890)->info.GetBitmapID(), 1169u);
    EXPECT_EQ(FindAppCheckByCommand(32893)->info.GetBitmapID(), 1169u);
    const CAppCheckInfo& mates = FindAppCheckByCommand(32936)->info;
    EXPECT_EQ(mates.GetBitmapID(), 32961u);
    EXPECT_EQ(mates.GetMenuTextID(), 32937u);
    EXPECT_EQ(mates.GetTabTextID(), 32938u);
    EXPECT_EQ(FindPageCheck(608)->dialogTemplateID, 32935u);
    EXPECT_EQ(FindAppCheckByCommand(32924)->info.GetTabTextID(), 1221u);
}

TEST(Catalogue, ElevenFontChecksShareOnePane) {
    int count = 0;
    for (const PageCheckRow& row : PageChecks())
        if (row.dialogTemplateID == 1080) {
            EXPECT_STREQ(row.dialogClass, "CDocFontCheckDlg");
            ++count;
        }
    EXPECT_EQ(count, 11);
}

TEST(Catalogue, EveryRowHasItsTextsAndPictures) {
    for (const AppCheckRow& row : AppChecks()) {
        EXPECT_FALSE(LoadString(row.info.GetMenuTextID()).isEmpty()) << row.type;
        EXPECT_FALSE(LoadString(row.info.GetTabTextID()).isEmpty()) << row.type;
        EXPECT_TRUE(HasPicture(ImageType::Bitmap, row.info.GetBitmapID())) << row.type;
    }
}

TEST(Catalogue, EveryGroupHasItsTextsAndPictures) {
    ASSERT_EQ(CheckGroups().size(), 7u);
    for (const CheckGroup& group : CheckGroups()) {
        EXPECT_FALSE(LoadString(group.tabTooltipText).isEmpty()) << group.firstType;
        EXPECT_FALSE(LoadString(group.menuText).isEmpty()) << group.firstType;
        EXPECT_TRUE(HasPicture(ImageType::Icon, group.tabIcon)) << group.firstType;
        EXPECT_TRUE(HasPicture(ImageType::Bitmap, group.menuBitmap)) << group.firstType;
        EXPECT_TRUE(HasPicture(ImageType::Toolbar, group.toolbar)) << group.firstType;
        EXPECT_TRUE(HasPicture(ImageType::Bitmap, group.toolbarBitmap)) << group.firstType;
    }
}

TEST(Catalogue, GroupsAreShownInTheirOwnOrder) {
    const char* const names[] = {"Documents", "Annotations", "Dimensions", "Drawings",
                                 "Parts",     "Assemblies",  "Features"};
    for (size_t i = 0; i < std::size(names); ++i)
        EXPECT_EQ(LoadString(CheckGroups()[i].tabTooltipText), names[i]);
}

TEST(Catalogue, EveryOfferedCheckHasANameOfItsType) {
    for (const PageCheckRow& row : PageChecks())
        EXPECT_FALSE(CCheck(row.type, 0, 0, 0, 1).Name.isEmpty()) << row.type;
}
