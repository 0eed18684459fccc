// Folders of the program's own: the tree of temporary files, and the run folder in it.
#pragma once

#include "platform/Text.h"

// Succeeds where the path is accessible for reading and writing; otherwise makes that one level, for the
// user alone (mode 0700), and tells whether that worked. Parents are not made.
bool EnsureFolder(const CString& path);

// Removes a folder with all that is in it. Links in it are removed, never followed; where the path itself is
// a link, nothing but the link goes. An empty path is left alone, failures are ignored.
void DeleteFolderTree(const CString& path);

// The time as folder name: year (2 digits), month, day, hour, minute, second (2 each), milliseconds (1 to 3).
CString MakeRunStamp(const COleDateTime& time = COleDateTime::currentDateTime());

// Makes a folder of this user's own in `parent`, named by the stamp of the time or, where such a folder
// stands already, of the next free millisecond: its maker deletes it some day, and must not delete another's.
// An empty text where none can be made.
CString MakeStampFolder(const CString& parent, COleDateTime time = COleDateTime::currentDateTime());

// The folder in which temporary files are made: $TMPDIR, or a folder of the user's own.
CString TemporaryFolder();

// Makes the folder of this run, "<temporary folder>/Ruleward/2026/CheckBuilder/<stamp>", and gives its path.
// No two runs share one. Every level is the user's own and closed to others; where a link or somebody else's
// folder is in the way, or a level cannot be made, the path begins with an empty base, nothing is made there,
// and later writes into it fail where they happen.
CString PrepareRunFolder(const COleDateTime& time = COleDateTime::currentDateTime());
