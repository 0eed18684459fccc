#include "platform/widgets/Look.h"
#include "platform/widgets/MessageBoxes.h"
#include "shell/AdminModView.h"
#include "shell/AdminModuleApp.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Look::ApplyTo(application);
    const MessageScope messages(ShowMessageBox);
    CAdminModuleApp app([](CAdminModuleApp& owner, CAdminModuleDoc& document, QWidget* parent) {
        return new CAdminModView(owner, document, parent);
    });
    if (!app.InitInstance())
        return 1;
    application.exec();
    return app.ExitInstance();
}
