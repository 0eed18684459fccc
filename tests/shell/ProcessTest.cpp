// The program itself, as a desktop starts it.
#include "platform/FileLock.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QProcess>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

class Process : public ::testing::Test {
protected:
    Process() {
        environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(name, folder.Path());
        environment.insert("QT_QPA_PLATFORM", "offscreen");
    }
    void Start(QProcess& program, const CStringArray& arguments = {}) {
        program.setProcessEnvironment(environment);
        program.start(RULEWARD_BIN_FOLDER "/AdminModuleu", arguments);
        ASSERT_TRUE(program.waitForStarted());
    }
    CStringArray RunFolders() const { return folder.Names("Ruleward/2026/CheckBuilder"); }
    // The folders of documents of all runs.
    CStringArray DocumentFolders() const {
        CStringArray folders;
        for (const CString& run : RunFolders())
            folders += folder.Names("Ruleward/2026/CheckBuilder/" + run);
        return folders;
    }
    bool WaitForDocuments(qsizetype count) const {
        return QTest::qWaitFor([&] { return DocumentFolders().size() >= count; }, 30000);
    }
    static void End(QProcess& program) {
        program.kill();
        EXPECT_TRUE(program.waitForFinished(30000));
    }

    TestFolder folder;
    QProcessEnvironment environment;
};

} // namespace

TEST_F(Process, AFileOnTheCommandLineIsNotOpened) {
    folder.Put("a.kvstd", "<Standard Version=\"2026\"/>");
    QProcess program;
    Start(program, {folder.Path("a.kvstd")});
    ASSERT_TRUE(WaitForDocuments(1));
    QTest::qWait(300);
    FileLock lock;
    EXPECT_EQ(lock.Take(folder.Path("a.kvstd")), LockOutcome::Taken);
    EXPECT_EQ(DocumentFolders().size(), 1); // the empty standard
    EXPECT_EQ(program.state(), QProcess::Running);
    End(program);
}

TEST_F(Process, TwoRunsStandSideBySide) {
    QProcess first;
    QProcess second;
    Start(first);
    Start(second);
    EXPECT_TRUE(WaitForDocuments(2));
    EXPECT_EQ(RunFolders().size(), 2);
    End(first);
    End(second);
}

TEST_F(Process, WithoutTheLanguageLibraryItEndsInSilence) {
    QFile::copy(RULEWARD_BIN_FOLDER "/AdminModuleu", folder.Path("AdminModuleu"));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(folder.Path("AdminModuleu"), CStringArray());
    ASSERT_TRUE(program.waitForFinished(30000));
    EXPECT_EQ(program.exitCode(), 1);
}
