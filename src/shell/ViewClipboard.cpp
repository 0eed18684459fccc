// Checks that are copied, cut and pasted. Text controls keep the clipboard of the platform for their own
// text.
#include "editing/PageDialog.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "shell/AdminModView.h"
#include "shell/AdminModuleApp.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <algorithm>

namespace {

constexpr unsigned AskToReplace = 1937;

// The line of text that has the keyboard, also within a box of choices or of numbers.
QLineEdit* FocusedLine() {
    QWidget* focus = QApplication::focusWidget();
    if (const auto* combo = qobject_cast<QComboBox*>(focus))
        return combo->lineEdit();
    if (qobject_cast<QAbstractSpinBox*>(focus))
        return focus->findChild<QLineEdit*>();
    return qobject_cast<QLineEdit*>(focus);
}

enum class TextAction { Copy, Cut, Paste };

template <class Edit> void Act(Edit& edit, TextAction action) {
    switch (action) {
    case TextAction::Copy: edit.copy(); break;
    case TextAction::Cut: edit.cut(); break;
    case TextAction::Paste: edit.paste(); break;
    }
}

// Hands the action to the text control that has the keyboard; false where none has.
bool ActOnText(TextAction action) {
    QWidget* focus = QApplication::focusWidget();
    if (QLineEdit* line = FocusedLine())
        Act(*line, action);
    else if (auto* text = qobject_cast<QPlainTextEdit*>(focus))
        Act(*text, action);
    else if (auto* rich = qobject_cast<QTextEdit*>(focus); rich && action == TextAction::Paste)
        rich->insertPlainText(QApplication::clipboard()->text());
    else if (rich)
        Act(*rich, action);
    else
        return false;
    return true;
}

} // namespace

std::vector<MQC_CheckType_e> CAdminModView::SelectedTypes() const {
    std::vector<int> positions = m_checks->GetSelection();
    std::ranges::sort(positions);
    std::vector<MQC_CheckType_e> types;
    for (const int position : positions)
        if (const MQC_CheckType_e type = m_checks->TypeAtPosition(position); type != 0)
            types.push_back(type);
    return types;
}

void CAdminModView::CopyToClipboard(const std::vector<MQC_CheckType_e>& types) {
    CheckClipboard& clipboard = m_app.GetCheckClipboard();
    clipboard.checks.clear();
    for (const MQC_CheckType_e type : types) {
        CCheck* check = nullptr;
        GetStandard().FindLiveByType(type, check);
        if (check)
            clipboard.checks.push_back(CStandard::CloneCheck(*check));
    }
    clipboard.lengthUnit = CurrentLengthUnit();
    clipboard.angleUnit = CurrentAngleUnit();
}

void CAdminModView::OnEditCopy() {
    m_app.EnablePaste();
    if (!ActOnText(TextAction::Copy))
        CopyToClipboard(SelectedTypes());
}

void CAdminModView::OnEditCut() {
    m_app.EnablePaste();
    if (ActOnText(TextAction::Cut))
        return;
    // All types first: positions move with each removal.
    const std::vector<MQC_CheckType_e> types = SelectedTypes();
    CopyToClipboard(types);
    for (const MQC_CheckType_e type : types)
        m_checks->RemoveCheck(type, true);
    m_checks->setFocus();
}

void CAdminModView::OnEditPaste() {
    if (!QApplication::focusWidget() || ActOnText(TextAction::Paste))
        return;
    for (const auto& check : m_app.GetCheckClipboard().checks) {
        CCheck* live = nullptr;
        GetStandard().FindLiveByType(check->Type, live);
        if (live)
            PasteOver(*check, *live);
        else
            PasteNew(*check);
    }
}

// A copy of a check of the clipboard, in the units of this standard.
std::unique_ptr<CCheck> CAdminModView::FromClipboard(const CCheck& check) const {
    const CheckClipboard& clipboard = m_app.GetCheckClipboard();
    const int lengthUnit = CurrentLengthUnit();
    const int angleUnit = CurrentAngleUnit();
    auto clone = CStandard::CloneCheck(check);
    if (lengthUnit != clipboard.lengthUnit || angleUnit != clipboard.angleUnit)
        clone->ConvertUnits(clipboard.lengthUnit, lengthUnit, clipboard.angleUnit, angleUnit);
    return clone;
}

void CAdminModView::PasteOver(const CCheck& check, const CCheck& live) {
    if (ShowMessage(live.Name + LoadString(AskToReplace), MessageButtons::YesNo) != MessageAnswer::Yes)
        return;
    const auto clone = FromClipboard(check);
    GetStandard().EditCheckCopy(*clone);
    m_checks->LoadPane(*clone);
    m_checks->SelectCheck(clone->Type);
}

void CAdminModView::PasteNew(const CCheck& check) {
    const auto wanted = FromClipboard(check);
    auto clone = CStandard::CloneCheck(*wanted);
    unsigned sequence = 0;
    GetStandard().AddCheck(clone, sequence);
    // A deleted check of the type came back with the settings that it had; the pasted ones win.
    if (clone)
        GetStandard().EditCheckCopy(*wanted);
    CCheck* live = nullptr;
    GetStandard().FindLiveByType(check.Type, live);
    if (live && m_checks->InsertCheck(*live))
        m_checks->SelectCheck(check.Type);
}
