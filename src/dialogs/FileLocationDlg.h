// The pane of the folders in which documents find their files: an ordered list for each type of file, and the
// rules that hold for all lists.
#pragma once

#include "dialogs/ValuePane.h"
#include "editing/BoxGroup.h"
#include "platform/widgets/FolderPathDialog.h"

#include <cstdint>
#include <optional>
#include <vector>

class FolderList;
class QComboBox;

// The folders of one type of file.
struct FileTypeRecord {
    std::int32_t FileType; // its code in the value list
    CStringArray Folders;
    std::uint8_t IncludeSubfolders; // no control changes it
};

class CFileLocationDlg : public CValuePane {
    Q_OBJECT

public:
    explicit CFileLocationDlg(EditingHost& host);

protected:
    bool OnInitDialog() override;
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;
    void ApplyEnableRules() override { ApplyButtonRules(); }

private:
    void PrepareList();
    void OnFileTypeChanged();
    void OnFoldersChanged();
    void AddFolder();
    void ApplyButtonRules();
    void LoadEntry(const CCheck& entry);
    FileTypeRecord* Selected();

    std::vector<FileTypeRecord> m_records; // one for each type, in the order of their codes
    std::optional<BoxGroup> m_rules;
    CFolderPathDialog m_picker;
    QComboBox* m_types = nullptr;
    FolderList* m_folders = nullptr;
};
