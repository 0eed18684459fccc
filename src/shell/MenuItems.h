// The menus of the tool as the application holds them: each object is one item, and for a menu or sub-menu
// also the list of what stands in it. The platform draws them.
#pragma once

#include "platform/Text.h"

#include <QMenu>
#include <memory>
#include <vector>

class CommandRouter;

// The menus that stand in the menu bar. There are two file menus: which one is shown depends on whether a
// document is open.
enum class MenuRoot { FileWithDocument, FileWithoutDocument, Edit, Checks, Window, Help };

class CMenuItems {
public:
    CMenuItems() = default;
    // An item's text is that of a number of the language library, cut at its first tab: what follows is the
    // accelerator.
    CMenuItems(unsigned bitmapID, unsigned textID, int command, unsigned disabledBitmapID);

    // Makes the menu of a root or a sub-menu. The title is that of the bar, or the item's own text.
    void MakeMenu(const CString& title);
    CMenuItems& AppendItem(CommandRouter& router, unsigned bitmapID, unsigned textID, unsigned command,
                           unsigned disabledBitmapID = 0);
    CMenuItems& AppendPopup(unsigned bitmapID, unsigned textID);
    void AppendSeparator();

    // Null for what is no menu.
    QMenu* GetMenu() const { return m_menu.get(); }

    CString Text;        // with its mnemonic mark
    CString Accelerator; // as it is shown, empty where there is none
    int Command = -1;
    unsigned BitmapID = 0;
    unsigned DisabledBitmapID = 0;
    int Width = 200;
    int Height = 20;
    int AcceleratorKey = 0; // the last character of the accelerator less 64, so that Ctrl+A is 1
    std::vector<std::unique_ptr<CMenuItems>> Children; // one for each place in the menu, null at a separator

private:
    std::unique_ptr<QMenu> m_menu;
};

// The height of an item on a screen of that resolution, in its pixels.
int MenuItemHeight(int horizontalDpi, int verticalDpi);
