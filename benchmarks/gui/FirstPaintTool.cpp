// The tool, which tells of itself once it is painted; with the name of a standard, once that is open and
// every pane of it has been seen.
#include "gui/FirstPaint.h"
#include "gui/Told.h"

#include "editing/PageDialog.h"
#include "platform/widgets/Look.h"
#include "platform/widgets/MessageBoxes.h"
#include "shell/AdminModView.h"
#include "shell/AdminModuleApp.h"

#include <QScrollBar>

namespace {

void SeeAllPanes(CAdminModuleApp& app, const CString& path) {
    if (!app.OpenDocumentFile(path))
        qFatal("The standard does not open.");
    app.FlipShowAll();
    QScrollBar& bar = *dynamic_cast<CAdminModView&>(*app.GetActiveView()).GetChecksPage().verticalScrollBar();
    for (int y = 0; y < bar.maximum(); y += bar.pageStep()) {
        bar.setValue(y);
        QCoreApplication::processEvents();
    }
}

} // namespace

int main(int argc, char** argv) {
    FirstPaintApplication application(argc, argv);
    Look::ApplyTo(application);
    const MessageScope messages(ShowMessageBox);
    CAdminModuleApp app([](CAdminModuleApp& owner, CAdminModuleDoc& document, QWidget* parent) {
        return new CAdminModView(owner, document, parent);
    });
    application.Painted = [&] {
        if (const QStringList words = QCoreApplication::arguments(); words.size() > 1)
            SeeAllPanes(app, words[1]);
        Tell();
        QMetaObject::invokeMethod(&application, &QCoreApplication::quit, Qt::QueuedConnection);
    };
    if (!app.InitInstance())
        return 1;
    application.exec();
    return app.ExitInstance();
}
