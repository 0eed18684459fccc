// Measures the windows, without a screen; the start on a display that nobody sees.
#include "gui/GuiFigures.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/widgets/Look.h"

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    QApplication application(argc, argv);
    Look::ApplyTo(application);
    const MessageScope messages([](const CString&, MessageButtons) { return MessageAnswer::Discard; });
    if (!LoadLanguage(RULEWARD_BIN_FOLDER, "English")) {
        std::fprintf(stderr, "The English language library is missing from %s.\n", RULEWARD_BIN_FOLDER);
        return 1;
    }
    return PrintTable({StartFigures, OpenFigures, KeyFigures, IdleFigures}) ? 0 : 1;
}
