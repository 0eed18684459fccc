#include "files/Stylesheet.h"

#include "files/LanguageScope.h"
#include "support/Messages.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned Texts[] = {1944, 1945, 1946, 1947, 1948, 2394, 2395, 2261, 1907};

} // namespace

TEST(Stylesheet, HoldsItsNineTextsInTheirOrder) {
    const CString stylesheet = BuildStylesheet([](unsigned id) { return CString("[%1]").arg(id); });
    qsizetype at = 0;
    for (const unsigned id : Texts) {
        const qsizetype found = stylesheet.indexOf(CString("[%1]").arg(id), at);
        ASSERT_GT(found, at) << id;
        at = found;
    }
    EXPECT_EQ(stylesheet.count('['), 9 + stylesheet.count("[@") + stylesheet.count("[Operator"));
}

TEST(Stylesheet, HeadCellsLookAlike) {
    const CString stylesheet = BuildStylesheet();
    EXPECT_EQ(
        stylesheet.count("<th width='33%' bgcolor='#000088'><b><font face='Arial' size='2' color='#FFFF00'>"),
        3);
}

TEST(Stylesheet, IsWrittenAsADocument) {
    const TestFolder folder;
    const FileResult result = WriteStylesheet(folder.Path(), "Standard.xsl");
    EXPECT_TRUE(result.ok) << result.reason.toStdString();
    const QByteArray written = folder.Get("Standard.xsl");
    EXPECT_TRUE(written.startsWith("<?xml version=\"1.0\""));
    EXPECT_TRUE(written.contains("<title>" + LoadString(1944).toUtf8() + "</title>"));
}

TEST(Stylesheet, TextThatBreaksItLeavesNone) {
    for (const char* text : {"Rules & more", "<Rules", "</b>"}) {
        const TestFolder folder;
        Messages messages;
        const FileResult result = WriteStylesheet(folder.Path(), "Standard.xsl", [text](unsigned id) {
            return id == 2394 ? CString(text) : LoadString(id);
        });
        EXPECT_FALSE(result.ok) << text;
        ASSERT_EQ(messages.texts.size(), 1);
        EXPECT_TRUE(messages.texts[0].startsWith(LoadString(2040)));
        EXPECT_TRUE(folder.Names().isEmpty());
    }
}

TEST(Stylesheet, TextsOfEveryLanguageKeepItWhole) {
    for (const char* language : {"English", "German"}) {
        const LanguageScope scope(language);
        for (const unsigned id : Texts) {
            EXPECT_FALSE(LoadString(id).isEmpty()) << language << id;
            EXPECT_FALSE(LoadString(id).contains('&') || LoadString(id).contains('<')) << language << id;
        }
        const TestFolder folder;
        EXPECT_TRUE(WriteStylesheet(folder.Path(), "Standard.xsl").ok);
        EXPECT_TRUE(folder.Get("Standard.xsl").contains(LoadString(2395).toUtf8()));
    }
}

TEST(Stylesheet, FailureToWriteIsTold) {
    const TestFolder folder;
    const FileResult result = WriteStylesheet(folder.Path("missing"), "Standard.xsl");
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.reason.contains("missing"));
}
