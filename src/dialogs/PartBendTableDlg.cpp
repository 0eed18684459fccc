#include "dialogs/PartBendTableDlg.h"

#include "editing/FileList.h"
#include "platform/LanguageLibrary.h"
#include "platform/Settings.h"
#include "platform/widgets/NameFilters.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

enum Control : int { AddButton = 1270, RemoveButton = 1271, Tables = 1272, Correction = 1304 };

constexpr unsigned TablesParameter = 1741;
constexpr unsigned AddTip = 1344, FilterText = 2397;
constexpr char DefaultExtension[] = "xls";
constexpr char LastFolder[] = "LastAccessedBendTableFolder";

constexpr CorrectionRow Corrections[] = {{Correction, TablesParameter, TextEntry}};

bool IsBendTable(const CString& path) {
    const CString end = path.right(3);
    return end.compare("xls", Qt::CaseInsensitive) == 0 || end.compare("btl", Qt::CaseInsensitive) == 0;
}

} // namespace

CPartBendTableDlg::CPartBendTableDlg(EditingHost& host)
    : CValuePane(host, {1566, 1264, 1740, 1402}, Corrections) {}

bool CPartBendTableDlg::OnInitDialog() {
    m_tables = GetDlgItem<FileList>(Tables);
    return m_tables && CValuePane::OnInitDialog();
}

void CPartBendTableDlg::PrepareControls() {
    SetName(Tables, TablesParameter);
    m_tables->Accepts = IsBendTable;
    connect(m_tables, &FileList::FilesChanged, this, &CPartBendTableDlg::OnChosen);
    connect(m_tables, &FileList::AddWanted, this, &CPartBendTableDlg::AskForTables);
    connect(m_tables, &FileList::itemSelectionChanged, this, &CPartBendTableDlg::ApplyEnableRules);
    On(AddButton, ControlEvent::Clicked, &CPartBendTableDlg::AskForTables);
    Connect(RemoveButton, ControlEvent::Clicked, [this] { m_tables->RemoveSelected(); });
    if (auto* add = GetDlgItem(AddButton))
        add->setToolTip(LoadString(AddTip));
}

void CPartBendTableDlg::ApplyEnableRules() {
    Enable(RemoveButton, !m_tables->selectedItems().isEmpty());
}

void CPartBendTableDlg::AskForTables() {
    CSettingsKey* settings = GetHost().GetSettings();
    CString folder;
    if (settings)
        settings->GetString(LastFolder, folder);
    QFileDialog dialog(this);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters(NameFiltersOf(LoadString(FilterText)));
    dialog.setDefaultSuffix(DefaultExtension);
    if (!folder.isEmpty())
        dialog.setDirectory(folder);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const CStringArray paths = dialog.selectedFiles();
    if (settings && IsBendTable(paths.value(0)))
        settings->SetString(LastFolder, QFileInfo(paths.first()).path());
    m_tables->AddPaths(paths);
}

void CPartBendTableDlg::LoadControls(const CCheck& check) {
    CStringArray paths;
    if (const auto* tables = check.GetStringParameter(TablesParameter))
        for (const CString* path : tables->Values)
            if (path)
                paths.append(*path);
    m_tables->SetPaths(paths);
}

// In force also while the list is empty: then no table will do.
void CPartBendTableDlg::StoreControls(CCheck& check) const {
    auto* tables = check.GetStringParameter(TablesParameter);
    if (!tables)
        return;
    tables->ClearValues();
    tables->Operator = OpOneOf;
    for (const CString& path : m_tables->Paths())
        tables->Values.Add(new CString(path));
}
