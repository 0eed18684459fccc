// Where the files of a property are made: in memory where there is such a place, since a disk would be worn
// by millions of small files.
#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <filesystem>
#include <unistd.h>

class ScratchFolder {
public:
    std::filesystem::path Path() const { return m_folder.path().toStdString(); }

private:
    static QString Parent() { return ::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : QDir::tempPath(); }

    QTemporaryDir m_folder{Parent() + "/ruleward-fuzz-XXXXXX"};
};
