// kvstd as a program of its own: exit codes, what goes where, signals, and the shell.
#include "cli/CliRoom.h"

#include "files/RunProgram.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <unistd.h>

namespace {

const CString Program = RULEWARD_BIN_FOLDER "/kvstd";

class Process : public CliRoom {
protected:
    Process() {
        for (int i = 0; i < 50; ++i)
            fifty.append("samples/Metric drawings to ISO.kvstd");
    }

    // The exit code, or -1; the outputs are kept for the test.
    int Exec(const CStringArray& words, const CString& program = Program) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, words);
        process.waitForFinished(60000);
        out = process.readAllStandardOutput();
        err = process.readAllStandardError();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    int Shell(const CString& line) { return Exec({"-c", line}, "bash"); }

    CStringArray Merge(const CStringArray& files) const {
        return CStringArray{"merge", "-o", "out.kvstd"} + files;
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    CStringArray fifty;
    QByteArray out;
    QByteArray err;
};

// A terminal for the standard error of a process.
class Terminal {
public:
    Terminal() {
        char name[64] = {};
        EXPECT_EQ(::openpty(&m_ours, &m_theirs, name, nullptr, nullptr), 0);
        m_name = name;
    }
    ~Terminal() {
        ::close(m_ours);
        ::close(m_theirs);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    CString Name() const { return m_name; }
    // Reads on until the text has come, or nothing more comes.
    bool ReadUntil(const QByteArray& text, int waitMilliseconds = 20000) {
        pollfd wait{m_ours, POLLIN, 0};
        while (!shown.contains(text) && ::poll(&wait, 1, waitMilliseconds) == 1) {
            char buffer[4096];
            const ssize_t count = ::read(m_ours, buffer, sizeof buffer);
            if (count <= 0)
                break;
            shown.append(buffer, count);
        }
        return shown.contains(text);
    }
    QByteArray shown;

private:
    int m_ours = -1;
    int m_theirs = -1; // kept open, or the end of the process would close the terminal
    CString m_name;
};

} // namespace

TEST_F(Process, ExitCodes) {
    EXPECT_EQ(Exec({"--version"}), 0);
    EXPECT_EQ(out, "kvstd 2026\n");
    EXPECT_EQ(Exec({"validate", "samples/xml/Drawings 2019.kvstd"}), 1);
    EXPECT_EQ(Exec({"shwo"}), 2);
    EXPECT_EQ(Exec({"show", "no.kvstd"}), 3);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "kvstd: no.kvstd: there is no such file\n");
}

TEST_F(Process, SaysTheSameAsInProcess) {
    EXPECT_EQ(Exec({"show", "samples/Metric drawings to ISO.kvstd"}), 0);
    ExpectFile("show-metric.txt", out);
    EXPECT_EQ(err, "");
}

TEST_F(Process, WorksInABareEnvironment) {
    environment.clear();
    EXPECT_EQ(Exec({"show", "samples/Metric drawings to ISO.kvstd"}), 0);
    EXPECT_EQ(err, "");
    ExpectFile("show-metric.txt", out);
}

TEST_F(Process, TheFiguresOfEveryLocaleAreTheSame) {
    environment.remove("XDG_RUNTIME_DIR"); // as in a scheduled job
    for (const char* locale : {"C", "de_DE.UTF-8"}) {
        environment.insert("LC_ALL", locale);
        ASSERT_EQ(Exec({"show", "--json", "samples/Metric drawings to ISO.kvstd"}), 0);
        ExpectFile("show-metric.json", out);
        ASSERT_EQ(Exec({"report", "-o", "r", "--pdf", "samples/Inch drawings to ASME.kvstd"}), 0);
        EXPECT_EQ(err, "") << locale;
        EXPECT_TRUE(RunProgram("pdftotext", {"r/Inch drawings to ASME.pdf", "-"}).contains("0.125"));
    }
}

TEST_F(Process, OutputThatCannotBeWrittenIsAFailure) {
    for (const char* command : {"show samples/*metal*", "catalogue", "--help", "catalogue --json"}) {
        EXPECT_EQ(Shell(Program + " " + command + " >/dev/full"), 3) << command;
        EXPECT_EQ(err, "kvstd: standard output: could not be written\n");
    }
}

TEST_F(Process, AReaderThatLeavesEndsItQuietlyAndCleanly) {
    EXPECT_EQ(Shell("exec 3> >(exec true); wait $!; " + Program + " show --json samples/Metric* >&3"),
              128 + SIGPIPE);
    EXPECT_EQ(err, "");
}

TEST_F(Process, NoProgressInAPipe) {
    EXPECT_EQ(Exec(Merge(fifty)), 0);
    EXPECT_EQ(err, "");
    EXPECT_TRUE(out.startsWith("Checks replaced")) << out.constData();
}

TEST_F(Process, ProgressOnATerminal) {
    Terminal terminal;
    QProcess process;
    process.setStandardErrorFile(terminal.Name());
    process.start(Program, Merge(fifty));
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_TRUE(terminal.ReadUntil("\rMerging: 50 of 50\r                 \r")) << terminal.shown.constData();
    EXPECT_TRUE(terminal.shown.startsWith("\rMerging: 1 of 50")) << terminal.shown.constData();
    EXPECT_FALSE(process.readAllStandardOutput().contains('\r'));
}

TEST_F(Process, AnInterruptedMergeLeavesNothing) {
    folder.Put("out.kvstd", "old");
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        Terminal terminal;
        QProcess process;
        process.setStandardErrorFile(terminal.Name());
        process.start(Program, Merge(fifty + fifty + fifty + fifty));
        ASSERT_TRUE(terminal.ReadUntil("Merging: 1 of 200"));
        ::kill(static_cast<pid_t>(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 3);
        EXPECT_TRUE(terminal.ReadUntil("kvstd: interrupted\r\n")) << terminal.shown.constData();
        EXPECT_FALSE(terminal.shown.contains("200 of 200"));
        EXPECT_EQ(process.readAllStandardOutput(), "");
        EXPECT_EQ(folder.Get("out.kvstd"), "old");
        EXPECT_EQ(folder.Names(), (CStringArray{"out.kvstd", "samples", "tmp"}));
        EXPECT_EQ(folder.Names("tmp"), CStringArray());
    }
}

TEST_F(Process, FindsItsTextsFromAnywhere) {
    ASSERT_TRUE(QFile::link(Program, "elsewhere"));
    EXPECT_EQ(Exec({"--language", "German", "catalogue"}, folder.Path("elsewhere")), 0);
    ExpectFile("catalogue-german.txt", out);
    EXPECT_EQ(Shell("cd / && exec " + folder.Path("elsewhere") + " catalogue"), 0);
    ExpectFile("catalogue.txt", out);
}

TEST_F(Process, TheManPageIsFlawless) {
    ASSERT_EQ(
        Shell(Program + " --man-page >kvstd.1 && man --warnings -E UTF-8 -l -Tutf8 -Z kvstd.1 >/dev/null"), 0)
        << err.constData();
    EXPECT_EQ(err, "");
    ASSERT_EQ(Shell("MANWIDTH=80 man -l kvstd.1 | col -b"), 0);
    EXPECT_TRUE(out.contains("merge -o OUT FILE FILE...")) << out.constData();
}

TEST_F(Process, CompletionInBash) {
    ASSERT_EQ(Exec({"--bash-completion"}), 0);
    folder.Put("completion", out);
    folder.Put("My parts.kvstd", "");
    const auto complete = [this](const CString& words, int index) {
        Shell("set -u; . ./completion; COMP_WORDS=(" + words + ") COMP_CWORD=" + CString::number(index) +
              "; _kvstd; printf '%s\\n' \"${COMPREPLY[@]}\"");
        EXPECT_EQ(err, "");
        return QString::fromUtf8(out).split('\n', Qt::SkipEmptyParts);
    };
    EXPECT_EQ(complete("kvstd ''", 1),
              (CStringArray{"show", "validate", "merge", "report", "pack", "unpack", "convert", "catalogue",
                            "--language", "--help", "--version"}));
    EXPECT_EQ(complete("kvstd c", 1), (CStringArray{"convert", "catalogue"}));
    EXPECT_EQ(complete("kvstd --language German sh", 3), CStringArray{"show"});
    EXPECT_EQ(complete("kvstd report -", 2), (CStringArray{"--help", "-o", "--html", "--pdf"}));
    EXPECT_EQ(complete("kvstd convert a.kvstd --l", 3), CStringArray{"--length"});
    EXPECT_EQ(complete("kvstd show My", 2), CStringArray{"My parts.kvstd"});
    EXPECT_EQ(complete("kvstd merge -o out.kvstd My", 4), CStringArray{"My parts.kvstd"});
    EXPECT_EQ(complete("kvstd show nothing", 2), CStringArray());
}
