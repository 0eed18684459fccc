// Every test program runs without a screen, on folders of its own, with the English texts loaded.
#include "platform/LanguageLibrary.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home;
    for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    QGuiApplication application(argc, argv);
    if (!LoadLanguage(RULEWARD_BIN_FOLDER, "English")) {
        std::fprintf(stderr, "The English language library is missing from %s.\n", RULEWARD_BIN_FOLDER);
        return 1;
    }
    return RUN_ALL_TESTS();
}
