#include "ShellRoom.h"

#include "files/Packing.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "shell/ChildFrame.h"
#include "shell/CommandTable.h"
#include "support/ChildProcess.h"
#include "support/FileFaults.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTimer>
#include <cerrno>

namespace {

class DocumentSave : public ShellRoom {
protected:
    DocumentSave() { Start(); }

    // What another run would read from the file.
    int CountIn(const CString& path) {
        CStandard standard;
        QDir(folder.Path()).mkdir("read");
        if (UnpackStandard(path, folder.Path("read")) != 1)
            return -1;
        const CString copy = folder.Path("read/" + QFileInfo(path).fileName());
        const int count = standard.LoadFromFile(copy) ? standard.CountLiveChecks() : -2;
        QDir(folder.Path("read")).removeRecursively();
        return count;
    }
    void Undo(int times) {
        int step = 0;
        for (int count = 0; count < times; ++count)
            Document().GetStandard().StepHistory(true, step);
        app.GetRouter().Arm();
        Gui::Settle();
    }
    bool IsFree(const CString& path) {
        return RunInChild([path] {
                   FileLock lock;
                   return CString(lock.Take(path) == LockOutcome::Taken ? "free" : "taken");
               }) == "free";
    }
};

} // namespace

TEST_F(DocumentSave, TheFileHoldsWhatWasEntered) {
    const CString path = PutStandard("a.kvstd");
    Open(path);
    Send(32772);
    EXPECT_TRUE(Document().IsModified());
    Send(Command::Save);
    EXPECT_FALSE(Document().IsModified());
    EXPECT_EQ(CountIn(path), 2);
    EXPECT_TRUE(folder.Get("a.kvstd").startsWith("PK"));
    EXPECT_EQ(Document().GetStandard().Name, path);
    EXPECT_EQ(View().commits, 1);
    EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(DocumentSave, TheLockIsHeldAfterwards) {
    const CString path = PutStandard("a.kvstd");
    Open(path);
    EXPECT_FALSE(IsFree(path));
    Send(Command::Save);
    EXPECT_TRUE(Document().HoldsUserFileLock());
    EXPECT_FALSE(IsFree(path));
    Document().GetFrame()->close();
    Gui::Settle();
    EXPECT_TRUE(IsFree(path));
}

TEST_F(DocumentSave, ANewStandardAsksForAName) {
    Edit();
    const CString path = folder.Path("new.kvstd");
    CString proposed;
    Gui::Answer answer([&](QWidget& dialog) {
        proposed = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
        Gui::ChooseFile(dialog, folder.Path("new")); // the extension is added
    });
    Send(Command::Save);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(proposed, "Standard1");
    EXPECT_EQ(CountIn(path), 1);
    EXPECT_EQ(Document().GetUserPath(), path);
    EXPECT_EQ(Document().GetTitle(), "new.kvstd");
    EXPECT_FALSE(IsFree(path));
    EXPECT_EQ(app.GetRecentFiles().Paths().value(0), path);
}

TEST_F(DocumentSave, ACancelledNameSavesNothing) {
    Edit();
    Gui::Answer answer([](QWidget& dialog) { dialog.close(); });
    Send(Command::Save);
    EXPECT_TRUE(Document().IsModified());
    EXPECT_TRUE(Document().GetUserPath().isEmpty());
    EXPECT_EQ(folder.Names(), CStringArray());
}

TEST_F(DocumentSave, SaveAsOverTheOwnFileIsAllowedThoughItIsLocked) {
    const CString path = PutStandard("a.kvstd");
    Open(path);
    Send(32772);
    Gui::Answer answer([&](QWidget& dialog) { Gui::ChooseFile(dialog, path); });
    Gui::Answer overwrite([](QWidget& box) { Gui::PressButton(box, "Yes"); });
    Send(Command::SaveAs);
    EXPECT_EQ(CountIn(path), 2);
    EXPECT_FALSE(Document().IsModified());
    EXPECT_TRUE(messages.texts.isEmpty());
    EXPECT_FALSE(IsFree(path));
}

TEST_F(DocumentSave, SaveAsMovesLockAndWorkingFile) {
    const CString old = PutStandard("a.kvstd");
    Open(old);
    ASSERT_TRUE(Document().SaveStandardAs(folder.Path("b.kvstd")));
    EXPECT_EQ(QDir(Document().GetTempFolder()).entryList(QDir::Files), QStringList({"b.kvstd"}));
    EXPECT_TRUE(IsFree(old));
    EXPECT_FALSE(IsFree(folder.Path("b.kvstd")));
    EXPECT_EQ(CountIn(folder.Path("b.kvstd")), 1);
    EXPECT_EQ(Document().GetTitle(), "b.kvstd");
}

TEST_F(DocumentSave, AReadOnlyDocumentAsksForANameAndIsWritableThen) {
    const CString path = PutStandard("a.kvstd");
    QDir(folder.Path()).mkdir("copy");
    const HoldingChild other([path] {
        static FileLock lock;
        return lock.Take(path) == LockOutcome::Taken;
    });
    const Messages yes(MessageAnswer::Yes);
    Open(path);
    ASSERT_TRUE(Document().IsReadOnly());
    // The same name in another folder is another file.
    Gui::Answer answer([&](QWidget& dialog) { Gui::ChooseFile(dialog, folder.Path("copy/a.kvstd")); });
    Send(Command::Save);
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_FALSE(Document().IsReadOnly());
    EXPECT_EQ(Document().GetUserPath(), folder.Path("copy/a.kvstd"));
    Edit();
    Send(Command::Save); // without a question now
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(DocumentSave, ANameThatIsLockedElsewhereIsRefusedAndTheDialogStays) {
    const CString taken = PutStandard("taken.kvstd");
    const QByteArray before = folder.Get("taken.kvstd");
    const HoldingChild other([taken] {
        static FileLock lock;
        return lock.Take(taken) == LockOutcome::Taken;
    });
    Edit();
    Gui::Answer first([&](QWidget& dialog) { Gui::ChooseFile(dialog, taken); });
    Gui::Answer overwrite([](QWidget& box) { Gui::PressButton(box, "Yes"); });
    int shown = 0;
    CAdminModuleDoc& document = Document();
    const MessageScope tell([&](const CString& text, MessageButtons) {
        ++shown;
        EXPECT_EQ(text, LoadString(2403).replace("%1", taken));
        // The dialog comes again after this.
        QTimer::singleShot(50, &Frame(), [] {
            if (QWidget* dialog = QApplication::activeModalWidget())
                dialog->close();
        });
        return MessageAnswer::Ok;
    });
    EXPECT_FALSE(document.OnFileSaveAsStandard());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(folder.Get("taken.kvstd"), before);
    EXPECT_TRUE(document.GetUserPath().isEmpty());
}

TEST_F(DocumentSave, AFailedSaveTellsFileAndReasonAndLeavesAllAsItWas) {
    const CString path = PutStandard("a.kvstd");
    Open(path);
    const QByteArray before = folder.Get("a.kvstd");
    Send(32772);
    {
        FileFaults faults;
        faults.FailRename(EIO);
        Send(Command::Save);
    }
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts[0].startsWith(LoadString(SaveFailed).replace("%1", path)));
    EXPECT_GT(messages.texts[0].size(), LoadString(SaveFailed).replace("%1", path).size() + 5);
    EXPECT_EQ(folder.Get("a.kvstd"), before);
    Gui::Settle();
    EXPECT_TRUE(Document().IsModified());
    EXPECT_FALSE(IsFree(path));
    Send(Command::Save); // the cause is gone
    EXPECT_FALSE(Document().IsModified());
    EXPECT_EQ(CountIn(path), 2);
}

TEST_F(DocumentSave, AFullDiskLeavesTheDocumentModified) {
    const CString path = PutStandard("a.kvstd");
    Open(path);
    const QByteArray before = folder.Get("a.kvstd");
    for (const size_t room : {size_t(0), size_t(40), size_t(400)}) {
        Edit();
        FileFaults faults;
        faults.FillDiskAfter(room);
        EXPECT_FALSE(Document().OnFileSaveStandard()) << room;
        EXPECT_EQ(folder.Get("a.kvstd"), before);
    }
    EXPECT_EQ(messages.texts.size(), 3);
    Gui::Settle();
    EXPECT_TRUE(Document().IsModified());
    EXPECT_TRUE(Document().OnFileSaveStandard());
}

TEST_F(DocumentSave, AFailedSaveAsKeepsTheOldPlace) {
    const CString path = PutStandard("a.kvstd");
    Open(path);
    Send(32772);
    EXPECT_FALSE(Document().SaveStandardAs(folder.Path("missing/b.kvstd")));
    EXPECT_EQ(Document().GetUserPath(), path);
    EXPECT_EQ(Document().GetWorkingFile(), Document().GetTempFolder() + "/a.kvstd");
    EXPECT_EQ(QDir(Document().GetTempFolder()).entryList(QDir::Files), QStringList({"a.kvstd"}));
    EXPECT_NE(Document().GetStandard().Name, folder.Path("missing/b.kvstd"));
    EXPECT_EQ(messages.texts.size(), 1);
    EXPECT_FALSE(IsFree(path));
    EXPECT_TRUE(Document().IsModified());
    Send(Command::Save);
    EXPECT_EQ(CountIn(path), 2);
}

TEST_F(DocumentSave, AFailedFirstSaveLeavesAnUntitledDocument) {
    Edit();
    EXPECT_FALSE(Document().SaveStandardAs(folder.Path("missing/b.kvstd")));
    EXPECT_TRUE(Document().GetUserPath().isEmpty());
    EXPECT_TRUE(Document().GetWorkingFile().isEmpty());
    EXPECT_TRUE(QDir(Document().GetTempFolder()).entryList(QDir::Files).isEmpty());
    EXPECT_EQ(Document().GetTitle(), "Standard1");
}

TEST_F(DocumentSave, SideFilesStayInTheFile) {
    QDir(folder.Path()).mkpath("in/302");
    folder.Put("in/a.kvstd", StandardXml());
    folder.Put("in/302/sheet.kvdrt", "sheet");
    ASSERT_EQ(PackFolder(folder.Path("a.kvstd"), folder.Path("in")), 1);
    Open(folder.Path("a.kvstd"));
    EXPECT_TRUE(QFileInfo::exists(Document().GetTempFolder() + "/302/sheet.kvdrt"));
    Edit();
    Send(Command::Save);
    QDir(folder.Path()).mkdir("out");
    ASSERT_EQ(UnpackStandard(folder.Path("a.kvstd"), folder.Path("out")), 1);
    EXPECT_EQ(folder.Get("out/302/sheet.kvdrt"), "sheet");
}

TEST_F(DocumentSave, ALearnedStandardStaysModifiedAfterSaving) {
    Open(PutStandard("a.kvstd"));
    Document().SetForcedModified();
    Edit();
    Send(Command::Save);
    EXPECT_TRUE(Document().IsModified());
    EXPECT_TRUE(Document().GetFrame()->isWindowModified());
}

TEST_F(DocumentSave, UndoBackToTheSavedStepIsNoChange) {
    Open(PutStandard("a.kvstd"));
    Edit(3);
    Send(Command::Save);
    Edit();
    EXPECT_TRUE(Document().IsModified());
    Undo(1);
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(DocumentSave, StepsInThePlaceOfSavedOnesAreChanges) {
    Open(PutStandard("a.kvstd"));
    Edit(3);
    Send(Command::Save);
    Undo(2);
    EXPECT_TRUE(Document().IsModified());
    Edit(2); // as many steps as were saved, but others
    EXPECT_TRUE(Document().IsModified());
    EXPECT_TRUE(Document().GetFrame()->isWindowModified());
}

TEST_F(DocumentSave, TheStartOfTheHistoryIsNoChange) {
    Open(PutStandard("a.kvstd"));
    Edit(2);
    Send(Command::Save);
    Undo(1);
    EXPECT_TRUE(Document().IsModified());
    Undo(1);
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(DocumentSave, The21stEditAfterASaveIsAChange) {
    Open(PutStandard("a.kvstd"));
    Edit(20);
    Send(Command::Save);
    EXPECT_FALSE(Document().IsModified());
    Edit();
    EXPECT_TRUE(Document().IsModified());
}

TEST_F(DocumentSave, ABoxThatIsBeingEditedWritesFirstAndKeepsTheKeyboard) {
    Open(PutStandard("a.kvstd"));
    Gui::Focus(*View().box);
    Gui::Type(*View().box, "text");
    Send(Command::Save);
    EXPECT_EQ(View().boxWritten, 1);
    EXPECT_TRUE(View().box->hasFocus());
}

TEST_F(DocumentSave, AFileThatIsGoneIsSavedUnderANewNameOnClosing) {
    const CString path = PutStandard("a.kvstd");
    Open(path);
    Edit();
    QFile::remove(path);
    Gui::Answer answer([&](QWidget& dialog) { Gui::ChooseFile(dialog, folder.Path("b.kvstd")); });
    EXPECT_TRUE(Document().DoFileSave());
    EXPECT_TRUE(answer.WasAnswered());
    EXPECT_EQ(CountIn(folder.Path("b.kvstd")), 0);
}

TEST_F(DocumentSave, AFileOfAnEarlierVersionIsConverted) {
    const CString path = PutStandard("a.kvstd", "2025");
    Open(path);
    Send(Command::Save);
    EXPECT_EQ(Document().GetFileVersion(), 2026);
    messages.texts.clear();
    Document().GetFrame()->close();
    Gui::Settle();
    Open(path);
    EXPECT_TRUE(messages.texts.isEmpty());
}
