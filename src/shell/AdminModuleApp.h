// The application: what exists once in a run of the tool, and the commands that need no document.
#pragma once

#include "editing/WheelGuard.h"
#include "model/Catalogue.h"
#include "platform/Settings.h"
#include "platform/Text.h"
#include "platform/widgets/CommandRouter.h"
#include "shell/CheckClipboard.h"
#include "shell/DocumentView.h"
#include "shell/MenuItems.h"
#include "shell/RecentFiles.h"

#include <QBrush>
#include <QColor>
#include <memory>
#include <vector>

class CAdminModuleDoc;
class CMainFrame;

class CAdminModuleApp : public CommandTarget {
public:
    // To be made after QApplication. `makeView` makes the content of each document's window.
    explicit CAdminModuleApp(ViewMaker makeView);
    ~CAdminModuleApp() override;

    // Start-up to the first empty standard. False where the program cannot run.
    bool InitInstance();
    // Removes the run folder with all that is in it. Result: the exit code.
    int ExitInstance();

    // Each gives the new document, or null where it could not be made or opened; the user was told then.
    CAdminModuleDoc* OnFileNew();
    CAdminModuleDoc* OpenDocumentFile(const CString& path); // one that is open already comes to the front
    void OnFileOpenStandard();
    void OpenRecentFile(int index);
    // Each asks what becomes of changes first. False where the user cancelled; nothing is closed then.
    bool CloseAllDocuments();
    bool OnAppExit();

    // Text of the platform, not of the language: where the tool's files lie.
    const CString& GetLanguageName() const { return LanguageName; }
    const CString& GetLanguageFolder() const { return LanguageFolder; }
    const CString& GetModuleFolder() const { return ModuleFolder; }
    const CString& GetRunFolder() const { return RunFolder; }
    // Null before InitInstance and after ExitInstance.
    CChkbldsetting* GetSettings() const { return Settings.get(); }

    using Catalogue = std::vector<std::pair<MQC_CheckType_e, std::unique_ptr<CAppCheckInfo>>>;
    const Catalogue& GetCatalogue() const { return m_catalogue; }
    CheckClipboard& GetCheckClipboard() { return m_clipboard; }
    bool IsPasteEnabled() const { return PasteEnabled; }
    void EnablePaste() { PasteEnabled = true; }
    // Whether the checks of all groups are shown, or only those of the group in front. A change is told to
    // all views.
    bool IsShowingAll() const { return ShowAll; }
    void FlipShowAll();
    QColor GetPaletteColor(int index) const { return m_brushes[static_cast<size_t>(index)].color(); }
    // Five brushes of the palette and a hollow one.
    const QBrush& GetBrush(int index) const { return m_brushes[static_cast<size_t>(index)]; }

    CommandRouter& GetRouter() { return m_router; }
    CMenuItems& GetMenu(MenuRoot root) const { return *m_menus[static_cast<size_t>(root)]; }
    CMainFrame* GetMainFrame() const { return m_frame.get(); }
    CRecentFiles& GetRecentFiles() { return m_recent; }

    const std::vector<CAdminModuleDoc*>& GetDocuments() const { return m_documents; } // in order of opening
    CAdminModuleDoc* GetActiveDocument() const;                                       // or null
    DocumentView* GetActiveView() const;                                              // or null
    // Only for the window of a document that closes, to which the document belongs from then on.
    void DropDocument(CAdminModuleDoc& document);

    // Command 15 is a topic of the help, 0 its first page.
    void ShowHelp(unsigned command, unsigned topic);

    // Writes the file association of standards for this user. True in every case.
    bool RegisterStandardFileType();
    // Whether the language's folder holds a material database; the user is told where it holds none.
    bool CheckMaterialFolder();

    bool OnCommand(unsigned id) override;
    bool OnUpdateCommand(unsigned id, CommandState& state) override;

private:
    std::vector<CommandTarget*> Chain();
    void AddCatalogueEntry(MQC_CheckType_e type, const CAppCheckInfo& info);
    void FindFolders();
    bool LoadTexts();
    void BuildMenuSet();
    bool MakeFrame();
    CAdminModuleDoc* ShowDocument(std::unique_ptr<CAdminModuleDoc> document);
    CString FolderToOpenFrom() const;
    bool SaveAllModified();
    void OnMerge();

    ViewMaker m_makeView;
    bool FirstOpen = true; // until a file was once chosen to be opened
    std::vector<std::unique_ptr<CMenuItems>> m_menus;
    CheckClipboard m_clipboard;
    Catalogue m_catalogue;
    CString LanguageName;
    std::unique_ptr<CChkbldsetting> Settings;
    CString LanguageFolder; // of help and materials, beside the module folder
    CString ModuleFolder;   // of the program and its language libraries
    CString RunFolder;      // of all temporary files of this run
    bool PasteEnabled = false;
    bool ShowAll = false;
    std::vector<QBrush> m_brushes;
    CRecentFiles m_recent;
    CommandRouter m_router;
    WheelGuard m_wheelGuard; // in the whole program
    std::unique_ptr<CMainFrame> m_frame;
    std::vector<CAdminModuleDoc*> m_documents; // owned; deleted after their windows
    int m_newCount = 0;
};
