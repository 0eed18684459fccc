// One open standard: the standard itself, a folder of its own in which the working copy of the file lies, and
// the locks that keep other runs of the tool from the file. The user's file is never edited in place: opening
// unpacks it into the folder, saving writes there and packs the folder over the user's file.
#pragma once

#include "editing/EditingHost.h"
#include "model/Standard.h"
#include "platform/FileLock.h"
#include "platform/Text.h"
#include "platform/widgets/CommandRouter.h"
#include "shell/SavedPlace.h"

#include <QObject>
#include <QPointer>

class CAdminModuleApp;
class CChildFrame;
class DocumentView;

class CAdminModuleDoc : public QObject, public CommandTarget {
    Q_OBJECT

public:
    // Makes the document's folder in the run folder. `title` is shown until the document has a file.
    CAdminModuleDoc(CAdminModuleApp& app, const CString& title);
    ~CAdminModuleDoc() override;

    // The document in front, or null.
    static CAdminModuleDoc* GetActiveStandardDoc(const CAdminModuleApp& app);

    // Reads a standard into this new document. What keeps it from that is told to the user.
    bool OnOpenDocument(const CString& path);
    // Each tells the user what went wrong and is false then; the user's file is as it was, and the document
    // stays modified.
    bool OnFileSaveStandard();
    bool OnFileSaveAsStandard(); // false also where the user cancels
    bool SaveStandardAs(const CString& path);
    // Save, or Save As where there is no file that could be written.
    bool DoFileSave();
    // Asks what becomes of changes. False where the document must stay open.
    bool SaveModified();
    // Gives back locks and folder. The window is closed by then, or about to.
    void OnCloseDocument();

    // Whether a document with that path is open, without regard to case.
    bool IsPathOpen(const CString& path) const;

    bool IsModified() const { return Modified; }
    void SetModifiedFlag(bool modified) { Modified = modified; }
    // Works out the modified flag from the history; the program does so whenever it goes idle.
    void UpdateModified();
    // New content came from outside and not through the history: modified until the document is closed.
    void SetForcedModified() { ForcedModified = true; }

    CStandard& GetStandard() { return Standard; }
    const CStandard& GetStandard() const { return Standard; }
    UnitSettingsList& GetUnitSettings() { return UnitSettings; }
    bool IsLoaded() const { return Loaded != 0; }
    void SetLoaded(bool loaded) { Loaded = loaded; }
    bool TakeLoadedFlag(); // the flag falls with the question
    const CString& GetTempFolder() const { return TempFolder; }
    const CString& GetUserPath() const { return UserPath; } // empty for a document without a file
    const CString& GetWorkingFile() const { return WorkingFile; }
    CString GetTitle() const; // the file's name, or the title of a document without one
    bool IsReadOnly() const { return ReadOnly != 0; }
    int GetFileVersion() const { return FileVersion; }
    bool HoldsUserFileLock() const { return UserFileLock.IsHeld(); }

    // The window that shows the document, and its content; null before it is shown.
    CChildFrame* GetFrame() const;
    DocumentView* GetView() const;
    void SetFrame(CChildFrame* frame);

    // Save, Save As and Close.
    bool OnCommand(unsigned id) override;
    bool OnUpdateCommand(unsigned id, CommandState& state) override;

private:
    struct Place;

    Place GetPlace() const;
    bool LockUserFile(const CString& path);
    int ProbeStandardVersion(const CString& path);
    void ReportVersionMismatch() const;
    bool OnSaveDocument(const CString& workingPath);
    bool Pack();
    bool WriteAndPack(const CString& workingPath);
    CString WorkingPathOf(const CString& userPath) const;
    void MoveWorkingFile(const CString& path);
    void TellFailure(const CString& reason) const;
    void SetPathName(const CString& path); // in title and recent files

    CAdminModuleApp& m_app;
    QPointer<CChildFrame> m_frame;
    CString m_title;
    bool Modified = false;

    UnitSettingsList UnitSettings;
    int Loaded = 0; // content came into the standard that is not on the page yet
    SavedPlace SavedHistoryIndex;
    bool ForcedModified = false;
    FileLock UserFileLock;
    FileLock WorkingFileLock;
    int ReadOnly = 0; // the user chose to open a file that could not be locked
    bool SaveAs = false;
    CString WorkingFile; // full path of the working copy, empty until a file was loaded or saved
    CString TempFolder;
    CString UserPath;
    int FileVersion;
    CStandard Standard; // last: it tells of discarded steps until it ends
};
