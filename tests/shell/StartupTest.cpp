#include "ShellRoom.h"

#include "platform/LanguageLibrary.h"
#include "shell/ChildFrame.h"

#include <QDir>
#include <QFileInfo>

namespace {

void SetLanguage(const CString& name) {
    CCommonRegSetting settings;
    settings.SetString("CurrentLanguage", name);
    settings.WriteAll();
}

class Startup : public ShellRoom {};

} // namespace

TEST_F(Startup, BeforeItNothingIsShown) {
    EXPECT_EQ(app.GetMainFrame(), nullptr);
    EXPECT_EQ(app.GetSettings(), nullptr);
    EXPECT_EQ(app.GetCatalogue().size(), 54u);
    EXPECT_FALSE(app.IsPasteEnabled());
    EXPECT_EQ(app.GetCheckClipboard().lengthUnit, 2);
    EXPECT_EQ(app.GetCheckClipboard().angleUnit, 3);
}

TEST_F(Startup, OpensOnAnEmptyStandard) {
    Start();
    ASSERT_EQ(app.GetDocuments().size(), 1u);
    EXPECT_EQ(Document().GetStandard().CountLiveChecks(), 0);
    EXPECT_FALSE(Document().IsModified());
    EXPECT_EQ(Document().GetTitle(), "Standard1");
    EXPECT_EQ(View().initialUpdates, 1);
    EXPECT_TRUE(Document().GetFrame()->isMaximized());
    EXPECT_TRUE(Frame().isMaximized());
    EXPECT_TRUE(app.IsPasteEnabled());
    EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(Startup, AnyOtherSettingThanTheWelcomePageOpensAnEmptyStandard) {
    CChkbldsetting settings;
    settings.SetInt("ShowWelcomePgAtStartup", 2);
    settings.WriteAll();
    Start();
    EXPECT_EQ(app.GetDocuments().size(), 1u);
}

TEST_F(Startup, TheRunFolderStandsUnderTheToolsOwn) {
    Start();
    const QFileInfo run(app.GetRunFolder());
    EXPECT_TRUE(run.isDir());
    EXPECT_TRUE(run.path().endsWith("/Ruleward/2026/CheckBuilder")) << run.path().toStdString();
    EXPECT_EQ(QFileInfo(Document().GetTempFolder()).path(), app.GetRunFolder());
}

TEST_F(Startup, TwoRunsHaveFoldersSideBySide) {
    Start();
    CAdminModuleApp second(nullptr);
    ASSERT_TRUE(second.InitInstance());
    EXPECT_NE(second.GetRunFolder(), app.GetRunFolder());
    EXPECT_EQ(QFileInfo(second.GetRunFolder()).path(), QFileInfo(app.GetRunFolder()).path());
    second.ExitInstance();
    EXPECT_FALSE(QFileInfo::exists(second.GetRunFolder()));
    EXPECT_TRUE(QFileInfo::exists(app.GetRunFolder()));
}

TEST_F(Startup, TheEndRemovesTheRunFolderWithOpenDocuments) {
    Start();
    Edit();
    const CString run = app.GetRunFolder();
    EXPECT_EQ(app.ExitInstance(), 0);
    EXPECT_FALSE(QFileInfo::exists(run));
    EXPECT_EQ(app.GetSettings(), nullptr);
}

TEST_F(Startup, AnEmptyLanguageMeansEnglish) {
    SetLanguage({});
    Start();
    EXPECT_EQ(app.GetLanguageName(), "English");
    EXPECT_EQ(LoadedLanguage(), "English");
}

TEST_F(Startup, AMissingLanguageIsShownInEnglishAndItsHelpIsStillLookedForUnderItsName) {
    SetLanguage("Klingon");
    Start();
    EXPECT_EQ(LoadedLanguage().toLower(), "english");
    EXPECT_EQ(app.GetLanguageName(), "Klingon");
    const CString parent = QFileInfo(app.GetModuleFolder()).path();
    EXPECT_EQ(app.GetLanguageFolder(), parent + "/Lang/Klingon");
    EXPECT_EQ(QDir::currentPath(), parent);
    SetLanguage({});
}

TEST_F(Startup, EveryDocumentHasAFolderOfItsOwn) {
    Start();
    QSet<CString> folders;
    for (int count = 0; count < 20; ++count) {
        app.OnFileNew();
        folders.insert(Document().GetTempFolder());
    }
    EXPECT_EQ(folders.size(), 20);
}

TEST_F(Startup, AMissingMaterialDatabaseIsTold) {
    Start();
    EXPECT_FALSE(app.CheckMaterialFolder());
    EXPECT_EQ(messages.texts, CStringArray({LoadString(2007)}));
}

TEST_F(Startup, AViewThatCannotBeMadeGivesNoDocument) {
    CAdminModuleApp other(
        [](CAdminModuleApp&, CAdminModuleDoc&, QWidget*) -> DocumentView* { return nullptr; });
    ASSERT_TRUE(other.InitInstance());
    EXPECT_TRUE(other.GetDocuments().empty());
    EXPECT_EQ(other.OnFileNew(), nullptr);
    other.ExitInstance();
}
