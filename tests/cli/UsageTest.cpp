// Wrong usage, and help in all its forms.
#include "cli/CliRoom.h"

#include "cli/CommandTable.h"
#include "platform/LanguageLibrary.h"

namespace {

class Usage : public CliRoom {
protected:
    // Ends with code 2, says what is wrong and where help is to be had, and prints nothing.
    void ExpectWrong(const CString& words, const CString& problem, const CString& command = {}) {
        const CString help = "kvstd: try \"kvstd " + (command.isEmpty() ? "" : command + " ") + "--help\"\n";
        EXPECT_EQ(Run(words, 2, ("kvstd: " + problem + "\n" + help).toUtf8()), "") << qPrintable(words);
    }
};

} // namespace

TEST_F(Usage, NothingAtAll) {
    ExpectWrong("", "no command given");
    ExpectWrong("--language German", "no command given");
}

TEST_F(Usage, UnknownWords) {
    ExpectWrong("shwo a.kvstd", "unknown command shwo");
    ExpectWrong("''", "unknown command ");
    ExpectWrong("--verbose", "unknown option --verbose");
    ExpectWrong("help shwo", "unknown command shwo");
    ExpectWrong("--language Klingon catalogue", "unknown language Klingon");
    ExpectWrong("show --everything a.kvstd", "unknown option --everything", "show");
    ExpectWrong("show -a a.kvstd", "unknown option -a", "show");
    ExpectWrong("show --all=yes a.kvstd", "unknown option --all=yes", "show");
    ExpectWrong("pack -o a b", "unknown option -o", "pack");
}

TEST_F(Usage, MissingWords) {
    ExpectWrong("--language", "option --language needs NAME");
    ExpectWrong("--language= catalogue", "option --language needs NAME");
    ExpectWrong("merge a b -o", "option -o needs OUT", "merge");
    ExpectWrong("convert a -o b --length", "option --length needs UNIT", "convert");
    ExpectWrong("merge a b", "option -o OUT is needed", "merge");
    ExpectWrong("merge a b -o ''", "option -o OUT is needed", "merge");
    ExpectWrong("report a", "option -o FOLDER is needed", "report");
    ExpectWrong("convert a --length mm", "option -o OUT is needed", "convert");
    ExpectWrong("convert a -o b", "option --length or --angle is needed", "convert");
}

TEST_F(Usage, UnknownUnits) {
    ExpectWrong("convert a -o b --length furlong", "unknown unit furlong", "convert");
    ExpectWrong("convert a -o b --length MM", "unknown unit MM", "convert");
    ExpectWrong("convert a -o b --length ''", "unknown unit ", "convert");
    ExpectWrong("convert a -o b --length mm --angle grad", "unknown unit grad", "convert");
}

TEST_F(Usage, NumberOfOperands) {
    for (const char* command : {"show", "validate", "report -o r", "convert -o c", "pack", "unpack"})
        ExpectWrong(command, "too few arguments", CString(command).section(' ', 0, 0));
    ExpectWrong("merge -o m a", "too few arguments", "merge");
    ExpectWrong("pack a", "too few arguments", "pack");
    ExpectWrong("show a b", "too many arguments", "show");
    ExpectWrong("report -o r a b", "too many arguments", "report");
    ExpectWrong("pack a b c", "too many arguments", "pack");
    ExpectWrong("unpack a b c", "too many arguments", "unpack");
    ExpectWrong("convert -o c a b", "too many arguments", "convert");
    ExpectWrong("catalogue a", "too many arguments", "catalogue");
}

TEST_F(Usage, AfterTwoDashesOptionsAreNames) {
    Run("show -- --all", 3, "kvstd: --all: there is no such file\n");
    Run("show -- --help", 3, "kvstd: --help: there is no such file\n");
}

TEST_F(Usage, ValuesInOneWordOrTwo) {
    EXPECT_EQ(Run("--language=German catalogue"), Run("--language German catalogue"));
    Run("--language german catalogue"); // the case of the name does not matter
    ExpectWrong("convert a -o b --length=furlong", "unknown unit furlong", "convert");
}

TEST_F(Usage, HelpOfTheProgram) {
    const QByteArray help = Run("--help");
    ExpectFile("help.txt", help);
    EXPECT_EQ(Run("help"), help);
}

TEST_F(Usage, HelpOfEachCommand) {
    QByteArray all;
    for (const CommandRow& command : CommandTable()) {
        const QByteArray help = Run(CString(command.name) + " --help");
        EXPECT_EQ(Run(CString("help ") + command.name), help);
        EXPECT_EQ(Run(CString(command.name) + " a b c --help"), help);
        all += help + "\n";
    }
    ExpectFile("help-commands.txt", all);
}

TEST_F(Usage, HelpFitsATerminal) {
    QByteArray text = Run("--help");
    for (const CommandRow& command : CommandTable())
        text += Run(CString(command.name) + " --help");
    for (const QByteArray& line : text.split('\n'))
        EXPECT_LT(line.size(), 80) << line.constData();
}

TEST_F(Usage, Version) {
    EXPECT_EQ(Run("--version"), "kvstd 2026\n");
}

TEST_F(Usage, ManPageAndCompletion) {
    ExpectFile("kvstd.1", Run("--man-page"));
    ExpectFile("kvstd.bash", Run("--bash-completion"));
}

TEST_F(Usage, HelpNeedsNoLanguageLibrary) {
    EXPECT_EQ(RunWords("--help", folder.Path("nowhere")).code, 0);
    const CommandRun run = RunWords("catalogue", folder.Path("nowhere"));
    EXPECT_EQ(run.code, 3);
    EXPECT_EQ(run.err.toStdString(),
              "kvstd: " + ResolveLanguageLibrary(folder.Path("nowhere"), "English").toStdString() +
                  ": the language library cannot be read\n");
    ASSERT_TRUE(RunWords("catalogue").code == 0);
}
