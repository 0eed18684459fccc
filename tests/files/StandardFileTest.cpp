#include "files/StandardFile.h"

#include "platform/LanguageLibrary.h"
#include "support/Messages.h"
#include "support/StandardText.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

class StandardFile : public ::testing::Test {
protected:
    CString FileWith(const QByteArray& bytes) {
        m_folder.Put("rules.kvstd", bytes);
        return m_folder.Path("rules.kvstd");
    }
    int VersionResult(const QByteArray& bytes, int& version) {
        return GetFileVersion(FileWith(bytes), version);
    }

    TestFolder m_folder;
    Messages m_messages;
};

} // namespace

TEST_F(StandardFile, HasARootNamedStandard) {
    EXPECT_EQ(IsStandardFile(FileWith("<Standard/>"), true), 1);
    EXPECT_EQ(IsStandardFile(FileWith("<x:Standard xmlns:x='u'/>"), true), 1) << "the prefix does not count";
    EXPECT_EQ(IsStandardFile(FileWith("<standard/>"), true), 0);
    EXPECT_EQ(IsStandardFile(FileWith("<Standards/>"), true), 0);
    EXPECT_TRUE(m_messages.texts.isEmpty());
}

TEST_F(StandardFile, BrokenOneIsToldWhenAsked) {
    const CString path = FileWith("<Standard>");
    EXPECT_EQ(IsStandardFile(path, false), 0);
    EXPECT_TRUE(m_messages.texts.isEmpty());
    EXPECT_EQ(IsStandardFile(path, true), 0);
    ASSERT_EQ(m_messages.texts.size(), 1);
    EXPECT_TRUE(m_messages.texts[0].startsWith(LoadString(2040)));
}

TEST_F(StandardFile, MissingOneIsRefusedWithoutAWord) {
    int version = 5;
    EXPECT_EQ(IsStandardFile(m_folder.Path("none"), true), 0);
    EXPECT_EQ(GetFileVersion(m_folder.Path("none"), version), 0);
    EXPECT_EQ(version, 5);
    EXPECT_TRUE(m_messages.texts.isEmpty());
}

TEST_F(StandardFile, VersionIsOwnLaterOrEarlier) {
    const std::pair<const char*, std::pair<int, int>> cases[] = {
        {"<Standard Version='2026'/>", {1, 2026}}, {"<Standard Version='2027'/>", {2, 2027}},
        {"<Standard Version='2025'/>", {3, 2025}}, {"<Standard/>", {3, 0}},
        {"<Standard Version='x'/>", {3, 0}},       {"<Standard Version=''/>", {3, 0}},
        {"<Standard Version='-1'/>", {3, -1}},
    };
    for (const auto& [bytes, expected] : cases) {
        int version = 5;
        EXPECT_EQ(VersionResult(bytes, version), expected.first) << bytes;
        EXPECT_EQ(version, expected.second) << bytes;
    }
}

TEST_F(StandardFile, VersionOfAnotherRootIsRefused) {
    int version = 5;
    EXPECT_EQ(VersionResult("<Other Version='2026'/>", version), 0);
    EXPECT_EQ(version, 5);
}

TEST_F(StandardFile, WrittenVersionIsTheToolsOwn) {
    CStandard standard;
    ASSERT_TRUE(standard.LoadFromFile(FileWith("<Standard Version='2019'><Check Type='406'/></Standard>")));
    EXPECT_TRUE(TextOf(standard).contains(" Version=\"2026\" "));
}

TEST_F(StandardFile, SavedOneLoadsWithItsDeletedChecks) {
    CStandard standard;
    for (int type : {312, 406, 101}) {
        unsigned number = 0;
        standard.InsertCheck(CStandard::MakeCheck(type), number);
    }
    standard.DeleteCheck(2);
    standard.RemoveCheck(1);
    standard.Unit = 3;
    standard.RunRWConfigOption = 12;
    const CString path = m_folder.Path("saved.kvstd");
    EXPECT_TRUE(standard.SaveToFile(path));
    CStandard loaded;
    EXPECT_TRUE(loaded.LoadFromFile(path));
    const CheckList checks = AllOf(loaded);
    EXPECT_EQ(NumbersOf(checks), (std::vector<unsigned>{1, 2})) << "numbers are dense again";
    EXPECT_EQ(checks[0]->Type, 406);
    EXPECT_EQ(checks[0]->LifeStatus, LifeDeleted);
    EXPECT_EQ(NumbersOf(LiveOf(loaded)), std::vector<unsigned>{2});
    EXPECT_EQ(loaded.Unit, 3);
    EXPECT_EQ(loaded.AngularUnit, -2);
    EXPECT_EQ(loaded.RunRWConfigOption, 1);
    EXPECT_EQ(loaded.GetHistoryIndex(), -1);
}

TEST_F(StandardFile, FailedLoadIsToldAndLeavesTheStandard) {
    CStandard standard;
    standard.Unit = 2;
    EXPECT_FALSE(standard.LoadFromFile(FileWith("no xml")));
    EXPECT_FALSE(standard.LoadFromFile(m_folder.Path("none")));
    ASSERT_EQ(m_messages.texts.size(), 2);
    EXPECT_TRUE(m_messages.texts[1].startsWith(LoadString(2040)));
    EXPECT_EQ(standard.Unit, 2);
}

TEST_F(StandardFile, RemarkIsGoneAfterALoadAndItsParameterAtTheNextSave) {
    CStandard standard;
    unsigned number = 0;
    auto check = CStandard::MakeCheck(312);
    check->GetLongParameter(1742)->Operator = OpEqual;
    check->GetLongParameter(1742)->Remarks = "ask first";
    standard.InsertCheck(std::move(check), number);
    CStandard loaded;
    ReadText(TextOf(standard), loaded);
    const CParameter<long>& parameter = *AllOf(loaded)[0]->GetLongParameter(1742);
    EXPECT_EQ(parameter.Remarks, "");
    EXPECT_EQ(parameter.Operator, OpEqual);
    EXPECT_EQ(parameter.Values.Count, 0);
    EXPECT_TRUE(TextOf(loaded).contains("<Operator>0</Operator>"));
    EXPECT_FALSE(TextOf(loaded).contains("<Parameter"));
}
