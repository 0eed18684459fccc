#include "engines/FolderServices.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

CString Join(const CString& folder, const CString& name) {
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

// The regular files and true subfolders of a folder by name. An empty path means no folder: Qt would
// read the current one.
QFileInfoList EntriesOf(const CString& folder) {
    if (folder.isEmpty())
        return {};
    QFileInfoList entries = QDir(folder).entryInfoList(
        QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    const auto unwanted = [](const QFileInfo& entry) {
        return entry.isDir() ? entry.isSymLink() : !entry.isFile();
    };
    entries.erase(std::remove_if(entries.begin(), entries.end(), unwanted), entries.end());
    return entries;
}

// Whether the name ends in what the pattern stands for. A mismatch goes back to the last star only, so
// the time is bounded by the product of the two lengths.
bool MatchesAtEnd(const CString& name, const CString& pattern) {
    qsizetype at = 0, in = 0;            // where the comparison stands in the two
    qsizetype behindStar = 0, retry = 0; // where it is taken up again after a mismatch
    while (at < name.size()) {
        const QChar wanted = in < pattern.size() ? pattern[in] : QChar();
        if (wanted == u'*') {
            behindStar = ++in;
            retry = at;
        } else if (in < pattern.size() &&
                   (wanted == u'?' || wanted.toCaseFolded() == name[at].toCaseFolded())) {
            ++in;
            ++at;
        } else {
            in = behindStar;
            at = ++retry;
        }
    }
    while (in < pattern.size() && pattern[in] == u'*')
        ++in;
    return in == pattern.size();
}

// The entry that is a file of that name, spelt exactly so if there is one; an empty text otherwise.
CString FindFile(const QFileInfoList& entries, const CString& name) {
    for (const Qt::CaseSensitivity cs : {Qt::CaseSensitive, Qt::CaseInsensitive})
        for (const QFileInfo& entry : entries)
            if (entry.isFile() && entry.fileName().compare(name, cs) == 0)
                return entry.fileName();
    return {};
}

} // namespace

bool FindInFolder(const CString& folder, const CString& pattern, CString& outPath) {
    const QFileInfoList entries = EntriesOf(folder);
    const auto match = std::find_if(entries.begin(), entries.end(), [&pattern](const QFileInfo& entry) {
        return MatchesAtEnd(entry.fileName(), pattern);
    });
    if (match == entries.end())
        return false;
    outPath = Join(folder, match->fileName());
    return true;
}

CString FindUnderFolder(const CString& folder, const CString& fileName) {
    const QFileInfoList entries = EntriesOf(folder);
    const CString name = FindFile(entries, fileName);
    if (!name.isEmpty())
        return Join(folder, name);
    for (const QFileInfo& entry : entries) {
        if (!entry.isDir())
            continue;
        const CString found = FindUnderFolder(Join(folder, entry.fileName()), fileName);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

void ListTree(const CString& folder, CStringArray& files, CStringArray& folders, bool recurse) {
    for (const QFileInfo& entry : EntriesOf(folder)) {
        const CString path = Join(folder, entry.fileName());
        if (!entry.isDir()) {
            files.append(path);
            continue;
        }
        folders.append(path);
        if (recurse)
            ListTree(path, files, folders, recurse);
    }
}
