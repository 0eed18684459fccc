// Paths as texts: splitting, naming and showing them. No path is looked up on disk.
#pragma once

#include "platform/Text.h"

// A path in its parts. Both kinds of separator are read, so that paths stored on another platform
// split as they would there: drive, folder, name and extension.
class CPathParts {
public:
    explicit CPathParts(const CString& path = {});

    void GetFileName(CString& out) const;
    void GetFolderPath(CString& out) const; // drive and folder, with the last separator
    // The same without the last separator, save where it is the root of a drive or the text has
    // fewer than three characters.
    void GetFolderNoSlash(CString& out) const;
    void GetExtension(CString& out) const;

    CString Path;
    CString Drive;     // "C:" or empty
    CString Folder;    // with leading and trailing separator
    CString Name;      // without extension
    CString Extension; // from the last point on
};

CString ToBackslashes(const CString& path); // a text of fewer than three characters stays as it is

// The folder for temporary files, with a separator at its end: $TMPDIR where that is set.
CString GetTempFolder();

// Replaces a short path alias by the long path. This platform has no such aliases: false, and the
// text stays.
bool ToLongPath(CString& path);

// Makes `path` the form in which a narrow column shows it: the name first, then the folder with its
// middle left out: "file.ext (C:\a\...\e)". `parts` takes the split path. A bare name stays.
void ShortenPathForDisplay(CPathParts& parts, CString& path);

int GetDocumentKind(const CString& path); // 1 part, 2 assembly, 3 drawing, 0 other; by the extension
bool IsDwgFile(const CString& path);
bool IsDraftingStandardFile(const CString& path);

// Shows the platform's text of an error number (errno). The result is 1; 0, with nothing shown, for 0.
int ShowSystemMessage(int code);
