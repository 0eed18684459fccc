#include "support/GuiRandom.h"

#include "editing/CheckPropertySheet.h"
#include "files/Packing.h"
#include "model/Catalogue.h"
#include "platform/LanguageLibrary.h"
#include "shell/ChildFrame.h"
#include "shell/TabToolbar.h"
#include "support/FilledStandard.h"
#include "support/Gui.h"
#include "support/GuiAgreement.h"
#include "support/StandardText.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTextEdit>
#include <algorithm>
#include <utility>

namespace {

constexpr MQC_CheckType_e DraftingStandard = 101;
constexpr MQC_CheckType_e CustomChecks = 122;
constexpr unsigned DraftingStandards = 1578, DraftingStandardName = 0;
constexpr int DraftingBoxes[] = {1005, 1007, 1009, 1011, 1021, 1017, 1019, 1020};
constexpr int CustomBox = 1020, CustomName = 1315;
constexpr int UnitCombos[] = {1280, 1341};
constexpr unsigned AskToReplace = 1937;
constexpr size_t Documents = 3;
constexpr int LogLength = 25;
// Those that are pressed most, so that checks come and go and meet their own history.
constexpr MQC_CheckType_e Favourites[] = {101, 203, 406, 307, 602, 102, 310, 119, 505};

CString FileNameOf(unsigned number) {
    return CString("Walk%1.kvstd").arg(number);
}

// The pane knows only this form of the check; others stay as they are until it is touched.
void MakeLikeThePane(CStandard& standard) {
    CCheck* check = nullptr;
    standard.FindLiveByType(DraftingStandard, check);
    SetParameter(*check, DraftingStandards, OpOneOf, {"1", "3"});
    SetParameter(*check, DraftingStandardName, OpNone, {});
    standard.FindLiveByType(CustomChecks, check);
    check->Criticality = 3; // its pane shows none, and must keep it
}

// Where two texts part, with what is around.
CString FirstDifference(const CString& one, const CString& other) {
    const auto [at, atOther] = std::ranges::mismatch(one, other);
    const qsizetype start = std::max<qsizetype>(0, (at - one.begin()) - 200);
    return "\n  " + one.mid(start, 300) + "\n  " + other.mid(start, 300);
}

// What a file keeps of the live checks: where they have no correction, reading gives them one.
CString StoredTextOf(const CStandard& standard) {
    CStandard read;
    read.LoadFromXmlText(LiveTextOf(standard));
    return LiveTextOf(read);
}

bool IsOwnControl(const QWidget& control) {
    const int number = control.objectName().toInt();
    return number > 0 && number < CExtDialog::CaptionControl && control.isVisible() && control.isEnabled();
}

} // namespace

RandomWalk::RandomWalk(unsigned seed, const CString& folder)
    : m_numbers(seed), m_folder(folder), m_messages([this](const CString& text, MessageButtons buttons) {
          return AnswerMessage(text, buttons);
      }) {
    while (m_tool.App().GetDocuments().size() < Documents)
        OpenAnother();
}

void RandomWalk::WriteStandards(const CString& folder) {
    CStandard filled;
    FillStandard(filled);
    MakeLikeThePane(filled);
    filled.SaveToFile(QDir(folder).filePath(FileNameOf(0)));
    CStandard small;
    small.Unit = 1;
    small.AngularUnit = 1;
    AddCheckWith(small, DraftingStandard, DraftingStandards, OpOneOf, {"2"});
    small.SaveToFile(QDir(folder).filePath(FileNameOf(1)));
}

void RandomWalk::Step() {
    using Walk = RandomWalk;
    static constexpr Kind Kinds[] = {{16, &Walk::PressCheck},
                                     {10, &Walk::ChooseCriticality},
                                     {8, &Walk::EditDraftingStandard},
                                     {10, &Walk::EditAnyControl},
                                     {14, &Walk::Undo},
                                     {9, &Walk::Redo},
                                     {5, &Walk::SwitchPage},
                                     {6, &Walk::Copy},
                                     {4, &Walk::Cut},
                                     {8, &Walk::Paste},
                                     {10, &Walk::SelectPane},
                                     {4, &Walk::Collapse},
                                     {3, &Walk::ClosePane},
                                     {3, &Walk::ChangeUnit},
                                     {6, &Walk::SwitchDocument},
                                     {2, &Walk::ShowAll},
                                     {4, &Walk::SwitchTab},
                                     {1, &Walk::SaveAs},
                                     {3, &Walk::CloseDocument}};
    if (Below(static_cast<unsigned>(MeanStepsToSave)) == 0) {
        Save();
        return;
    }
    int total = 0;
    for (const Kind& kind : Kinds)
        total += kind.weight;
    int at = static_cast<int>(Below(static_cast<unsigned>(total)));
    for (const Kind& kind : Kinds) {
        at -= kind.weight;
        if (at < 0) {
            (this->*kind.act)();
            return;
        }
    }
}

CString RandomWalk::WhatIsWrong() {
    return std::exchange(m_wrong, {}) + WhatDiffers(m_tool) + UnmodifiedDiffers();
}

// What is not marked as modified is what was saved, or has lost its whole history.
CString RandomWalk::UnmodifiedDiffers() {
    CAdminModuleDoc& document = m_tool.Document();
    const auto saved = m_saved.find(&document);
    if (saved == m_saved.end() || saved->second.unitsChanged || document.IsModified() ||
        document.GetStandard().GetHistoryIndex() == -1)
        return {};
    return LiveTextOf(document.GetStandard()) == saved->second.text
               ? CString()
               : "what counts as unmodified differs from what was saved:" +
                     FirstDifference(LiveTextOf(document.GetStandard()), saved->second.text) + "\n";
}

CString RandomWalk::LastCommands() const {
    return m_log.join("\n  ");
}

void RandomWalk::Note(const CString& command) {
    const auto& documents = m_tool.App().GetDocuments();
    const auto front = std::ranges::find(documents, m_tool.App().GetActiveDocument()) - documents.begin();
    m_log.append(CString("[%1] %2").arg(front).arg(command));
    if (m_log.size() > LogLength)
        m_log.removeFirst();
}

MessageAnswer RandomWalk::AnswerMessage(const CString& text, MessageButtons buttons) {
    if (buttons == MessageButtons::YesNo && text.endsWith(LoadString(AskToReplace)))
        return Chance(60) ? MessageAnswer::Yes : MessageAnswer::No;
    if (buttons != MessageButtons::SaveDiscardCancel || !m_isClosing) {
        Complain("unexpected message: " + text);
        return buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Ok;
    }
    const CString path = m_tool.Document().GetUserPath();
    switch (Below(path.isEmpty() ? 2 : 3)) {
    case 0: return MessageAnswer::Discard;
    case 1: return MessageAnswer::Cancel;
    default: break;
    }
    m_savedOnClose = path;
    BeginSave(path);
    return MessageAnswer::Save;
}

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

void RandomWalk::Save() {
    CAdminModuleDoc& document = m_tool.Document();
    if (document.GetUserPath().isEmpty()) {
        SaveAs();
        return;
    }
    Note("save");
    BeginSave(document.GetUserPath());
    m_tool.Do(Command::Save);
    EndSave(&document, document.GetUserPath());
}

void RandomWalk::SaveAs() {
    CAdminModuleDoc& document = m_tool.Document();
    const CString path = FreePath();
    Note("save as " + path);
    BeginSave(path);
    const Gui::Answer choose([&path](QWidget& dialog) { Gui::ChooseFile(dialog, path); });
    std::unique_ptr<Gui::Answer> replace;
    if (QFile::exists(path))
        replace = std::make_unique<Gui::Answer>([](QWidget& box) { Gui::PressButton(box, "&Yes"); });
    m_tool.Do(Command::SaveAs);
    EndSave(&document, path);
}

// What a save writes is known only when nothing is pending.
void RandomWalk::BeginSave(const CString& path) {
    if (!Saving)
        return;
    m_tool.View().CommitPending();
    m_expected = StoredTextOf(m_tool.Standard());
    Saving(path, m_expected);
}

void RandomWalk::EndSave(CAdminModuleDoc* document, const CString& path) {
    const CString written = LiveTextOfFile(path);
    if (document) {
        const CString text = StoredTextOf(document->GetStandard());
        if (document->GetUserPath() != path)
            Complain("not saved: " + path);
        if (written != text)
            Complain("the file is not what the standard holds: " + path + FirstDifference(written, text));
        if (document->IsModified())
            Complain("modified after a save");
        m_saved[document] = {LiveTextOf(document->GetStandard()), false};
    }
    if (Saving && written != m_expected)
        Complain("the file is not what was to be saved: " + path);
    if (Saved)
        Saved(path, written);
}

void RandomWalk::CloseDocument() {
    Note("close the document");
    const CAdminModuleDoc* document = &m_tool.Document();
    m_savedOnClose.clear();
    m_isClosing = true;
    m_tool.Do(Command::Close);
    m_isClosing = false;
    const bool isClosed = std::ranges::count(m_tool.App().GetDocuments(), document) == 0;
    if (isClosed)
        m_saved.erase(document);
    if (!m_savedOnClose.isEmpty())
        EndSave(nullptr, m_savedOnClose);
    if (isClosed)
        OpenAnother();
}

CString RandomWalk::FreePath() {
    for (unsigned number = Below(5);; number = (number + 1) % 5) {
        const CString path = QDir(m_folder).filePath(FileNameOf(number));
        if (!m_tool.Document().IsPathOpen(path) || m_tool.Document().GetUserPath() == path)
            return path;
    }
}

void RandomWalk::OpenAnother() {
    const CStringArray names = QDir(m_folder).entryList({"Walk*.kvstd"}, QDir::Files, QDir::Name);
    CStringArray closed;
    for (const CString& name : names) {
        const CString path = QDir(m_folder).filePath(name);
        const auto& documents = m_tool.App().GetDocuments();
        if (documents.empty() || !documents.front()->IsPathOpen(path))
            closed.append(path);
    }
    if (closed.isEmpty()) {
        m_tool.Do(Command::New);
        Note("new document");
        return;
    }
    const CString path = closed[static_cast<int>(Below(static_cast<unsigned>(closed.size())))];
    const bool isOpen = Chance(30) ? m_tool.Open(path) : m_tool.App().OpenDocumentFile(path) != nullptr;
    Gui::Settle();
    Note("open " + path);
    if (!isOpen)
        Complain("does not open: " + path);
}

CString LiveTextOfFile(const CString& path) {
    const QTemporaryDir folder;
    CString name;
    CString reason;
    if (UnpackStandard(path, folder.path(), &name, &reason) != 1)
        return "not unpacked: " + path + " " + reason;
    CStandard standard;
    return standard.LoadFromFile(folder.filePath(name)) ? LiveTextOf(standard) : "not read: " + path;
}

CString DigestOf(const CString& text) {
    return CString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex());
}
