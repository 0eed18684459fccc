// Wrong usage, and help in all its forms.
#include "cli/CliRoom.h"

#include "cli/CommandTable.h"
#include "platform/LanguageLibrary.h"

namespace {

struct WrongUsage {
    const char* words;
    const char* problem;
    const char* command; // whose help is named; none: that of the program
};

constexpr WrongUsage WrongUsages[] = {
    // nothing at all
    {"", "no command given", ""},
    {"--language German", "no command given", ""},
    // words that are not known
    {"shwo a.kvstd", "unknown command shwo", ""},
    {"''", "unknown command ", ""},
    {"--verbose", "unknown option --verbose", ""},
    {"help shwo", "unknown command shwo", ""},
    {"--language Klingon catalogue", "unknown language Klingon", ""},
    {"show --everything a.kvstd", "unknown option --everything", "show"},
    {"show -a a.kvstd", "unknown option -a", "show"},
    {"show --all=yes a.kvstd", "unknown option --all=yes", "show"},
    {"pack -o a b", "unknown option -o", "pack"},
    // words that are missing
    {"--language", "option --language needs NAME", ""},
    {"--language= catalogue", "option --language needs NAME", ""},
    {"merge a b -o", "option -o needs OUT", "merge"},
    {"convert a -o b --length", "option --length needs UNIT", "convert"},
    {"merge a b", "option -o OUT is needed", "merge"},
    {"merge a b -o ''", "option -o OUT is needed", "merge"},
    {"report a", "option -o FOLDER is needed", "report"},
    {"convert a --length mm", "option -o OUT is needed", "convert"},
    {"convert a -o b", "option --length or --angle is needed", "convert"},
    // units that are not known
    {"convert a -o b --length furlong", "unknown unit furlong", "convert"},
    {"convert a -o b --length MM", "unknown unit MM", "convert"},
    {"convert a -o b --length ''", "unknown unit ", "convert"},
    {"convert a -o b --length mm --angle grad", "unknown unit grad", "convert"},
    // too few or too many operands
    {"merge -o m a", "too few arguments", "merge"},
    {"pack a", "too few arguments", "pack"},
    {"show a b", "too many arguments", "show"},
    {"report -o r a b", "too many arguments", "report"},
    {"pack a b c", "too many arguments", "pack"},
    {"unpack a b c", "too many arguments", "unpack"},
    {"convert -o c a b", "too many arguments", "convert"},
    {"catalogue a", "too many arguments", "catalogue"},
    {"show", "too few arguments", "show"},
    {"validate", "too few arguments", "validate"},
    {"report -o r", "too few arguments", "report"},
    {"convert -o c", "too few arguments", "convert"},
    {"pack", "too few arguments", "pack"},
    {"unpack", "too few arguments", "unpack"},
};

class Usage : public CliRoom {
protected:
    // Ends with code 2, says what is wrong and where help is to be had, and prints nothing.
    void ExpectWrong(const WrongUsage& wrong) {
        const CString command = wrong.command;
        const CString help = "kvstd: try \"kvstd " + (command.isEmpty() ? "" : command + " ") + "--help\"\n";
        EXPECT_EQ(Run(wrong.words, 2, ("kvstd: " + CString(wrong.problem) + "\n" + help).toUtf8()), "")
            << wrong.words;
    }
};

} // namespace

TEST_F(Usage, WrongWordsAreNamedWithWhereHelpIs) {
    for (const WrongUsage& wrong : WrongUsages)
        ExpectWrong(wrong);
}

TEST_F(Usage, AfterTwoDashesOptionsAreNames) {
    Run("show -- --all", 3, "kvstd: --all: there is no such file\n");
    Run("show -- --help", 3, "kvstd: --help: there is no such file\n");
}

TEST_F(Usage, ValuesInOneWordOrTwo) {
    EXPECT_EQ(Run("--language=German catalogue"), Run("--language German catalogue"));
    Run("--language german catalogue"); // the case of the name does not matter
    ExpectWrong({"convert a -o b --length=furlong", "unknown unit furlong", "convert"});
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
