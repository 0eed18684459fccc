#include "support/GuiAgreement.h"

#include "dialogs/ParameterCheckDlg.h"
#include "editing/CheckPropertySheet.h"
#include "model/Catalogue.h"
#include "model/ParameterValue.h"
#include "platform/LanguageLibrary.h"
#include "shell/CatalogueButton.h"
#include "shell/ChildFrame.h"
#include "shell/StatusPanes.h"
#include "shell/TabToolbar.h"
#include "support/Gui.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <algorithm>
#include <type_traits>

namespace {

constexpr unsigned CountText = 59143;

class Comparison {
public:
    explicit Comparison(GuiTool& tool)
        : m_tool(tool), m_page(tool.Page()), m_standard(tool.Standard()),
          m_isChecksPage(tool.View().GetSheet().GetActivePage() == ChecksPage) {}

    CString Run() {
        m_tool.App().GetRouter().UpdateNow();
        ComparePanes();
        ComparePositions();
        CompareSelection();
        CompareCommands();
        CompareTitle();
        return m_differences;
    }

private:
    void Expect(bool holds, const CString& what) {
        if (!holds)
            m_differences += what + "\n";
    }
    CCheck* Live(MQC_CheckType_e type) {
        CCheck* check = nullptr;
        m_standard.FindLiveByType(type, check);
        return check;
    }

    // A standard that was read is on the page from the first time on that the page is in front.
    void ComparePanes() {
        if (m_tool.Document().IsLoaded())
            return;
        for (const MQC_CheckType_e type : m_page.GetTable().Order()) {
            const CString name = "check " + CString::number(type) + ": ";
            const CCheck* check = Live(type);
            const bool isPlaced = m_page.GetTypePositions().count(type) > 0;
            const CPDCheckInfo& info = *m_page.GetTable().Find(type);
            Expect(isPlaced == (check != nullptr), name + "pane without live check, or the reverse");
            Expect(info.IsActive() == isPlaced, name + "active without pane, or the reverse");
            CompareButtons(info, name);
            CExtDialog* pane = m_page.GetPane(type, false);
            if (pane && pane->HasWindow())
                CompareVisibility(*pane, isPlaced, name);
            if (pane && isPlaced && check)
                CompareContent(*pane, *check, name);
        }
    }

    void CompareVisibility(CExtDialog& pane, bool isPlaced, const CString& name) {
        Expect((pane.DisplayState != CExtDialog::Hidden) == isPlaced, name + "display state");
        const unsigned group = m_tool.Frame().GetTabToolbar().GetCurrentGroup();
        const bool isShown =
            isPlaced && (m_tool.App().IsShowingAll() || CheckGroups()[group].Holds(pane.CheckType));
        Expect(pane.isHidden() != isShown, name + (isShown ? "pane is not shown" : "pane is shown"));
        Expect(!isPlaced || pane.Expanded == (pane.DisplayState != CExtDialog::Collapsed),
               name + "collapsed or not");
    }

    void CompareContent(CExtDialog& pane, const CCheck& check, const CString& name) {
        // The custom checks have one each, and none as a whole.
        if (const auto* combo = pane.GetDlgItem<QComboBox>(CExtDialog::CriticalityControl);
            combo && combo->count() > 0) {
            Expect(pane.Criticality == check.Criticality, name + "criticality of the pane");
            Expect(combo->currentIndex() == static_cast<int>(check.Criticality), name + "criticality shown");
        }
        if (!dynamic_cast<CParameterCheckDlg*>(&pane))
            return; // it has no values to show
        const auto shown = CStandard::MakeCheck(check.Type);
        pane.FillCheckParameters(*shown); // writing corrections too would move the keyboard
        CompareParameters(*shown, check, name);
        Expect(shown->Children.Count == check.Children.Count, name + "number of entries");
        for (int i = 0; i < std::min(shown->Children.Count, check.Children.Count); ++i)
            CompareParameters(*shown->Children[i], *check.Children[i], name + CString("entry %1, ").arg(i));
    }

    void CompareParameters(const CCheck& shown, const CCheck& check, const CString& name) {
        for (const CParameterEntry* entry : shown.Parameters) {
            const CParameterEntry* other = check.FindParameter(entry->Parameter->ID);
            const CString one = TextOf(*entry), two = other ? TextOf(*other) : "no parameter";
            if (one != two)
                Expect(false, name + CString("parameter %1 is shown as %2 and stands as %3")
                                         .arg(entry->Parameter->ID)
                                         .arg(one, two));
        }
    }

    // Operator and values of what is in force: without values a save takes a comparison out of force. A
    // figure in the field of a pane is converted by itself when the unit changes, and may differ from the
    // check's in the last digits.
    static CString TextOf(const CParameterEntry& entry) {
        CString text;
        VisitParameter(entry, [&text](const auto& parameter) {
            if (parameter.Operator == OpNone || parameter.Values.Count == 0)
                return;
            text = CString::number(parameter.Operator) + ":";
            for (const auto& value : parameter.Values) {
                using Value = std::decay_t<decltype(value)>;
                if constexpr (std::is_same_v<Value, double>)
                    text += CString::number(value, 'g', 4) + ",";
                else
                    text += ValueForm<Value>::Format(value) + ",";
            }
        });
        return text;
    }

    void CompareButtons(const CPDCheckInfo& info, const CString& name) {
        const QAction& action = *m_tool.App().GetRouter().ActionOf(info.GetCommandID());
        Expect(action.isChecked() == info.IsActive(), name + "menu item");
        for (const CatalogueButton* button : m_tool.Frame().GetTabToolbar().GetButtons())
            if (button->objectName() == CString::number(info.GetCommandID()))
                Expect(button->isChecked() == info.IsActive(), name + "catalogue button");
    }

    // Positions are the running sums of the panes' sizes.
    void ComparePositions() {
        std::map<int, MQC_CheckType_e> byPosition;
        for (const auto& [type, position] : m_page.GetTypePositions())
            Expect(byPosition.emplace(position, type).second, "two panes at one position");
        int sum = 0;
        for (const auto& [position, type] : byPosition) {
            const CString name = "check " + CString::number(type) + ": ";
            const CExtDialog& pane = *m_page.GetPane(type, false);
            Expect(position == sum, name + "position is not the sum of the sizes before it");
            Expect(pane.Position == position, name + "position of the pane");
            const auto sequence = m_page.GetPositionSequences().find(position);
            const CCheck* check = Live(type);
            Expect(sequence != m_page.GetPositionSequences().end() && check &&
                       sequence->second == static_cast<int>(check->Sequence),
                   name + "number at its position");
            Expect(m_page.TypeAtPosition(position + pane.LogicalSize - 1) == type, name + "type at position");
            sum += pane.LogicalSize;
        }
        Expect(m_page.GetPositionSequences().size() == byPosition.size(), "numbers without panes");
        const int next = m_page.GetNextPosition();
        Expect(next == sum || (sum == 0 && next == -1), "next position");
    }

    void CompareSelection() {
        const std::vector<int>& selection = m_page.GetSelection();
        const auto isSelected = [&](int position) { return std::ranges::count(selection, position) == 1; };
        const int selected = m_page.GetSelectedPosition();
        Expect(selected == -1 || m_page.GetPositionSequences().count(selected) == 1, "selected position");
        for (const int position : selection)
            Expect(m_page.GetPositionSequences().count(position) == 1, "selection of what is no pane");
        for (const MQC_CheckType_e type : m_page.GetTable().Order()) {
            const auto position = m_page.GetTypePositions().find(type);
            const bool is = position != m_page.GetTypePositions().end() && isSelected(position->second);
            if (const CExtDialog* pane = m_page.GetPane(type, false))
                Expect(pane->Selected == is, "check " + CString::number(type) + ": frame of selection");
        }
    }

    void CompareCommands() {
        CommandRouter& router = m_tool.App().GetRouter();
        Expect(router.ActionOf(Command::Undo)->isEnabled() == (m_isChecksPage && m_standard.CanUndo()),
               "undo");
        Expect(router.ActionOf(Command::Redo)->isEnabled() == (m_isChecksPage && m_standard.CanRedo()),
               "redo");
        const CString count =
            LoadString(CountText).replace("%d", CString::number(m_standard.CountLiveChecks()));
        Expect(m_tool.Frame().GetStatusPanes().GetCountPane().text() == count, "count in the status bar");
    }

    void CompareTitle() {
        CAdminModuleDoc& document = m_tool.Document();
        const bool isMarked = document.GetFrame()->isWindowModified();
        document.UpdateModified();
        Expect(isMarked == document.IsModified(), "mark of changes in the title");
        Expect(document.GetFrame()->windowTitle() == document.GetTitle() + "[*]", "name in the title");
    }

    GuiTool& m_tool;
    CPageDialog& m_page;
    CStandard& m_standard;
    bool m_isChecksPage;
    CString m_differences;
};

} // namespace

CString WhatDiffers(GuiTool& tool) {
    return Comparison(tool).Run();
}
