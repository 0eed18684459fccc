#include "dialogs/FileLocationDlg.h"

#include "editing/FolderList.h"
#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "model/CheckManager.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"

#include <QComboBox>
#include <algorithm>

namespace {

enum Control : int {
    Folders = 1274,
    AddButton = 1325,
    RemoveButton,
    UpButton,
    DownButton,
    AllListedBox,
    OrderBox,
    NoOthersBox,
    Types = 1341
};
enum Parameter : unsigned { EntryType = 2473, EntryFolders, EntrySubfolders = 2476, Rules, SelectedType };

constexpr unsigned AlreadyListed = 2475;
constexpr std::pair<int, unsigned> Tips[] = {
    {AddButton, 2463}, {RemoveButton, 2464}, {UpButton, 2465}, {DownButton, 2466}, {Folders, 2467}};
constexpr std::int32_t TypesWithSubfolders[] = {0, 3, 10, 11, 16, 22, 24, 26, 27, 30, 32};

CString NameOf(std::int32_t fileType) {
    CString name;
    CEnumEngine().GetDisplayString(KindFileLocationType, static_cast<unsigned long>(fileType), name);
    return name;
}

std::vector<FileTypeRecord> EmptyRecords() {
    std::vector<FileTypeRecord> records;
    for (std::int32_t type = 0; !NameOf(type).isEmpty(); ++type)
        records.push_back(
            {type, {}, std::ranges::find(TypesWithSubfolders, type) != std::end(TypesWithSubfolders)});
    return records;
}

template <class T> void Require(CParameter<T>* parameter, T value) {
    if (!parameter)
        return;
    parameter->ClearValues();
    parameter->Operator = OpEqual;
    parameter->Values.Add(value);
}

std::unique_ptr<CCheck> EntryOf(const CCheckManager& container, const FileTypeRecord& record) {
    auto entry = container.MakeChild();
    entry->Name = NameOf(record.FileType);
    Require<long>(entry->GetLongParameter(EntryType), record.FileType);
    if (auto* folders = entry->GetStringParameter(EntryFolders)) {
        folders->Operator = OpOneOf;
        for (const CString& folder : record.Folders)
            folders->Values.Add(new CString(folder));
    }
    Require(entry->GetBoolParameter(EntrySubfolders), record.IncludeSubfolders != 0);
    return entry;
}

} // namespace

CFileLocationDlg::CFileLocationDlg(EditingHost& host)
    : CValuePane(host, {1576, 1438, 2425, 1020}, {}), m_records(EmptyRecords()), m_picker({}, {}, this) {}

bool CFileLocationDlg::OnInitDialog() {
    m_types = GetDlgItem<QComboBox>(Types);
    m_folders = GetDlgItem<FolderList>(Folders);
    return m_types && m_folders && CValuePane::OnInitDialog();
}

void CFileLocationDlg::PrepareControls() {
    for (const FileTypeRecord& record : m_records)
        m_types->addItem(NameOf(record.FileType));
    m_types->setCurrentIndex(0);
    connect(m_types, &QComboBox::activated, this, &CFileLocationDlg::OnFileTypeChanged);
    m_rules.emplace(*this, Rules, std::vector<ValueBox>{{AllListedBox, 0}, {OrderBox, 1}, {NoOthersBox, 2}});
    for (const ValueBox& box : m_rules->Boxes())
        Watch(box.number);
    SetName(Types, EntryType);
    PrepareList();
}

void CFileLocationDlg::PrepareList() {
    SetName(Folders, EntryFolders);
    connect(m_folders, &FileList::FilesChanged, this, &CFileLocationDlg::OnFoldersChanged);
    connect(m_folders, &FileList::itemSelectionChanged, this, &CFileLocationDlg::ApplyButtonRules);
    connect(m_folders, &FileList::AddWanted, this, &CFileLocationDlg::AddFolder);
    // A file manager must not be kept waiting by the message.
    connect(
        m_folders, &FileList::AllHeld, this, [] { ShowMessage(LoadString(AlreadyListed)); },
        Qt::QueuedConnection);
    On(AddButton, ControlEvent::Clicked, &CFileLocationDlg::AddFolder);
    Connect(RemoveButton, ControlEvent::Clicked, [this] { m_folders->RemoveSelected(); });
    Connect(UpButton, ControlEvent::Clicked, [this] { m_folders->MoveSelected(-1); });
    Connect(DownButton, ControlEvent::Clicked, [this] { m_folders->MoveSelected(1); });
    for (const auto& [number, text] : Tips)
        if (auto* control = GetDlgItem(number))
            control->setToolTip(LoadString(text));
}

FileTypeRecord* CFileLocationDlg::Selected() {
    const int row = m_types->currentIndex();
    return row >= 0 ? &m_records[static_cast<size_t>(row)] : nullptr;
}

void CFileLocationDlg::OnFileTypeChanged() {
    if (const FileTypeRecord* record = Selected())
        m_folders->SetPaths(record->Folders);
    OnChosen();
}

void CFileLocationDlg::OnFoldersChanged() {
    if (FileTypeRecord* record = Selected())
        record->Folders = m_folders->Paths();
    OnChosen();
}

void CFileLocationDlg::AddFolder() {
    if (!m_picker.DoModal() || m_picker.ChosenFolder.isEmpty())
        return;
    m_picker.InitialFolder = m_picker.ChosenFolder;
    m_folders->AddPaths({m_picker.ChosenFolder});
}

void CFileLocationDlg::ApplyButtonRules() {
    const QList<int> rows = m_folders->SelectedRows();
    const int count = m_folders->topLevelItemCount();
    const bool canMove = !rows.isEmpty() && rows.size() < count;
    Enable(RemoveButton, !rows.isEmpty());
    Enable(UpButton, canMove && rows.first() > 0);
    Enable(DownButton, canMove && rows.last() < count - 1);
}

// Several entries of one type are one list.
void CFileLocationDlg::LoadEntry(const CCheck& entry) {
    const auto* type = entry.GetLongParameter(EntryType);
    const auto known = std::ranges::find_if(m_records, [&](const FileTypeRecord& record) {
        return type && type->Values.Count > 0 && type->Values[0] == record.FileType;
    });
    if (known == m_records.end())
        return;
    if (const auto* folders = entry.GetStringParameter(EntryFolders))
        for (const CString* folder : folders->Values)
            if (folder)
                known->Folders.append(*folder);
    const auto* subfolders = entry.GetBoolParameter(EntrySubfolders);
    if (subfolders && subfolders->Values.Count > 0)
        known->IncludeSubfolders = subfolders->Values[0];
}

void CFileLocationDlg::LoadControls(const CCheck& check) {
    m_records = EmptyRecords();
    for (const CCheck* entry : check.Children)
        LoadEntry(*entry);
    const auto* selected = check.GetLongParameter(SelectedType);
    const long type = selected && selected->Values.Count > 0 ? selected->Values[0] : 0;
    m_types->setCurrentIndex(type >= 0 && type < m_types->count() ? static_cast<int>(type) : 0);
    if (const FileTypeRecord* record = Selected())
        m_folders->SetPaths(record->Folders);
    m_rules->Load(check);
}

void CFileLocationDlg::StoreControls(CCheck& check) const {
    auto* container = dynamic_cast<CCheckManager*>(&check);
    if (!container)
        return;
    for (const FileTypeRecord& record : m_records)
        if (!record.Folders.isEmpty())
            container->Children.Add(EntryOf(*container, record).release());
    Require<long>(check.GetLongParameter(SelectedType), m_types->currentIndex());
    // In force also without a rule.
    m_rules->Store(check);
    if (auto* rules = check.GetLongParameter(Rules))
        rules->Operator = OpOneOf;
}
