// Replaces a user's file, or makes a new one, so that at every moment the old content or the new one stands
// under its name, whole: not a full disk, a kill, a power failure nor a second run can leave anything else.
//
// The new content is written to a hidden file beside the target, flushed, locked and renamed over it. Mode,
// group and (for an administrator) owner of the old file are kept; a link is followed, and a link to nothing
// makes the file it names. Hard links, and rights beyond the mode, stay with the old content.
#pragma once

#include "platform/FileLock.h"
#include "platform/FileResult.h"

#include <QByteArrayView>

// On failure the old file is as it was and nothing is left beside it. A write-protected file is not
// replaced, nor one that another run of the program has locked.
//
// `lock`: what the caller holds on the file that it has open, or an empty one; on success it becomes the
// lock on the new file, without a moment in which another run could take it. On failure it is unchanged.
FileResult ReplaceFile(const CString& path, QByteArrayView content, FileLock* lock = nullptr);

// The same with the content of another file.
FileResult ReplaceFileByCopy(const CString& path, const CString& source, FileLock* lock = nullptr);

// The same for a file that is not the user's own but made again from what he has: whole at every moment,
// but not brought to the disk, which would cost more than the writing.
FileResult WriteWorkingFile(const CString& path, QByteArrayView content);
