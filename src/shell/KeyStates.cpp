#include "shell/KeyStates.h"

#include <QDir>
#include <QFile>

namespace {

// A machine may have several keyboards: one lamp that is lit is enough.
bool IsLit(const CString& folder, const char* key) {
    for (const CString& name : QDir(folder).entryList({CString("*::") + key}, QDir::Dirs)) {
        QFile lamp(folder + "/" + name + "/brightness");
        if (lamp.open(QIODevice::ReadOnly) && lamp.readAll().trimmed().toInt() > 0)
            return true;
    }
    return false;
}

} // namespace

KeyStates ReadKeyStates(const CString& folder) {
    return {IsLit(folder, "capslock"), IsLit(folder, "numlock"), IsLit(folder, "scrolllock")};
}
