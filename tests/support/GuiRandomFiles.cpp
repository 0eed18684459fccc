// How a random walk opens, saves and closes standards, and proves what it has saved.
#include "files/Packing.h"
#include "model/Catalogue.h"
#include "support/FilledStandard.h"
#include "support/Gui.h"
#include "support/GuiRandom.h"
#include "support/PaneRoom.h"
#include "support/StandardText.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>

namespace {

constexpr MQC_CheckType_e DraftingStandard = 101, CustomChecks = 122;
constexpr unsigned DraftingStandards = 1578;
constexpr unsigned MostFiles = 4;

CString FileNameOf(unsigned number) {
    return CString("Walk%1.kvstd").arg(number);
}

// As the panes write them: they know only some forms of a check, and leave others until they are touched.
void MakeLikeThePanes(CStandard& standard) {
    PaneRoom room;
    FillStandard(room.standard);
    room.Show();
    room.TakeUp();
    for (const PageCheckRow& row : PageChecks())
        room.Pane(row.type)->OnParameterChanged();
    standard.LoadFromXmlText(LiveTextOf(room.standard));
    CCheck* check = nullptr;
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

} // namespace

void RandomWalk::WriteStandards(const CString& folder) {
    CStandard filled;
    MakeLikeThePanes(filled);
    filled.SaveToFile(QDir(folder).filePath(FileNameOf(0)));
    CStandard small;
    small.Unit = 1;
    small.AngularUnit = 1;
    AddCheckWith(small, DraftingStandard, DraftingStandards, OpOneOf, {"2"});
    small.SaveToFile(QDir(folder).filePath(FileNameOf(1)));
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
    if (path.isEmpty())
        return;
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
    const unsigned first = Below(MostFiles);
    for (unsigned i = 0; i < MostFiles; ++i) {
        const CString path = QDir(m_folder).filePath(FileNameOf((first + i) % MostFiles));
        if (!m_tool.Document().IsPathOpen(path) || m_tool.Document().GetUserPath() == path)
            return path;
    }
    return {};
}

CStringArray RandomWalk::Files() const {
    return QDir(m_folder).entryList({"Walk*.kvstd"}, QDir::Files, QDir::Name);
}

void RandomWalk::OpenAnother() {
    CStringArray closed;
    for (const CString& name : Files()) {
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
