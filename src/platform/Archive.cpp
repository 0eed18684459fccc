#include "platform/Archive.h"

#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"

namespace {

constexpr int CodeCannotOpen = -104;
constexpr int CodeBadArchive = -103;
constexpr int CodeSystem = -1;

} // namespace

CString ArchiveResult::Words() const {
    if (text == 0)
        return {};
    const CString words = LoadString(text);
    return words.contains(QLatin1String("%1")) ? words.arg(insert) : words;
}

ArchiveResult ArchiveUnreadable(unsigned text) {
    const int code = text == ArchiveCannotOpen ? CodeCannotOpen : CodeBadArchive;
    return {ArchiveStatus::Unreadable, code, text, {}};
}

ArchiveResult ArchiveRefused(unsigned text, const CString& insert) {
    return {ArchiveStatus::Refused, CodeBadArchive, text, insert};
}

ArchiveResult ArchiveFailed(unsigned text, const CString& name, int systemError) {
    const CString reason = qt_error_string(systemError);
    const CString insert = name.isEmpty() ? reason : name + QLatin1String(": ") + reason;
    return {ArchiveStatus::Failed, CodeSystem, text, insert};
}
