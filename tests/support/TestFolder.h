// A folder of a test's own, with its files as bytes.
#pragma once

#include "platform/Text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class TestFolder {
public:
    // Open to a plain user that a test starts in it; the way to it need not be.
    TestFolder() { QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755)); }

    CString Path(const CString& name = {}) const {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }
    void Put(const CString& name, const QByteArray& content) const {
        QFile file(Path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("The test file %s cannot be written.", qPrintable(name));
    }
    // A null array where there is no such file.
    QByteArray Get(const CString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? QByteArray("") + file.readAll() : QByteArray();
    }
    // All entries, hidden ones and links to nothing too, by name.
    CStringArray Names(const CString& folder = {}) const {
        return QDir(Path(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    QTemporaryDir m_folder;
};
