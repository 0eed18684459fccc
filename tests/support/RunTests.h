// The main function of a test program: without a screen, on folders of its own, with the English texts
// loaded.
#pragma once

#include "platform/LanguageLibrary.h"

#include <QTemporaryDir>
#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>

// Whether numbers are in the locale that LC_ALL asks for. One that is not installed is replaced by C without
// a word, and the tests for a decimal comma would then prove nothing.
inline bool HasLocaleAskedFor() {
    const QByteArray asked = qgetenv("LC_ALL");
    return asked.isEmpty() || asked == std::setlocale(LC_NUMERIC, nullptr);
}

struct NoSetup {};

// `Application` is QGuiApplication, or QApplication where widgets are tested. A `Setup` is made before the
// first test and lives to the last.
template <class Application, class Setup = NoSetup> int RunTests(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home;
    for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    Application application(argc, argv);
    if (!HasLocaleAskedFor()) {
        std::fprintf(stderr, "The locale %s is not installed.\n", qgetenv("LC_ALL").constData());
        return 1;
    }
    if (!LoadLanguage(RULEWARD_BIN_FOLDER, "English")) {
        std::fprintf(stderr, "The English language library is missing from %s.\n", RULEWARD_BIN_FOLDER);
        return 1;
    }
    [[maybe_unused]] Setup setup;
    return RUN_ALL_TESTS();
}
