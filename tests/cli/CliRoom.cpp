#include "cli/CliRoom.h"

#include "cli/Commands.h"
#include "platform/LanguageLibrary.h"

#include <sstream>

namespace {

CStringArray SplitWords(const CString& line) {
    CStringArray words;
    CString word;
    bool isQuoted = false;
    bool isOpen = false;
    for (const QChar c : line) {
        if (c == u'\'') {
            isQuoted = !isQuoted;
            isOpen = true;
        } else if (c == u' ' && !isQuoted) {
            if (isOpen)
                words.append(word);
            word.clear();
            isOpen = false;
        } else {
            word += c;
            isOpen = true;
        }
    }
    if (isOpen)
        words.append(word);
    return words;
}

QByteArray FirstDifference(const QByteArray& expected, const QByteArray& given) {
    const QList<QByteArray> wanted = expected.split('\n');
    const QList<QByteArray> lines = given.split('\n');
    qsizetype i = 0;
    while (i < wanted.size() && i < lines.size() && wanted[i] == lines[i])
        ++i;
    return "line " + QByteArray::number(i + 1) + "\n  expected: " + wanted.value(i, "(no more lines)") +
           "\n  given:    " + lines.value(i, "(no more lines)");
}

} // namespace

CommandRun RunWords(const CString& words, const CString& moduleFolder, bool showsProgress) {
    std::ostringstream out;
    std::ostringstream err;
    Console console(out, err, showsProgress);
    CommandRun run;
    run.code = RunCommandLine(SplitWords(words), moduleFolder, console);
    run.out = QByteArray::fromStdString(out.str());
    run.err = QByteArray::fromStdString(err.str());
    LoadLanguage(moduleFolder, "English");
    return run;
}

void ExpectFile(const char* name, const QByteArray& bytes) {
    QFile file(CString(RULEWARD_SOURCE_FOLDER "/tests/cli/expected/") + name);
    if (qEnvironmentVariableIsSet("RULEWARD_RENEW_EXPECTED")) {
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        ADD_FAILURE() << name << " is written anew";
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    const QByteArray expected = file.readAll();
    EXPECT_TRUE(expected == bytes) << name << ", " << FirstDifference(expected, bytes).constData();
}

CliRoom::CliRoom() : m_formerFolder(QDir::currentPath()), m_formerTemp(qgetenv("TMPDIR")) {
    QDir::setCurrent(folder.Path());
    QDir().mkdir("tmp");
    qputenv("TMPDIR", folder.Path("tmp").toUtf8());
    QFile::link(RULEWARD_SOURCE_FOLDER "/samples", "samples");
}

CliRoom::~CliRoom() {
    QDir::setCurrent(m_formerFolder);
    qputenv("TMPDIR", m_formerTemp);
}

QByteArray CliRoom::Run(const CString& words, int code, const QByteArray& err) {
    const CommandRun run = RunWords(words);
    EXPECT_EQ(run.code, code) << qPrintable(words) << "\n" << run.err.constData();
    EXPECT_STREQ(run.err.constData(), err.constData()) << qPrintable(words);
    return run.out;
}

void CliRoom::PutStandard(const CString& name, const CString& checks, const CString& attributes) {
    folder.Put(name, ("<Standard " + attributes + ">" + checks + "</Standard>").toUtf8());
}

CString NoteFont(const CString& from, const CString& to, const CString& correction, int life) {
    return CString("<Check Type=\"109\" Name=\"Note Font\" LifeStatus=\"%4\" Criticality=\"2\" "
                   "IsACSupported=\"1\"><Parameter Name=\"Text Height\" Type=\"1704\" "
                   "CorrectionValue=\"%3\"><Operator>1</Operator><ParameterType>1</ParameterType>"
                   "<Value>%1</Value><Value>%2</Value><Remarks/></Parameter></Check>")
        .arg(from, to, correction)
        .arg(life);
}

CString PlainCheck(int type, const CString& name, const CString& inside) {
    return CString("<Check Type=\"%1\" Name=\"%2\" LifeStatus=\"0\" Criticality=\"1\">%3</Check>")
        .arg(type)
        .arg(name, inside);
}
