#include "platform/ArchiveNames.h"

#include "platform/TextNumbers.h"

#include <QStringConverter>
#include <algorithm>

namespace {

bool IsControl(QChar c) {
    return c.category() == QChar::Other_Control;
}

bool DecodeUtf8(const QByteArray& bytes, CString& out) {
    using Flag = QStringConverter::Flag;
    QStringDecoder decoder(QStringConverter::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    out = decoder(bytes);
    return !decoder.hasError();
}

bool HasDriveLetter(const CString& path) {
    const auto isLetter = [](QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); };
    return path.size() >= 2 && path[1] == u':' && isLetter(path[0]);
}

// The text number of what is wrong with a path whose levels are apart by "/", or 0.
unsigned ProblemOf(const CString& path) {
    if (path.startsWith(u'/') || HasDriveLetter(path))
        return ArchiveNameLeavesFolder;
    if (std::any_of(path.begin(), path.end(), IsControl))
        return ArchiveNameUnusable;
    unsigned problem = 0;
    for (const auto level : QStringView(path).split(u'/')) {
        if (level == QLatin1String(".."))
            return ArchiveNameLeavesFolder;
        if (level.isEmpty() || level == QLatin1String("."))
            problem = ArchiveNameUnusable;
    }
    return problem;
}

} // namespace

CString ShownArchiveName(const CString& name) {
    constexpr qsizetype Longest = 80;
    CString shown = name.left(Longest);
    for (QChar& c : shown)
        if (!c.isPrint() && !c.isSurrogate())
            c = QChar::ReplacementCharacter;
    if (name.size() > Longest)
        shown += QChar(0x2026);
    return shown;
}

CString ShownArchiveName(const QByteArray& bytes) {
    return ShownArchiveName(QString::fromUtf8(bytes));
}

ArchiveResult ReadArchiveName(const QByteArray& bytes, ArchiveName& out) {
    if (bytes.size() > ArchiveLimits::NameBytes)
        return ArchiveRefused(ArchiveNameTooLong, ShownArchiveName(bytes));
    if (!DecodeUtf8(bytes, out.path))
        return ArchiveRefused(ArchiveNameNotUtf8, ShownArchiveName(bytes));
    out.path.replace(u'\\', u'/');
    out.folder = out.path.size() > 1 && out.path.endsWith(u'/');
    if (out.folder)
        out.path.chop(1);
    if (const unsigned problem = ProblemOf(out.path))
        return ArchiveRefused(problem, ShownArchiveName(bytes));
    return {};
}

ArchiveResult ArchiveNames::Add(const ArchiveName& name) {
    if (ArchiveResult result = AddLevelsAbove(name.path); !result)
        return result;
    return Insert(name.path, name.folder ? Kind::Folder : Kind::File);
}

// From the longest to the shortest, up to the first that is known: what is above a known folder is known.
ArchiveResult ArchiveNames::AddLevelsAbove(const CString& path) {
    for (qsizetype at = path.lastIndexOf(u'/'); at > 0; at = path.lastIndexOf(u'/', at - 1)) {
        const qsizetype before = m_names.size();
        if (ArchiveResult result = Insert(path.left(at), Kind::Implied); !result)
            return result;
        if (m_names.size() == before)
            break;
    }
    return {};
}

ArchiveResult ArchiveNames::Insert(const CString& path, Kind kind) {
    const CString key = path.toCaseFolded();
    const auto known = m_names.find(key);
    if (known == m_names.end()) {
        if (m_names.size() >= ArchiveLimits::Names)
            return ArchiveRefused(ArchiveTooManyNames, CString::number(ArchiveLimits::Names));
        m_names.insert(key, {path, kind});
        return {};
    }
    if ((known->kind == Kind::File) != (kind == Kind::File))
        return ArchiveRefused(ArchiveFileAndFolder, ShownArchiveName(path));
    if (known->path != path || (kind != Kind::Implied && known->kind != Kind::Implied))
        return ArchiveRefused(ArchiveNameTwice, ShownArchiveName(path));
    if (kind == Kind::Folder)
        known->kind = kind;
    return {};
}
