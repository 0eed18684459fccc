// The closed list of the checks that a standard may hold: the group of each, how it is reached and what edits
// it. Two tables with one row per offered check, joined by command, group and position: a check that may
// stand more than once goes by its own code in the one and by its container's code in the other.
#pragma once

#include "model/CheckTypes.h"

#include <span>

// What the shell shows of a check. Numbers are those of the language library.
class CAppCheckInfo {
public:
    constexpr CAppCheckInfo() = default; // all fields zero
    constexpr CAppCheckInfo(unsigned group, unsigned position, unsigned bitmapID, unsigned menuTextID,
                            unsigned tabTextID, unsigned commandID)
        : Group(group), Position(position), BitmapID(bitmapID), MenuTextID(menuTextID), TabTextID(tabTextID),
          CommandID(commandID) {}
    constexpr virtual ~CAppCheckInfo() {} // not defaulted: g++ 12 would not see it in a constant table

    constexpr unsigned GetGroup() const { return Group; }
    constexpr unsigned GetPosition() const { return Position; }
    constexpr unsigned GetBitmapID() const { return BitmapID; }
    constexpr unsigned GetMenuTextID() const { return MenuTextID; }
    constexpr unsigned GetTabTextID() const { return TabTextID; }
    constexpr unsigned GetCommandID() const { return CommandID; }

private:
    unsigned Group = 0;    // index of the group table
    unsigned Position = 0; // index in the group's menu and toolbar
    unsigned BitmapID = 0;
    unsigned MenuTextID = 0;
    unsigned TabTextID = 0;
    unsigned CommandID = 0; // sent by menu item and toolbar button
};

// A row of the application table.
struct AppCheckRow {
    MQC_CheckType_e type = 0; // for a check that may stand more than once, the code of one such check
    CAppCheckInfo info;
};

// A row of the page table, from which each page makes its own records.
struct PageCheckRow {
    MQC_CheckType_e type = 0; // for a check that may stand more than once, the code of its container
    unsigned group = 0;
    unsigned position = 0;
    unsigned dialogTemplateID = 0;
    unsigned commandID = 0;
    const char* dialogClass = ""; // the class of the pane
};

struct CheckGroup {
    MQC_CheckType_e firstType;
    MQC_CheckType_e lastType;
    unsigned tabIcon;
    unsigned tabTooltipText;
    unsigned menuBitmap;
    unsigned menuText;
    unsigned toolbar;
    unsigned toolbarBitmap;

    constexpr bool Holds(MQC_CheckType_e type) const { return type >= firstType && type <= lastType; }
};

// Constant tables. Those of checks are in the order in which menus and pages show them, so that within a
// group each row stands at its position; groups are in the order of tabs and sub-menus.
std::span<const AppCheckRow> AppChecks();
std::span<const PageCheckRow> PageChecks();
std::span<const CheckGroup> CheckGroups();

// The group whose tab is brought to the front for a check. A code outside all groups gives 0, although no
// group holds it.
unsigned GroupOfCheckType(MQC_CheckType_e type);

// Each gives null where no row has the code or the command.
const PageCheckRow* FindPageCheck(MQC_CheckType_e type);
const PageCheckRow* FindPageCheckByCommand(unsigned commandID);
const AppCheckRow* FindAppCheckByCommand(unsigned commandID);
