// Walks over folders on disk. All go by the order of names, so that the result is the same on every
// machine, and pass over what they cannot read. A link to a folder is neither entered nor listed, so
// that no walk can loop or leave the tree. Paths are handed out as the folder, "/" and the name.
#pragma once

#include "platform/Text.h"

// Finds the first file or folder whose name matches "*" and `pattern`, in which "*" stands for any
// text and "?" for any character; without regard to case. `outPath` keeps its text where none does.
bool FindInFolder(const CString& folder, const CString& pattern, CString& outPath);

// The path of the file of that name in the folder or, depth first, in one of its subfolders; empty
// where there is none. The name counts without regard to case; its exact spelling goes first.
CString FindUnderFolder(const CString& folder, const CString& fileName);

// Appends the path of every file of the folder to `files` and that of every subfolder to `folders`, a
// subfolder before what it holds. Content of subfolders is listed where `recurse` is set.
void ListTree(const CString& folder, CStringArray& files, CStringArray& folders, bool recurse);
