// The commands of a random walk.
#include "editing/CheckPropertySheet.h"
#include "model/Catalogue.h"
#include "shell/ChildFrame.h"
#include "shell/TabToolbar.h"
#include "support/Gui.h"
#include "support/GuiRandom.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTextEdit>

namespace {

constexpr MQC_CheckType_e DraftingStandard = 101;
constexpr int DraftingBoxes[] = {1005, 1007, 1009, 1011, 1021, 1017, 1019, 1020};
constexpr int CustomBox = 1020, CustomName = 1315;
constexpr int UnitCombos[] = {1280, 1341};
// Those that are pressed most, so that checks come and go and meet their own history.
constexpr MQC_CheckType_e Favourites[] = {101, 203, 406, 307, 602, 102, 310, 119, 505};

bool IsOwnControl(const QWidget& control) {
    const int number = control.objectName().toInt();
    return number > 0 && number < CExtDialog::CaptionControl && control.isVisible() && control.isEnabled();
}

} // namespace

void RandomWalk::GoToChecks() {
    if (m_tool.View().GetSheet().GetActivePage() != ChecksPage)
        m_tool.ShowPage(ChecksPage);
}

CExtDialog* RandomWalk::AnyPane() {
    GoToChecks();
    std::vector<CExtDialog*> panes;
    for (const auto& [type, position] : m_tool.Page().GetTypePositions())
        if (CExtDialog* pane = m_tool.Pane(type))
            panes.push_back(pane);
    return panes.empty() ? nullptr : panes[Below(static_cast<unsigned>(panes.size()))];
}

void RandomWalk::FocusPageMostly() {
    if (Chance(85))
        m_tool.Page().setFocus();
}

void RandomWalk::PressCheck() {
    const auto all = PageChecks();
    MQC_CheckType_e type = all[Below(static_cast<unsigned>(all.size()))].type;
    if (const MQC_CheckType_e favourite = Favourites[Below(std::size(Favourites))];
        Chance(70) && FindPageCheck(favourite))
        type = favourite;
    Note(CString("press check %1").arg(type));
    m_tool.PressCheck(type);
}

void RandomWalk::ChooseCriticality() {
    CExtDialog* pane = AnyPane();
    if (!pane || !pane->Expanded)
        return;
    const int row = static_cast<int>(Below(4));
    Note(CString("criticality %1 of check %2").arg(row).arg(pane->CheckType));
    m_tool.SetCriticality(pane->CheckType, row);
}

void RandomWalk::EditDraftingStandard() {
    GoToChecks();
    CExtDialog* pane = m_tool.Pane(DraftingStandard);
    if (!pane || !pane->Expanded)
        return;
    auto* name = pane->GetDlgItem<QWidget>(CustomName);
    if (name && name->isEnabled() && Chance(50)) {
        const bool isErased = Chance(30);
        Note(isErased ? "erase the name of the custom standard" : "type a name of the custom standard");
        Gui::Focus(*name);
        if (isErased) {
            Gui::Key(*name, Qt::Key_A, Qt::ControlModifier);
            Gui::Key(*name, Qt::Key_Delete);
        } else {
            Gui::Type(*name, QChar('a' + static_cast<char>(Below(26))));
        }
        return;
    }
    const int box = Chance(30) ? CustomBox : DraftingBoxes[Below(std::size(DraftingBoxes))];
    Note(CString("click box %1").arg(box));
    Gui::Click(*pane->GetDlgItem<QWidget>(box));
}

// Works whatever a pane offers besides its own buttons. A button that is no box may open a dialog.
void RandomWalk::EditAnyControl() {
    CExtDialog* pane = AnyPane();
    std::vector<QWidget*> controls;
    if (pane)
        for (QWidget* control : pane->findChildren<QWidget*>())
            if (IsOwnControl(*control))
                controls.push_back(control);
    if (controls.empty())
        return;
    QWidget& control = *controls[Below(static_cast<unsigned>(controls.size()))];
    Note(CString("control %1 of check %2").arg(control.objectName()).arg(pane->CheckType));
    if (auto* combo = qobject_cast<QComboBox*>(&control); combo && combo->count() > 0) {
        Gui::ChooseRow(*combo, static_cast<int>(Below(static_cast<unsigned>(combo->count()))));
    } else if (const auto* button = qobject_cast<QAbstractButton*>(&control);
               button && button->isCheckable()) {
        Gui::Click(control);
    } else if (qobject_cast<QLineEdit*>(&control) || qobject_cast<QTextEdit*>(&control) ||
               qobject_cast<QPlainTextEdit*>(&control)) {
        Gui::Focus(control);
        Gui::Type(control, QChar('0' + static_cast<char>(Below(10))));
    } else if (auto* list = qobject_cast<QListWidget*>(&control); list && list->count() > 0) {
        auto* item = list->item(static_cast<int>(Below(static_cast<unsigned>(list->count()))));
        list->scrollToItem(item);
        Gui::ClickAt(*list->viewport(), list->visualItemRect(item).center());
    } else if (qobject_cast<QSpinBox*>(&control)) {
        Gui::Key(control, Chance(50) ? Qt::Key_Up : Qt::Key_Down);
    }
}

void RandomWalk::Undo() {
    GoToChecks();
    const unsigned times = 1 + Below(3);
    Note(CString("undo %1").arg(times));
    for (unsigned i = 0; i < times; ++i)
        m_tool.Do(Command::Undo);
}

void RandomWalk::Redo() {
    GoToChecks();
    const unsigned times = 1 + Below(2);
    Note(CString("redo %1").arg(times));
    for (unsigned i = 0; i < times; ++i)
        m_tool.Do(Command::Redo);
}

void RandomWalk::SwitchPage() {
    const auto page = static_cast<SheetPage>(Below(3));
    Note(CString("page %1").arg(page));
    m_tool.ShowPage(page);
}

void RandomWalk::Copy() {
    FocusPageMostly();
    Note("copy");
    m_tool.Do(Command::Copy);
}

void RandomWalk::Cut() {
    FocusPageMostly();
    Note("cut");
    m_tool.Do(Command::Cut);
}

void RandomWalk::Paste() {
    GoToChecks();
    FocusPageMostly();
    Note("paste");
    m_tool.Do(Command::Paste);
}

void RandomWalk::SelectPane() {
    CExtDialog* pane = AnyPane();
    if (!pane)
        return;
    const bool withCtrl = Chance(40);
    Note(CString("%1click on check %2").arg(withCtrl ? "Ctrl+" : "").arg(pane->CheckType));
    Gui::ClickAt(*pane, {pane->width() / 2, 8}, withCtrl ? Qt::ControlModifier : Qt::NoModifier);
}

void RandomWalk::Collapse() {
    if (CExtDialog* pane = AnyPane()) {
        Note(CString("collapse or expand check %1").arg(pane->CheckType));
        Gui::Click(*pane->GetDlgItem<QWidget>(CExtDialog::ExpandControl));
    }
}

void RandomWalk::ClosePane() {
    if (CExtDialog* pane = AnyPane()) {
        Note(CString("close check %1").arg(pane->CheckType));
        Gui::Click(*pane->GetDlgItem<QWidget>(CExtDialog::CloseControl));
    }
}

void RandomWalk::ChangeUnit() {
    m_tool.ShowPage(OptionsPage);
    auto* combo = qobject_cast<QComboBox*>(Gui::FindNumber(m_tool.View(), UnitCombos[Below(2)]));
    if (!combo) {
        Complain("no units on the options page");
        return;
    }
    const int row = static_cast<int>(Below(static_cast<unsigned>(combo->count())));
    Note(CString("unit %1 of combo %2").arg(row).arg(combo->objectName()));
    if (const auto saved = m_saved.find(&m_tool.Document()); saved != m_saved.end())
        saved->second.unitsChanged = true;
    Gui::ChooseRow(*combo, row);
}

void RandomWalk::SwitchDocument() {
    const auto& documents = m_tool.App().GetDocuments();
    const unsigned number = Below(static_cast<unsigned>(documents.size()));
    Note(CString("go to document %1").arg(number));
    m_tool.Frame().ActivateChild(*documents[number]->GetFrame());
    Gui::Settle();
}

void RandomWalk::ShowAll() {
    GoToChecks();
    Note("show all or one group");
    m_tool.Do(Command::ShowAllChecks);
}

void RandomWalk::SwitchTab() {
    QTabBar& tabs = m_tool.Frame().GetTabToolbar().GetTabs();
    const int tab = static_cast<int>(Below(static_cast<unsigned>(tabs.count())));
    Note(CString("tab %1").arg(tab));
    Gui::ClickAt(tabs, tabs.tabRect(tab).center());
}
