#include "shell/MenuItems.h"

#include "platform/widgets/CommandRouter.h"
#include "shell/CommandTable.h"

#include <gtest/gtest.h>

TEST(MenuItems, HeightFollowsTheScreensResolution) {
    EXPECT_EQ(MenuItemHeight(96, 96), 20);
    EXPECT_EQ(MenuItemHeight(120, 120), 22);
    EXPECT_EQ(MenuItemHeight(144, 144), 33);
    EXPECT_EQ(MenuItemHeight(192, 192), 44);
    EXPECT_EQ(MenuItemHeight(120, 96), 22); // 96 / 4.36, cut off
    EXPECT_EQ(MenuItemHeight(96, 120), 27);
}

TEST(MenuItems, ATextWithoutATabHasNoAccelerator) {
    const CMenuItems item(0, 2091, 57602, 0);
    EXPECT_EQ(item.Text, "&Close");
    EXPECT_TRUE(item.Accelerator.isEmpty());
    EXPECT_EQ(item.AcceleratorKey, 0);
}

TEST(MenuItems, TheAcceleratorKeyIsItsLastCharacterLess64) {
    const CMenuItems item(1175, 2087, 57600, 0);
    EXPECT_EQ(item.Text, "&New");
    EXPECT_EQ(item.Accelerator, "Ctrl+N");
    EXPECT_EQ(item.AcceleratorKey, 14);
    EXPECT_EQ(item.Width, 200);
    EXPECT_EQ(item.Height, 20);
    EXPECT_EQ(CMenuItems().Command, -1);
}

TEST(MenuItems, ASeparatorKeepsItsPlaceAmongTheChildren) {
    CommandRouter router([] { return std::vector<CommandTarget*>(); });
    CMenuItems menu;
    menu.MakeMenu("&File");
    menu.AppendItem(router, 1175, 2087, 57600);
    menu.AppendSeparator();
    menu.AppendItem(router, 0, 2096, 57665);
    ASSERT_EQ(menu.Children.size(), 3u);
    EXPECT_EQ(menu.Children[1], nullptr);
    EXPECT_EQ(menu.GetMenu()->actions().indexOf(router.ActionOf(57665)), 2);
}
