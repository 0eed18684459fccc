// The least program with a main window.
#include "gui/FirstPaint.h"
#include "gui/Told.h"

int main(int argc, char** argv) {
    FirstPaintApplication application(argc, argv);
    QMainWindow window;
    window.showMaximized();
    application.Painted = [&application] {
        Tell();
        QMetaObject::invokeMethod(&application, &QCoreApplication::quit, Qt::QueuedConnection);
    };
    return application.exec();
}
