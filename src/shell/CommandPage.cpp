// The page of commands in the documentation.
#include "model/Catalogue.h"
#include "platform/LanguageLibrary.h"
#include "shell/CommandTable.h"

namespace {

CString Line(const CString& menu, unsigned id) {
    CStringArray shortcuts;
    for (const QKeySequence& shortcut : ShortcutsOf(id))
        shortcuts.append("`" + shortcut.toString(QKeySequence::PortableText) + "`");
    return "| " + menu + " | " + WithoutMnemonic(TextOfCommand(id).text) + " | " + shortcuts.join(", ") +
           " | " + CString::number(id) + " |\n";
}

CString TitleOf(MenuName menu) {
    switch (menu) {
    case MenuName::File: return WithoutMnemonic(LoadString(2107));
    case MenuName::Edit: return WithoutMnemonic(LoadString(2108));
    case MenuName::Window: return WithoutMnemonic(LoadString(2110));
    case MenuName::Help: return WithoutMnemonic(LoadString(2059));
    case MenuName::None: break;
    }
    return "(toolbars)";
}

} // namespace

CString CommandsPage() {
    CString page = "# Commands\n\n"
                   "Made from the program's own table of commands (`src/shell/CommandTable.cpp`) and the "
                   "catalogue; do not\nedit it. The test that compares it writes it anew where "
                   "`RULEWARD_WRITE_PAGES` is set.\n\n"
                   "| Menu | Command | Keys | Number |\n|---|---|---|---|\n";
    for (const ToolCommand& row : ToolCommands())
        if (row.row != MenuRow::Separator)
            page += Line(TitleOf(row.menu), row.id);
    for (const AppCheckRow& row : AppChecks()) {
        const CheckGroup& group = CheckGroups()[row.info.GetGroup()];
        page += Line(WithoutMnemonic(LoadString(2109)) + " > " + WithoutMnemonic(LoadString(group.menuText)),
                     row.info.GetCommandID());
    }
    return page;
}
