// The one table of commands: what menus, toolbars, shortcuts and the page of commands in the documentation
// are made of. The commands of the catalogue come from its own table.
#pragma once

#include "platform/Text.h"

#include <QKeySequence>
#include <span>

namespace Command {

constexpr unsigned FirstOfCatalogue = 32771;
constexpr unsigned LastOfCatalogue = 32936;
// Closing a document releases the buttons up to this command; later ones keep their state.
constexpr unsigned LastReleasedOnClose = 32904;

constexpr unsigned CloseAll = 32849;
constexpr unsigned PrintAtOnce = 32856;
constexpr unsigned HelpTopics = 32865;
constexpr unsigned WelcomePage = 32867;
constexpr unsigned Merge = 32873;
constexpr unsigned Learn = 32920;
constexpr unsigned ShowAllChecks = 32933;
constexpr unsigned New = 57600;
constexpr unsigned Open = 57601;
constexpr unsigned Close = 57602;
constexpr unsigned Save = 57603;
constexpr unsigned SaveAs = 57604;
constexpr unsigned PrintSetup = 57606;
constexpr unsigned Print = 57607;
constexpr unsigned PrintPreview = 57609;
constexpr unsigned FirstRecentFile = 57616;
constexpr unsigned LastRecentFile = 57619;
constexpr unsigned Copy = 57634;
constexpr unsigned Cut = 57635;
constexpr unsigned Paste = 57637;
constexpr unsigned Undo = 57643;
constexpr unsigned Redo = 57644;
constexpr unsigned Cascade = 57650;
constexpr unsigned Tile = 57651;
constexpr unsigned About = 57664;
constexpr unsigned Exit = 57665;
constexpr unsigned MainToolbar = 59392;

} // namespace Command

enum class MenuName { File, Edit, Window, Help, None };

// Where a row stands: a file menu without a document leaves some rows out.
enum class MenuRow { Always, WithDocument, Separator };

struct ToolCommand {
    MenuName menu;
    MenuRow row;
    unsigned id = 0;
    unsigned text = 0;           // of the menu item, with its accelerator after a tab
    unsigned bitmap = 0;         // 0: none
    unsigned disabledBitmap = 0; // 0: drawn from the other
    const char* shortcut = "";   // a further one, or the only one where the text tells none
};

// Menus follow one upon the other, each in its own order.
std::span<const ToolCommand> ToolCommands();
// The row of a command, null for one of the catalogue and for an unknown one.
const ToolCommand* FindToolCommand(unsigned id);

// The buttons of the main toolbar in the order of its strip of images; 0 parts groups.
std::span<const unsigned> MainToolbarCommands();

// A text of the language library in its two parts, cut at the first tab.
struct CommandText {
    CString text;        // with its mnemonic mark
    CString accelerator; // empty where the text tells none
};
CommandText CutCommandText(const CString& text);
CString WithoutMnemonic(const CString& text); // "&&" is one sign, and points at the end fall
CommandText TextOfCommand(unsigned id);       // both parts empty for an unknown command

// All shortcuts of a command, that of its text first.
QList<QKeySequence> ShortcutsOf(unsigned id);

// The documentation's page of commands, made from this table.
CString CommandsPage();
