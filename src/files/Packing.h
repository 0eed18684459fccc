// The packed form of a standard: a zip archive of a folder that holds the standard's XML and, beside it,
// the folders with the side files of its checks. Reading accepts plain XML as well.
#pragma once

#include "platform/FileLock.h"
#include "platform/Text.h"

// Brings a standard, packed or plain, into a folder that exists and is empty, as "<folder>/<file name of
// source>". 1 when done. 0, with the reason, where the file is neither or cannot be read; an archive whose
// content is not trusted leaves nothing behind. `outName` takes the file name of the XML, and keeps its
// text where the archive holds no standard, which is not looked at here.
int UnpackStandard(const CString& source, const CString& folder, CString* outName = nullptr,
                   CString* outReason = nullptr);

// Packs a folder over `target`. 1 when done; 0 with the reason, and the target is as it was. After a success
// a text in `outReason` is a warning. `lock`: what the caller holds on the target, see ReplaceFileByCopy.
int PackFolder(const CString& target, const CString& folder, CString* outReason = nullptr,
               FileLock* lock = nullptr);

// What keeps a file from being plain XML of a standard, in words.
CString WhyNoStandard(const CString& path);
