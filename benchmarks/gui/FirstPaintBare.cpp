// The least program with a main window: one menu and a status bar. Without a word in it, it would not load
// the fonts that every program with windows needs.
#include "gui/FirstPaint.h"
#include "gui/Told.h"

#include <QMenuBar>
#include <QStatusBar>

int main(int argc, char** argv) {
    FirstPaintApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu("File");
    window.statusBar()->showMessage("Ready");
    window.showMaximized();
    application.Painted = [&application] {
        Tell();
        QMetaObject::invokeMethod(&application, &QCoreApplication::quit, Qt::QueuedConnection);
    };
    return application.exec();
}
