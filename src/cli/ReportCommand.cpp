#include "cli/CommandTable.h"
#include "cli/OpenedStandard.h"
#include "cli/WorkFolder.h"
#include "files/Report.h"
#include "files/ReportHtml.h"
#include "files/ReportPages.h"
#include "platform/Message.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <memory>

namespace {

// Pages are drawn with fonts, which need an application; no screen is needed. It wants a folder of the
// session that it never uses, and would complain of its absence.
std::unique_ptr<QGuiApplication> MakeGuiApplication(const CString& folder) {
    if (QCoreApplication::instance())
        return nullptr;
    static int argc = 1;
    static char name[] = "kvstd";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", folder.toUtf8());
    return std::make_unique<QGuiApplication>(argc, argv);
}

class ReportWriter {
public:
    ReportWriter(CStandard& standard, const CString& folder, Console& console)
        : m_standard(standard), m_folder(folder), m_console(console) {}

    bool WriteFiles() {
        {
            // Told once, by the results.
            const MessageScope silent([](const CString&, MessageButtons) { return MessageAnswer::Ok; });
            m_files = WriteReportFiles(m_standard, m_folder);
        }
        for (const FileResult* result : {&m_files.xml, &m_files.images, &m_files.stylesheet})
            if (result->ok || !result->reason.isEmpty())
                m_console.TellOfSave(m_folder, result->ok, result->reason);
        return static_cast<bool>(m_files);
    }

    // A page can be shown without its pictures, but not all that was asked for is done then.
    bool HasPictures() const { return m_files.images.ok || m_files.images.reason.isEmpty(); }

    bool WritePages(bool asHtml, bool asPdf) {
        const ReportPage page = RenderReportHtml(m_files.xmlPath, m_files.stylesheetPath);
        if (!page.result)
            return Failed(m_files.xmlPath, page.result);
        const QFileInfo xml(m_files.xmlPath);
        const CString stem = m_folder + "/" + xml.completeBaseName();
        if (asHtml)
            if (const FileResult written = WriteReportHtml(page.html, stem + ".html"); !written)
                return Failed(stem + ".html", written);
        return !asPdf || WritePdf(page.html, stem + ".pdf", xml.completeBaseName());
    }

private:
    bool WritePdf(const QByteArray& html, const CString& target, const CString& footer) {
        const auto application = MakeGuiApplication(m_session.path());
        const FileResult written =
            WriteReportPdf(html, m_folder, target, footer, [this](int sheet, int sheets) {
                return m_console.Progress("Drawing page", sheet, sheets);
            });
        m_console.EndProgress();
        return written || Failed(target, written);
    }

    bool Failed(const CString& file, const FileResult& result) {
        m_console.Error(file, result.reason);
        return false;
    }

    CStandard& m_standard;
    CString m_folder;
    Console& m_console;
    ReportFiles m_files;
    QTemporaryDir m_session{WorkFolderTemplate()};
};

} // namespace

int RunReport(const Arguments& arguments, Console& console) {
    const CString path = arguments.operands[0];
    const CString folder = QDir(arguments.Value("-o")).absolutePath();
    OpenedStandard opened;
    if (!opened.Open(path)) {
        console.Error(path, opened.Reason);
        return ExitFailed;
    }
    if (!QDir().mkpath(folder)) {
        console.Error(folder, "the folder cannot be made");
        return ExitFailed;
    }
    if (const CString foreign = FindForeignResource(folder); !foreign.isEmpty()) {
        console.Error(foreign, "no report has made this, and a report here would remove it");
        return ExitFailed;
    }
    // The header tells of the last save; its name is that of the file.
    opened.Standard.Name = QFileInfo(path).absoluteFilePath();
    opened.Standard.Createdby = opened.HeaderText("Createdby");
    opened.Standard.CreatedOn = opened.HeaderText("CreatedOn");
    ReportWriter writer(opened.Standard, folder, console);
    const bool wantsPages = arguments.Has("--html") || arguments.Has("--pdf");
    const bool done = writer.WriteFiles() &&
                      (!wantsPages || writer.WritePages(arguments.Has("--html"), arguments.Has("--pdf"))) &&
                      writer.HasPictures();
    return done ? ExitDone : ExitFailed;
}
