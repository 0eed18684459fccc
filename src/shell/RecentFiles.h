// The files that were opened or saved last, the newest first. They are kept between runs in settings of their
// own.
#pragma once

#include "platform/Text.h"

class CRecentFiles {
public:
    static constexpr int Size = 4;

    void Load();
    void Add(const CString& path); // to the front, and into the settings
    void Remove(const CString& path);

    const CStringArray& Paths() const { return m_paths; }
    // The text of a menu item: the place as mnemonic, and the file's name; where two names are equal, with
    // the folder.
    CString MenuText(int index) const;

private:
    void Store() const;

    CStringArray m_paths;
};
