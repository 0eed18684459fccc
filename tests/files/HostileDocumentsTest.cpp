#include "files/MadeDocuments.h"
#include "files/XmlDocument.h"
#include "model/Standard.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "support/Messages.h"
#include "support/WatchedRun.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <iconv.h>
#include <map>
#include <ostream>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

void PrintTo(const MadeDocument& made, std::ostream* out) {
    *out << made.name;
}

namespace {

const CString Corpus = RULEWARD_SOURCE_FOLDER "/tests/corpus";

const std::map<CString, unsigned> ReasonTexts = {
    {"large", XmlTooLarge},
    {"encoding", XmlEncoding},
    {"bytes", XmlBadBytes},
    {"doctype", XmlDoctype},
    {"deep", XmlTooDeep},
    {"attributes", XmlTooManyAttributes},
    {"content", XmlTooManyElements},
    {"damaged", XmlNotWellFormed},
    {"empty", XmlEmpty},
    {"long", XmlTooLong},
    {"names", XmlTooManyNames},
};

// The committed documents and what is expected of each.
std::map<CString, CString> Expectations() {
    std::map<CString, CString> expectations;
    QFile table(Corpus + "/documents.txt");
    table.open(QIODevice::ReadOnly);
    for (const QByteArray& line : table.readAll().split('\n'))
        if (const qsizetype blank = line.indexOf(' '); blank > 0)
            expectations[QString::fromUtf8(line.left(blank))] = QString::fromUtf8(line.mid(blank + 1));
    return expectations;
}

// The system's converters are libraries that are loaded at their first use; what a document makes the
// program open must not hide among them.
class LoadedConverters {
public:
    LoadedConverters() {
        for (const char* name : {"ISO-8859-1", "WINDOWS-1252", "SHIFT_JIS", "GB18030"})
            m_converters.push_back(iconv_open("UTF-8", name));
    }
    ~LoadedConverters() {
        for (const iconv_t converter : m_converters)
            iconv_close(converter);
    }
    LoadedConverters(const LoadedConverters&) = delete;
    LoadedConverters& operator=(const LoadedConverters&) = delete;

private:
    std::vector<iconv_t> m_converters;
};

CString LoadAndTell(const std::function<bool()>& load) {
    const Messages messages;
    CString answer = load() ? "opened" : "refused";
    for (const CString& text : messages.texts)
        answer += "\x1e" + text;
    return answer;
}

// Calls that reading this document does not need. It is opened once; looking it up is free. The sanitizers
// write to a pipe of their own to learn what memory can be read.
CString ForbiddenCalls(const WatchedRun& run, const CString& path) {
    static const QRegularExpression lookUp("^(access|faccessat|stat|newfstatat|statx) (.*)$");
    static const QRegularExpression pipe("^write ([3-9]|[0-9]{2,})$");
    CStringArray forbidden = run.calls;
    forbidden.removeOne("openat " + path);
    forbidden.removeIf([&](const CString& call) {
        const QRegularExpressionMatch match = lookUp.match(call);
        const bool isLookUp = match.hasMatch() && (match.captured(2) == path || match.captured(2).isEmpty());
        return isLookUp || (!LimitsCount() && pipe.match(call).hasMatch());
    });
    return forbidden.join("; ");
}

void ExpectTold(const CString& answer, const CString& path, const CString& expected) {
    const CStringArray parts = answer.split("\x1e");
    if (expected == "opened") {
        EXPECT_EQ(answer.toStdString(), expected.toStdString());
        return;
    }
    ASSERT_EQ(parts.size(), 2) << "exactly one message: " << answer.toStdString();
    EXPECT_EQ(parts[0], "refused");
    const CStringArray lines = parts[1].split("\n");
    ASSERT_EQ(lines.size(), 3) << parts[1].toStdString();
    EXPECT_EQ(lines[0], LoadString(2040));
    EXPECT_EQ(lines[1], path);
    ASSERT_TRUE(ReasonTexts.contains(expected)) << expected.toStdString();
    CString pattern = QRegularExpression::escape(LoadString(ReasonTexts.at(expected)));
    pattern.replace("\\%1", "[0-9]+").replace("\\%2", ".+");
    EXPECT_TRUE(QRegularExpression("^" + pattern + "$").match(lines[2]).hasMatch()) << lines[2].toStdString();
    EXPECT_LT(lines[2].size(), 300);
    for (const QChar c : lines[2])
        EXPECT_TRUE(c.isPrint() || c.isSurrogate());
}

void ExpectWithinLimits(const WatchedRun& run) {
    EXPECT_TRUE(run.ended) << run.end.toStdString();
    if (!LimitsCount())
        return;
    EXPECT_LT(run.seconds, WatchedSeconds);
    EXPECT_LT(run.peakKiB, WatchedKiB);
}

// Loads as a standard what is to be opened: any root passes there, whether it is a standard's is asked
// elsewhere.
void TryDocument(const CString& path, const CString& expected) {
    const WatchedRun run = RunWatched([&] {
        CXmlDocument document;
        CStandard standard;
        return LoadAndTell([&] {
            return expected == "opened" ? standard.LoadFromFile(path) : document.Load(path, true) != nullptr;
        });
    });
    ExpectWithinLimits(run);
    EXPECT_EQ(ForbiddenCalls(run, path).toStdString(), "");
    ExpectTold(run.answer, path, expected);
}

QByteArray Content(const CString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

// What is opened and saved opens again, and once it has settled the same bytes come out each time: a
// parameter that is not in force is written once more, with the operator 0, and then left out.
void TrySaving(const CString& path, const QTemporaryDir& folder) {
    CString source = path;
    CStringArray saved;
    for (const char* name : {"first.kvstd", "second.kvstd", "third.kvstd"}) {
        CStandard standard;
        EXPECT_TRUE(standard.LoadFromFile(source));
        source = folder.filePath(name);
        standard.SaveToFile(source);
        saved.append(source);
    }
    const QByteArray second = Content(saved[1]);
    EXPECT_EQ(second, Content(saved[2]));
    const QByteArray first = Content(saved[0]);
    if (!first.contains("<Operator>0</Operator>")) {
        EXPECT_EQ(first, second);
    }
}

CString WrittenTo(const QTemporaryDir& folder, const QByteArray& bytes) {
    const CString path = folder.filePath("document.xml");
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return path;
}

} // namespace

TEST(HostileDocuments, EveryFileOfTheCorpusHasAnExpectation) {
    const std::map<CString, CString> expectations = Expectations();
    const CStringArray files = QDir(Corpus + "/documents").entryList({"*.xml"}, QDir::Files);
    EXPECT_GE(files.size(), 120);
    EXPECT_EQ(static_cast<size_t>(files.size()), expectations.size());
    for (const CString& file : files)
        EXPECT_TRUE(expectations.contains(file.chopped(4))) << file.toStdString();
}

TEST(HostileDocuments, CorpusIsOpenedOrRefusedWithinLimitsTouchingNothingElse) {
    const LoadedConverters converters;
    const QTemporaryDir folder;
    for (const auto& [name, expected] : Expectations()) {
        SCOPED_TRACE(name.toStdString());
        const CString path = Corpus + "/documents/" + name + ".xml";
        TryDocument(path, expected);
        if (expected == "opened")
            TrySaving(path, folder);
    }
}

TEST(HostileDocuments, TheWatchSeesFilesSocketsAndWriting) {
    const WatchedRun run = RunWatched([] {
        QFile("/etc/hostname").open(QIODevice::ReadOnly);
        ::close(::socket(AF_INET, SOCK_STREAM, 0));
        return CString(::write(STDOUT_FILENO, "", 0) == 0 ? "answer" : "");
    });
    EXPECT_TRUE(run.ended);
    EXPECT_EQ(run.answer, "answer");
    const CString forbidden = ForbiddenCalls(run, "/nowhere");
    for (const char* call : {"openat /etc/hostname", "socket", "write 1"})
        EXPECT_TRUE(forbidden.contains(call)) << call << " in " << forbidden.toStdString();
}

TEST(HostileDocuments, TheWatchEndsWhatTakesTooMuch) {
    if (!LimitsCount())
        return;
    const WatchedRun greedy = RunWatched([] { return CString(QByteArray(300 * 1024 * 1024, 'x').right(1)); });
    EXPECT_FALSE(greedy.ended);
    const WatchedRun endless = RunWatched([] {
        const volatile bool isDone = false;
        while (!isDone) {
        }
        return CString();
    });
    EXPECT_FALSE(endless.ended);
}

class LargeHostileDocument : public testing::TestWithParam<MadeDocument> {};

TEST_P(LargeHostileDocument, IsOpenedOrRefusedWithinLimitsTouchingNothingElse) {
    const LoadedConverters converters;
    const QTemporaryDir folder;
    const CString path = WrittenTo(folder, GetParam().bytes());
    TryDocument(path, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(, LargeHostileDocument, testing::ValuesIn(MadeDocuments()), [](const auto& made) {
    return CString(made.param.name).replace("-", "_").toStdString();
});
