#include "shell/MenuItems.h"

#include "platform/LanguageLibrary.h"
#include "platform/widgets/CommandRouter.h"
#include "platform/widgets/Look.h"
#include "shell/CommandTable.h"

CMenuItems::CMenuItems(unsigned bitmapID, unsigned textID, int command, unsigned disabledBitmapID)
    : Command(command), BitmapID(bitmapID), DisabledBitmapID(disabledBitmapID) {
    const CommandText parts = CutCommandText(LoadString(textID));
    Text = parts.text;
    Accelerator = parts.accelerator;
    if (!Accelerator.isEmpty())
        AcceleratorKey = Accelerator.back().unicode() - 64;
}

void CMenuItems::MakeMenu(const CString& title) {
    m_menu = std::make_unique<QMenu>();
    m_menu->setTitle(title);
    if (BitmapID != 0)
        m_menu->setIcon(Look::IconOf(BitmapID, DisabledBitmapID));
}

CMenuItems& CMenuItems::AppendItem(CommandRouter& router, unsigned bitmapID, unsigned textID,
                                   unsigned command, unsigned disabledBitmapID) {
    Children.push_back(
        std::make_unique<CMenuItems>(bitmapID, textID, static_cast<int>(command), disabledBitmapID));
    CMenuItems& item = *Children.back();
    QAction* action = router.ActionOf(command);
    action->setText(item.Text);
    if (bitmapID != 0)
        action->setIcon(Look::IconOf(bitmapID, disabledBitmapID));
    m_menu->addAction(action);
    return item;
}

CMenuItems& CMenuItems::AppendPopup(unsigned bitmapID, unsigned textID) {
    Children.push_back(std::make_unique<CMenuItems>(bitmapID, textID, -1, 0));
    CMenuItems& item = *Children.back();
    item.MakeMenu(item.Text);
    m_menu->addMenu(item.GetMenu());
    return item;
}

void CMenuItems::AppendSeparator() {
    Children.push_back(nullptr);
    m_menu->addSeparator();
}

int MenuItemHeight(int horizontalDpi, int verticalDpi) {
    if (horizontalDpi == verticalDpi && verticalDpi == 96)
        return 20;
    if (horizontalDpi == verticalDpi && verticalDpi == 120)
        return 22;
    return static_cast<int>(verticalDpi / 4.36);
}
