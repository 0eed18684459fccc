#include "ShellRoom.h"

#include "platform/LanguageLibrary.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QTextBrowser>

namespace {

void SetLanguage(const CString& name) {
    CCommonRegSetting settings;
    settings.SetString("CurrentLanguage", name);
    settings.WriteAll();
}

class Startup : public ShellRoom {};

// Shows the pages that the tool hands to the desktop.
class Desktop {
public:
    Desktop() { QDesktopServices::setUrlHandler("file", &m_browser, "setSource"); }
    ~Desktop() { QDesktopServices::unsetUrlHandler("file"); }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    CString Shown() const { return m_browser.source().toLocalFile(); }

private:
    QTextBrowser m_browser;
};

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

TEST_F(Startup, HelpIsReadFromTheFolderOfTheNamedLanguage) {
    // Of a name that no test beside this one uses.
    const CString language = CString("Klingon%1").arg(QCoreApplication::applicationPid());
    const CString languages = QFileInfo(RULEWARD_BIN_FOLDER).path() + "/Lang";
    const CString help = languages + "/" + language + "/help";
    ASSERT_TRUE(QDir().mkpath(help));
    QFile page(help + "/index.html");
    ASSERT_TRUE(page.open(QIODevice::WriteOnly) && page.write("<p>Help</p>") > 0);
    page.close();
    SetLanguage(language);
    const Desktop desktop;
    Start();
    EXPECT_EQ(LoadedLanguage().toLower(), "english");
    Send(Command::HelpTopics);
    EXPECT_EQ(desktop.Shown(), help + "/index.html");
    EXPECT_TRUE(messages.texts.isEmpty());
    SetLanguage({});
    QDir(languages + "/" + language).removeRecursively();
    QDir().rmdir(languages);
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
