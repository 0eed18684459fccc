#include "platform/Settings.h"

#include "support/ChildProcess.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <limits>
#include <unistd.h>

namespace {

const CString KeyPath = R"(Software\Test\Values)";

// Every test has a configuration folder of its own.
class SettingsTest : public ::testing::Test {
protected:
    SettingsTest() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.Path())); }
    ~SettingsTest() override { qputenv("XDG_CONFIG_HOME", before); }

    // As another program, or the user, would write it.
    void Store(const QByteArray& lines) const {
        QDir(folder.Path()).mkdir("Kortavo");
        folder.Put("Kortavo/Ruleward.ini", lines);
    }

    TestFolder folder;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
};

int IntOf(const CSettingsKey& key, const CString& name) {
    int value = -1;
    key.GetInt(name, value);
    return value;
}

CString StringOf(const CSettingsKey& key, const CString& name) {
    CString value = "unset";
    key.GetString(name, value);
    return value;
}

// A key with one value of each kind.
CSettingsKey& AddAll(CSettingsKey& key) {
    key.AddInt("int", 1);
    key.AddColor("color", 2);
    key.AddDouble("double", 3.5);
    key.AddString("string", "four");
    key.AddPoint("point", {5, 6});
    key.AddRect("rect", QRect(QPoint(7, 8), QPoint(9, 10)));
    return key;
}

} // namespace

TEST_F(SettingsTest, AnEmptyStoreYieldsTheDefaults) {
    const CChkbldsetting tool;
    EXPECT_EQ(IntOf(tool, "UnitSettings"), 2);
    EXPECT_EQ(IntOf(tool, "ShowWelcomePgAtStartup"), 1);
    EXPECT_EQ(StringOf(tool, "LastAccessedBendTableFolder"), "");
    EXPECT_EQ(StringOf(tool, "LastAccessedSheetFormatFolder"), "");
    EXPECT_EQ(IntOf(tool, "AngularUnitSetting"), 0);
    const CCommonRegSetting common;
    EXPECT_EQ(StringOf(common, "CurrentLanguage"), "");
    EXPECT_EQ(StringOf(common, "LastAccessedLearnChkFileExtension"), "");
    EXPECT_EQ(StringOf(common, "LastAccessedLearnChkFolderPath"), "");
    EXPECT_EQ(folder.Names(), CStringArray());
}

TEST_F(SettingsTest, ChangesAreWrittenOnRequestOnly) {
    CChkbldsetting tool;
    EXPECT_TRUE(tool.SetInt("UnitSettings", 5));
    EXPECT_EQ(IntOf(tool, "UnitSettings"), 5);
    EXPECT_EQ(IntOf(CChkbldsetting(), "UnitSettings"), 2);
    EXPECT_TRUE(tool.WriteAll());
    EXPECT_EQ(IntOf(CChkbldsetting(), "UnitSettings"), 5);
}

TEST_F(SettingsTest, ASecondRunSeesWhatWasWritten) {
    CChkbldsetting tool;
    tool.SetString("LastAccessedBendTableFolder", "/home/a, \"b\"; c=d\\e/ä@");
    tool.WriteAll();
    EXPECT_EQ(RunInChild([] { return StringOf(CChkbldsetting(), "LastAccessedBendTableFolder"); }),
              "/home/a, \"b\"; c=d\\e/ä@");
}

TEST_F(SettingsTest, AnUnknownNameLeavesTheCallersVariable) {
    const CChkbldsetting tool;
    int number = -1;
    CString text = "before";
    EXPECT_FALSE(tool.GetInt("unitsettings", number));  // names are exact
    EXPECT_FALSE(tool.GetString("UnitSettings", text)); // and of one kind
    EXPECT_EQ(number, -1);
    EXPECT_EQ(text, "before");
    CChkbldsetting changed;
    EXPECT_FALSE(changed.SetInt("Unknown", 7));
}

TEST_F(SettingsTest, AValueOfTheWrongKindLeavesTheDefault) {
    for (const char* value : {"metric", "", "2.5", "12abc", "99999999999", "a, b", "@ByteArray(x)"}) {
        Store("[Software]\nKortavo\\Kortavo%202026\\Ruleward\\RulewardBuilder\\UnitSettings=" +
              QByteArray(value) + "\n");
        EXPECT_EQ(IntOf(CChkbldsetting(), "UnitSettings"), 2) << value;
    }
    Store("[Software]\nKortavo\\Kortavo%202026\\Ruleward\\RulewardBuilder\\UnitSettings=7\n");
    EXPECT_EQ(IntOf(CChkbldsetting(), "UnitSettings"), 7);
}

TEST_F(SettingsTest, GarbageInTheStoreYieldsTheDefaults) {
    Store(QByteArray("\0\xff[Software\n===\n[[]\n%zz=", 22));
    EXPECT_EQ(IntOf(CChkbldsetting(), "UnitSettings"), 2);
    EXPECT_EQ(CurrentLanguage(), "English");
}

TEST_F(SettingsTest, EveryKindReadsBackAsWritten) {
    CSettingsKey written(KeyPath);
    AddAll(written);
    written.SetInt("int", std::numeric_limits<int>::min());
    written.SetColor("color", 0xFFDDD3C8);
    written.SetDouble("double", -0.1);
    written.SetString("string", "@x, ;y\n\"z\"");
    written.SetPoint("point", {-5, std::numeric_limits<int>::max()});
    written.SetRect("rect", QRect(QPoint(-1, 2), QPoint(-30, 4)));
    written.WriteAll();
    const CString answer = RunInChild([&] {
        CSettingsKey read(KeyPath);
        AddAll(read).ReadAll();
        CString wrong;
        int number = 0;
        std::uint32_t color = 0;
        double real = 0;
        QPoint point;
        QRect rect;
        if (!read.GetInt("int", number) || number != std::numeric_limits<int>::min())
            wrong += " int";
        if (!read.GetColor("color", color) || color != 0xFFDDD3C8)
            wrong += " color";
        if (!read.GetDouble("double", real) || real != -0.1)
            wrong += " double";
        if (StringOf(read, "string") != "@x, ;y\n\"z\"")
            wrong += " string";
        if (!read.GetPoint("point", point) || point != QPoint(-5, std::numeric_limits<int>::max()))
            wrong += " point";
        if (!read.GetRect("rect", rect) || rect != QRect(QPoint(-1, 2), QPoint(-30, 4)))
            wrong += " rect";
        return wrong;
    });
    EXPECT_EQ(answer, "");
}

TEST_F(SettingsTest, TheStoredFormsAreAsOtherProgramsReadThem) {
    CSettingsKey key(KeyPath);
    AddAll(key).WriteAll();
    const QByteArray text = folder.Get("Kortavo/Ruleward.ini");
    for (const char* line : {"Test\\Values\\int=1\n", "Test\\Values\\color=2\n", "Test\\Values\\point=5 6\n",
                             "Test\\Values\\rect=7 8 9 10\n", "Test\\Values\\string=four\n",
                             "Test\\Values\\double=@ByteArray(\\0\\0\\0\\0\\0\\0\\f@)\n"})
        EXPECT_TRUE(text.contains(line)) << line << "is not in\n" << text.toStdString();
}

TEST_F(SettingsTest, APartOfAPointIsRead) {
    Store("[Software]\nTest\\Values\\point=70 x\nTest\\Values\\double=3.5\n");
    CSettingsKey key(KeyPath);
    AddAll(key).ReadAll();
    QPoint point;
    double real = 0;
    EXPECT_TRUE(key.GetPoint("point", point));
    EXPECT_EQ(point, QPoint(70, 6));
    EXPECT_TRUE(key.GetDouble("double", real));
    EXPECT_EQ(real, 3.5); // the default: a text is not the eight bytes of a number
}

TEST_F(SettingsTest, TheLastAddedValueIsFoundFirst) {
    CSettingsKey key(KeyPath);
    key.AddInt("twice", 1);
    key.AddInt("twice", 2);
    EXPECT_EQ(IntOf(key, "twice"), 2);
}

TEST_F(SettingsTest, NestedKeysAreSearchedReadAndWritten) {
    CSettingsKey outer(KeyPath);
    CSettingsKey& middle = outer.AddKey(std::make_unique<CSettingsKey>(KeyPath + "\\Middle", "Middle"));
    CSettingsKey& inner = middle.AddKey(std::make_unique<CSettingsKey>(KeyPath + "\\Inner", "Inner"));
    inner.AddInt("deep", 1);
    EXPECT_EQ(outer.FindKey("Inner"), &inner);
    EXPECT_EQ(outer.FindKey("inner"), nullptr);
    EXPECT_TRUE(outer.SetInt("deep", 2));
    outer.WriteAll();
    inner.SetInt("deep", 3);
    outer.ReadAll();
    EXPECT_EQ(IntOf(outer, "deep"), 2);
}

TEST_F(SettingsTest, RootsAreStoresOfTheirOwn) {
    CSettingsKey key(KeyPath);
    key.AddInt("int", 1);
    EXPECT_EQ(key.SetRoot(SettingsRoot::LocalMachine), SettingsRoot::CurrentUser);
    key.WriteAll();
    EXPECT_EQ(key.SetRoot(SettingsRoot::CurrentUser), SettingsRoot::LocalMachine);
    key.SetInt("int", 2);
    key.ReadAll();
    EXPECT_EQ(IntOf(key, "int"), 2);
}

TEST_F(SettingsTest, AStoreThatCannotBeWrittenIsSilent) {
    folder.Put("Kortavo", "a file stands where the folder would be");
    CChkbldsetting tool;
    tool.SetInt("UnitSettings", 5);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(tool.WriteAll());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(IntOf(tool, "UnitSettings"), 5);
    EXPECT_EQ(IntOf(CChkbldsetting(), "UnitSettings"), 2);
}

TEST_F(SettingsTest, TheLanguageIsEnglishWhereNoneIsSet) {
    EXPECT_EQ(CurrentLanguage(), "English");
    CCommonRegSetting common;
    common.SetString("CurrentLanguage", "German");
    common.WriteAll();
    EXPECT_EQ(CurrentLanguage(), "German");
    common.SetString("CurrentLanguage", "");
    common.WriteAll();
    EXPECT_EQ(CurrentLanguage(), "English");
}

TEST_F(SettingsTest, TheHostsFolderEndsAtTheFirstSemicolon) {
    EXPECT_EQ(OpenInitialFolderFromHost(), "");
    const auto given = [this](const QByteArray& value) {
        Store("[Software]\nKortavo\\Kortavo%202026\\ExtReferences\\Ruleward%20File=\"" + value + "\"\n");
        return OpenInitialFolderFromHost();
    };
    EXPECT_EQ(given("/a/b"), "/a/b");
    EXPECT_EQ(given("/a/b;/c;/d"), "/a/b");
    EXPECT_EQ(given(";/c"), ";/c");
}
