#include "files/XmlDocument.h"
#include "support/Messages.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

CString FileWith(const QTemporaryDir& folder, const QByteArray& bytes) {
    const CString path = folder.filePath("document.xml");
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return path;
}

} // namespace

TEST(XmlDocument, EmptyAttributeGivesFalseAndTheEmptyText) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a empty='' full='x'/>");
    CString value = "before";
    EXPECT_FALSE(root->GetAttribute("empty", value));
    EXPECT_EQ(value, "");
    value = "before";
    EXPECT_FALSE(root->GetAttribute("missing", value));
    EXPECT_EQ(value, "before");
    EXPECT_TRUE(root->GetAttribute("full", value));
    EXPECT_EQ(value, "x");
}

TEST(XmlDocument, ChangeAttributeOfAMissingOneAddsNothing) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a b='1' c='2'/>");
    EXPECT_FALSE(root->ChangeAttribute("d", "x"));
    EXPECT_TRUE(root->ChangeAttribute("b", "3"));
    EXPECT_EQ(document.GetXmlText(), R"(<a b="3" c="2"/>)");
}

TEST(XmlDocument, SelectNodesGivesAnEmptyListForNoMatch) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a><b/><c><d/></c><b/></a>");
    EXPECT_EQ(root->SelectNodes("d").GetCount(), 0);
    EXPECT_EQ(root->SelectNodes("b").GetCount(), 2);
    EXPECT_EQ(root->SelectNodes("c/d").GetCount(), 1);
    EXPECT_EQ(root->SelectNodes("]]").GetCount(), 0);
    EXPECT_EQ(root->SelectSingleNode("d"), nullptr);
}

TEST(XmlDocument, FileThatIsNotWellFormedGivesNullWithoutMessageUnlessAsked) {
    const QTemporaryDir folder;
    const CString path = FileWith(folder, "<Standard><Check></Standard>");
    const Messages messages;
    CXmlDocument document;
    EXPECT_EQ(document.Load(path, false), nullptr);
    EXPECT_TRUE(messages.texts.isEmpty());
    EXPECT_EQ(document.Load(path, true), nullptr);
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].contains(path));
}

TEST(XmlDocument, AddChildWithoutACurrentDocumentGivesNull) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a/>");
    EXPECT_EQ(root->AddChild("b"), nullptr);
    const CurrentXmlDocument current(document);
    EXPECT_NE(root->AddChild("b"), nullptr);
    EXPECT_EQ(document.GetXmlText(), "<a><b/></a>");
}

TEST(XmlDocument, WrittenWithoutDeclarationAndWhiteSpaceAndReadBackExactly) {
    const QTemporaryDir folder;
    const CString path = folder.filePath("standard.kvstd");
    const CString text = QString::fromUtf8("  a<b>&\"'\t\r\n\u00e9\u4e2d\U0001F600 ");
    {
        CXmlDocument document;
        const CurrentXmlDocument current(document);
        const auto root = document.CreateElement("Standard");
        document.AppendRoot(*root);
        root->SetAttribute("Name", text);
        root->AddChild("Value")->SetText(text);
        document.Save(path);
    }
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("<Standard Name=\"  a&lt;b&gt;&amp;&quot;'&#9;&#13;&#10;"));
    EXPECT_TRUE(bytes.endsWith("</Standard>"));
    CXmlDocument document;
    CXmlElement* root = document.Load(path, false);
    ASSERT_NE(root, nullptr);
    CString value;
    EXPECT_TRUE(root->GetAttribute("Name", value));
    EXPECT_EQ(value, text);
    root->SelectSingleNode("Value")->GetText(value);
    EXPECT_EQ(value, text);
}

TEST(XmlDocument, CharactersThatNoDocumentCanHoldAreLeftOutWhenSet) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a/>");
    const CString hostile = CString("x\x01\x0by") + QChar(0xD800) + "z" + QChar(0xFFFF) + QChar(0xDC00);
    root->SetAttribute("b", hostile);
    root->SetText(hostile);
    EXPECT_EQ(document.GetXmlText(), "<a b=\"xyz\">xyz</a>");
}

TEST(XmlDocument, NodesMoveBetweenDocumentsAndOutliveTheirFirstOne) {
    CXmlDocument target;
    CXmlElement* root = target.LoadXmlText("<a/>");
    {
        CXmlDocument source;
        CXmlElement* other = source.LoadXmlText("<b><Check Type='101'><Value>7</Value></Check></b>");
        root->AppendChild(other->SelectSingleNode("Check").get());
        EXPECT_EQ(source.GetXmlText(), "<b/>");
    }
    EXPECT_EQ(target.GetXmlText(), R"(<a><Check Type="101"><Value>7</Value></Check></a>)");
}

TEST(XmlDocument, RemovedElementMayBeAppendedAgain) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a><b/><c/></a>");
    const auto removed = root->SelectSingleNode("b");
    root->RemoveChild(removed.get());
    EXPECT_EQ(document.GetXmlText(), "<a><c/></a>");
    EXPECT_EQ(removed->GetParent(), nullptr);
    root->AppendChild(removed.get());
    EXPECT_EQ(document.GetXmlText(), "<a><c/><b/></a>");
}

TEST(XmlDocument, DeclarationAndInstructionsOfALoadedTextAreSaved) {
    const QTemporaryDir folder;
    const CString path = folder.filePath("report.xml");
    CXmlDocument document;
    document.LoadXmlText(
        "<?xml version=\"1.0\"?><?xml-stylesheet type=\"text/xsl\" href=\"Standard.xsl\"?><a/>");
    document.Save(path);
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    EXPECT_EQ(file.readAll(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                              "<?xml-stylesheet type=\"text/xsl\" href=\"Standard.xsl\"?><a/>");
}

TEST(XmlDocument, SavingWhereNothingCanBeWrittenTellsTheFile) {
    CXmlDocument document;
    document.LoadXmlText("<a/>");
    try {
        document.Save("/nowhere/at/all.xml");
        FAIL();
    } catch (const CXmlError& error) {
        EXPECT_NE(std::string(error.what()).find("/nowhere/at/all.xml"), std::string::npos);
    }
}

TEST(XmlDocument, DestroyChildTakesOnlyAChildOfItsOwn) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a><b c='1'><d>e</d></b><f/></a>");
    const auto b = root->SelectSingleNode("b");
    const auto d = b->SelectSingleNode("d");
    root->DestroyChild(d.get());
    root->DestroyChild(nullptr);
    EXPECT_EQ(document.GetXmlText(), R"(<a><b c="1"><d>e</d></b><f/></a>)");
    root->DestroyChild(b.get());
    EXPECT_EQ(document.GetXmlText(), "<a><f/></a>");
}

TEST(XmlDocument, DestroyChildFreesWhatCameFromAnotherDocument) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a/>");
    {
        CXmlDocument other;
        const auto b = other.LoadXmlText("<x><b c='some text that is not short'><d>e</d></b></x>")
                           ->SelectSingleNode("b");
        root->AppendChild(b.get());
    }
    const auto b = root->SelectSingleNode("b");
    root->DestroyChild(b.get());
    EXPECT_EQ(document.GetXmlText(), "<a/>");
}

TEST(XmlDocument, ReasonOfAMissingFileIsTheSystems) {
    const Messages messages;
    CXmlDocument document;
    EXPECT_EQ(document.Load("/nowhere/at/all.xml", true), nullptr);
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].contains("/nowhere/at/all.xml"));
    EXPECT_TRUE(messages.texts[0].contains("No such file")) << messages.texts[0].toStdString();
}

TEST(XmlDocument, FolderOrPipeIsRefusedWithoutWaitingForIt) {
    const QTemporaryDir folder;
    const CString pipe = folder.filePath("pipe.xml");
    ASSERT_EQ(::mkfifo(pipe.toUtf8().constData(), 0600), 0);
    for (const CString& path : {folder.path(), pipe, CString("/dev/zero")}) {
        CXmlDocument document;
        EXPECT_EQ(document.Load(path, false), nullptr);
        EXPECT_FALSE(document.GetLoadError().isEmpty()) << path.toStdString();
    }
}

TEST(XmlDocument, RefusedTextIsShownOnce) {
    const Messages messages;
    CXmlDocument document;
    EXPECT_EQ(document.LoadXmlText("<!DOCTYPE a><a/>"), nullptr);
    EXPECT_EQ(messages.texts.size(), 1);
}

TEST(XmlDocument, FailedLoadLeavesTheDocumentAsItWas) {
    const Messages messages;
    CXmlDocument document;
    document.LoadXmlText("<a/>");
    EXPECT_EQ(document.LoadXmlText("<b>"), nullptr);
    EXPECT_EQ(document.Root, nullptr);
    EXPECT_EQ(document.GetBytes(), "<a/>");
}

TEST(XmlDocument, WhatCouldNotBeReadAgainIsNotSaved) {
    const QTemporaryDir folder;
    const CString path = FileWith(folder, "<old/>");
    CXmlDocument document;
    const CurrentXmlDocument current(document);
    auto element = document.CreateElement("a");
    document.AppendRoot(*element);
    for (int depth = 1; depth <= XmlLimits::Depth; ++depth)
        element = element->AddChild("a");
    EXPECT_THROW(document.Save(path), CXmlError);
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    EXPECT_EQ(file.readAll(), "<old/>");
}

TEST(XmlDocument, ReplacedTextStaysUsableWhileItsDocumentLives) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a>one<b/>two</a>");
    const CXmlNodeList texts = root->GetChildNodes();
    root->SetText("three");
    root->SetText("four");
    CString text;
    texts.GetAt(0)->GetText(text);
    EXPECT_EQ(text, "one");
    texts.GetAt(2)->GetText(text);
    EXPECT_EQ(text, "two");
    EXPECT_EQ(document.GetXmlText(), "<a>four</a>");
}

TEST(XmlDocument, TextThatIsAppendedBesideATextStaysUsable) {
    CXmlDocument document;
    CXmlElement* root = document.LoadXmlText("<a>one<b>two</b></a>");
    const CXmlNodeList inner = root->SelectSingleNode("b")->GetChildNodes();
    const auto child = root->SelectSingleNode("b");
    root->AppendChild(inner.GetAt(0));
    root->RemoveChild(child.get());
    root->AppendChild(inner.GetAt(0));
    CString text;
    inner.GetAt(0)->GetText(text);
    EXPECT_EQ(text, "two");
    root->GetText(text);
    EXPECT_EQ(text, "onetwo");
}

TEST(XmlDocument, EmptyCharacterDataIsNothing) {
    CXmlDocument document;
    document.LoadXmlText("<a><b><![CDATA[]]></b><c><![CDATA[<x>]]>y</c></a>");
    EXPECT_EQ(document.GetXmlText(), "<a><b/><c>&lt;x&gt;y</c></a>");
}
