#include "shell/FileType.h"

#include "platform/ReplaceFile.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr char TypeName[] = "application/x-ruleward-standard";
constexpr char IconName[] = "application-x-ruleward-standard";

bool WriteUnder(const CString& folder, const CString& name, const QByteArray& content) {
    return QDir().mkpath(folder) && ReplaceFile(folder + "/" + name, content).ok;
}

QByteArray TypeFile() {
    return CString("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                   "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
                   "  <mime-type type=\"%1\">\n"
                   "    <comment>Ruleward Application</comment>\n"
                   "    <icon name=\"%2\"/>\n"
                   "    <glob pattern=\"*.kvstd\"/>\n"
                   "  </mime-type>\n"
                   "</mime-info>\n")
        .arg(TypeName, IconName)
        .toUtf8();
}

// The form of a path in the line of a desktop entry that starts a program.
CString Quoted(CString path) {
    for (const char* sign : {"\\", "\"", "`", "$"})
        path.replace(sign, CString("\\") + sign);
    return "\"" + path.replace("\\", "\\\\").replace("%", "%%") + "\"";
}

QByteArray ProgramEntry(const CString& program) {
    return CString("[Desktop Entry]\n"
                   "Type=Application\n"
                   "Name=Ruleward Builder\n"
                   "Exec=%1 %f\n"
                   "Icon=%2\n"
                   "MimeType=%3;\n"
                   "Categories=Engineering;\n"
                   "Terminal=false\n")
        .replace("%3", TypeName)
        .replace("%2", IconName)
        .replace("%1", Quoted(program))
        .toUtf8();
}

// The desktop finds new entries without these too, but some only at its next start.
void TellDesktop(const CString& data) {
    QProcess::execute("update-mime-database", {data + "/mime"});
    QProcess::execute("update-desktop-database", {data + "/applications"});
}

} // namespace

bool WriteFileAssociation(const CString& program, const QByteArray& icon) {
    const CString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (!WriteUnder(data + "/mime/packages", "RulewardBuilder.xml", TypeFile()))
        return false;
    if (!WriteUnder(data + "/applications", "RulewardBuilder.desktop", ProgramEntry(program)))
        return false;
    if (!WriteUnder(data + "/icons/hicolor/scalable/mimetypes", CString(IconName) + ".svg", icon))
        return false;
    TellDesktop(data);
    return true;
}
