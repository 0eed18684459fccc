#include "platform/widgets/FolderPathDialog.h"

#include <QDir>
#include <QFileDialog>

CFolderPathDialog::CFolderPathDialog(const CString& title, const CString& initialFolder, QWidget* owner,
                                     unsigned flags)
    : Title(title), InitialFolder(initialFolder), Owner(owner), Flags(flags) {}

bool CFolderPathDialog::DoModal() {
    QFileDialog picker(Owner, "Select Folder", InitialFolder);
    picker.setFileMode(QFileDialog::Directory);
    picker.setOption(QFileDialog::ShowDirsOnly);
    if (picker.exec() != QDialog::Accepted || picker.selectedFiles().isEmpty())
        return false;
    ChosenFolder = QDir::toNativeSeparators(QDir::cleanPath(picker.selectedFiles().constFirst()));
    return true;
}
