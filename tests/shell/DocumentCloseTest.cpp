#include "ShellRoom.h"

#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "platform/widgets/MessageBoxes.h"
#include "shell/CatalogueButton.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"
#include "shell/TabToolbar.h"
#include "support/FileFaults.h"

#include <QFileInfo>
#include <QLabel>
#include <cerrno>

namespace {

class DocumentClose : public ShellRoom {
protected:
    DocumentClose() { Start(); }
};

} // namespace

TEST_F(DocumentClose, WithoutChangesNothingIsAsked) {
    const CString temp = Document().GetTempFolder();
    Send(Command::Close);
    EXPECT_TRUE(app.GetDocuments().empty());
    EXPECT_TRUE(messages.texts.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(temp));
    EXPECT_EQ(app.GetActiveDocument(), nullptr);
}

TEST_F(DocumentClose, TheQuestionNamesTheFileAndOffersThreeAnswers) {
    const MessageScope boxes(ShowMessageBox);
    Open(PutStandard("Plate rules.kvstd"));
    Edit();
    CString text;
    Gui::Answer answer([&](QWidget& box) {
        for (const QLabel* label : box.findChildren<QLabel*>())
            text += label->text();
        for (const unsigned button : {ButtonSave, ButtonDiscard})
            EXPECT_TRUE(LoadString(button).size() > 2);
        Gui::PressButton(box, LoadString(ButtonCancel));
    });
    Send(Command::Close);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_TRUE(text.contains("Plate rules.kvstd"));
    EXPECT_EQ(Document().GetTitle(), "Plate rules.kvstd");
    EXPECT_TRUE(Document().IsModified());
}

TEST_F(DocumentClose, SaveSavesFirst) {
    const MessageScope boxes(ShowMessageBox);
    const CString path = PutStandard("a.kvstd");
    Open(path);
    Edit();
    Gui::Answer answer([](QWidget& box) { Gui::PressButton(box, LoadString(ButtonSave)); });
    Document().GetFrame()->close();
    Gui::Settle();
    EXPECT_TRUE(folder.Get("a.kvstd").startsWith("PK"));
    EXPECT_EQ(app.GetDocuments().size(), 1u);
}

TEST_F(DocumentClose, DiscardLeavesTheFile) {
    const CString path = PutStandard("a.kvstd");
    const QByteArray before = folder.Get("a.kvstd");
    Open(path);
    Edit();
    Send(Command::Close);
    EXPECT_EQ(messages.texts, CStringArray({LoadString(SaveChangesQuestion).replace("%1", "a.kvstd")}));
    EXPECT_EQ(folder.Get("a.kvstd"), before);
    EXPECT_EQ(app.GetDocuments().size(), 1u);
}

TEST_F(DocumentClose, AFailedSaveKeepsTheDocumentOpen) {
    const CString path = PutStandard("a.kvstd");
    Open(path);
    Edit();
    CAdminModuleDoc* document = &Document();
    const MessageScope save([](const CString&, MessageButtons buttons) {
        return buttons == MessageButtons::SaveDiscardCancel ? MessageAnswer::Save : MessageAnswer::Ok;
    });
    FileFaults faults;
    faults.FailRename(ENOSPC);
    Send(Command::Close);
    ASSERT_EQ(app.GetDocuments().size(), 2u);
    EXPECT_EQ(app.GetActiveDocument(), document);
    EXPECT_TRUE(document->IsModified());
}

TEST_F(DocumentClose, CancelKeepsAllOfThemWhenTheProgramEnds) {
    Open(PutStandard("a.kvstd"));
    Open(PutStandard("b.kvstd"));
    Edit();
    const Messages cancel(MessageAnswer::Cancel);
    Send(Command::Exit);
    EXPECT_EQ(app.GetDocuments().size(), 3u);
    EXPECT_EQ(cancel.texts.size(), 1);
    EXPECT_TRUE(Frame().isVisible());
}

TEST_F(DocumentClose, TheEndAsksForEachChangedDocument) {
    Edit();
    Open(PutStandard("a.kvstd"));
    Open(PutStandard("b.kvstd"));
    Edit();
    Send(Command::Exit);
    EXPECT_EQ(messages.texts.size(), 2);
    EXPECT_TRUE(app.GetDocuments().empty());
    EXPECT_FALSE(Frame().isVisible());
}

TEST_F(DocumentClose, CloseAllClosesEveryDocumentAndStays) {
    Open(PutStandard("a.kvstd"));
    Open(PutStandard("b.kvstd"));
    Send(Command::CloseAll);
    EXPECT_TRUE(app.GetDocuments().empty());
    EXPECT_TRUE(Frame().isVisible());
    EXPECT_FALSE(Action(Command::CloseAll).isEnabled());
}

TEST_F(DocumentClose, ButtonsOfLaterCommandsKeepTheirState) {
    Send(32771); // one that is released
    Send(32916); // and one that is not
    ASSERT_TRUE(Action(32771).isChecked());
    ASSERT_TRUE(Action(32916).isChecked());
    Send(Command::Close); // discarded
    EXPECT_FALSE(Action(32771).isChecked());
    EXPECT_TRUE(Action(32916).isChecked());
    EXPECT_FALSE(Action(32916).isEnabled());
    app.OnFileNew();
    Gui::Settle();
    EXPECT_FALSE(Action(32916).isChecked());
}

TEST_F(DocumentClose, TheViewGoesBeforeItsDocument) {
    QPointer<QWidget> view = &View();
    QPointer<QObject> document = &Document();
    bool documentWasThere = false;
    QObject::connect(view, &QObject::destroyed, &Frame(), [&] { documentWasThere = !document.isNull(); });
    Send(Command::Close);
    EXPECT_TRUE(view.isNull());
    EXPECT_TRUE(document.isNull());
    EXPECT_TRUE(documentWasThere);
}

TEST_F(DocumentClose, CopiedChecksOutliveTheirDocument) {
    app.GetCheckClipboard().checks.push_back(CStandard::MakeCheck(101));
    Send(Command::Close);
    ASSERT_EQ(app.GetCheckClipboard().checks.size(), 1u);
    EXPECT_EQ(app.GetCheckClipboard().checks[0]->Type, 101);
}
