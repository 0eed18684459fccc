// Where tests that make very many files, and measurements, put them: in memory if possible, so that neither
// the speed nor the life of a disk comes into it.
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

// For QTemporaryDir.
inline QString MemoryFolderTemplate() {
    const QString memory = "/dev/shm";
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + "/ruleward-XXXXXX";
}
