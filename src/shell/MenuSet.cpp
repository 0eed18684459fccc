// The menus of the tool, made of the table of commands and of the catalogue.
#include "platform/LanguageLibrary.h"
#include "shell/AdminModuleApp.h"
#include "shell/CommandTable.h"

namespace {

CString TitleOf(MenuRoot root) {
    switch (root) {
    case MenuRoot::FileWithDocument:
    case MenuRoot::FileWithoutDocument: return LoadString(2107);
    case MenuRoot::Edit: return LoadString(2108);
    case MenuRoot::Checks: return LoadString(2109);
    case MenuRoot::Window: return LoadString(2110);
    case MenuRoot::Help: return LoadString(2059);
    }
    return {};
}

void Fill(CMenuItems& menu, CommandRouter& router, MenuName name, bool withDocument) {
    for (const ToolCommand& row : ToolCommands()) {
        if (row.menu != name || (row.row == MenuRow::WithDocument && !withDocument))
            continue;
        if (row.row == MenuRow::Separator)
            menu.AppendSeparator();
        else
            menu.AppendItem(router, row.bitmap, row.text, row.id, row.disabledBitmap);
    }
}

// A check's item stands at the place of the check within its group.
void FillChecks(CMenuItems& menu, CommandRouter& router, const CAdminModuleApp::Catalogue& catalogue) {
    for (const CheckGroup& group : CheckGroups()) {
        CMenuItems& popup = menu.AppendPopup(group.menuBitmap, group.menuText);
        for (const auto& [type, info] : catalogue) {
            if (!group.Holds(type))
                continue;
            popup.AppendItem(router, info->GetBitmapID(), info->GetMenuTextID(), info->GetCommandID());
            router.ActionOf(info->GetCommandID())->setCheckable(true);
        }
    }
}

// What an action needs beside its place in a menu.
void Dress(CommandRouter& router, unsigned id, unsigned text) {
    QAction* action = router.ActionOf(id);
    if (action->text().isEmpty())
        action->setText(CutCommandText(LoadString(text)).text);
    action->setShortcuts(ShortcutsOf(id));
    action->setStatusTip(WithoutMnemonic(action->text()));
    // The menu bar of some desktops moves items by guessing at their texts.
    action->setMenuRole(QAction::NoRole);
}

} // namespace

void CAdminModuleApp::BuildMenuSet() {
    m_menus.clear();
    for (const MenuRoot root : {MenuRoot::FileWithDocument, MenuRoot::FileWithoutDocument, MenuRoot::Edit,
                                MenuRoot::Checks, MenuRoot::Window, MenuRoot::Help}) {
        m_menus.push_back(std::make_unique<CMenuItems>());
        m_menus.back()->MakeMenu(TitleOf(root));
    }
    Fill(GetMenu(MenuRoot::FileWithDocument), m_router, MenuName::File, true);
    Fill(GetMenu(MenuRoot::FileWithoutDocument), m_router, MenuName::File, false);
    Fill(GetMenu(MenuRoot::Edit), m_router, MenuName::Edit, true);
    FillChecks(GetMenu(MenuRoot::Checks), m_router, m_catalogue);
    Fill(GetMenu(MenuRoot::Window), m_router, MenuName::Window, true);
    Fill(GetMenu(MenuRoot::Help), m_router, MenuName::Help, true);
    for (const ToolCommand& row : ToolCommands())
        if (row.id != 0)
            Dress(m_router, row.id, row.text);
    for (const auto& [type, info] : m_catalogue)
        Dress(m_router, info->GetCommandID(), info->GetMenuTextID());
}
