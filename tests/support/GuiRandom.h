// A seeded walk over the whole tool: commands as a user would give them, on several documents at once. The
// same seed gives the same walk.
#pragma once

#include "support/GuiTool.h"

#include <functional>
#include <map>
#include <random>

class RandomWalk {
public:
    // Starts the tool and opens the standards of the folder's Walk*.kvstd, which WriteStandards has put
    // there.
    RandomWalk(unsigned seed, const CString& folder);

    static void WriteStandards(const CString& folder);

    void Step(); // one command
    // What is not as it should be after the last step; empty where all is well.
    CString WhatIsWrong();
    // The last commands, to be told with a failure.
    CString LastCommands() const;
    GuiTool& Tool() { return m_tool; }

    // Told around each save: the path, and the text that the file is to hold.
    using SaveListener = std::function<void(const CString& path, const CString& text)>;
    SaveListener Saving;
    SaveListener Saved;
    int MeanStepsToSave = 25; // how often the walk saves

private:
    struct Kind {
        int weight;
        void (RandomWalk::*act)();
    };
    struct SavedState {
        CString text;
        bool unitsChanged; // since: figures may differ in their last digits
    };

    unsigned Below(unsigned count) { return static_cast<unsigned>(m_numbers() % count); }
    bool Chance(unsigned percent) { return Below(100) < percent; }
    void Note(const CString& command);
    void Complain(const CString& what) { m_wrong += what + "\n"; }
    MessageAnswer AnswerMessage(const CString& text, MessageButtons buttons);

    void GoToChecks();
    CExtDialog* AnyPane(); // that is shown; null where none is
    void FocusPageMostly();

    void PressCheck();
    void ChooseCriticality();
    void EditDraftingStandard();
    void EditAnyControl();
    void Undo();
    void Redo();
    void SwitchPage();
    void Copy();
    void Cut();
    void Paste();
    void SelectPane();
    void Collapse();
    void ClosePane();
    void ChangeUnit();
    void SwitchDocument();
    void ShowAll();
    void SwitchTab();
    void Save();
    void SaveAs();
    void CloseDocument();

    void OpenAnother();
    CString FreePath(); // of a file that no other document has open; empty where there is none
    CStringArray Files() const;
    void BeginSave(const CString& path);
    void EndSave(CAdminModuleDoc* document, const CString& path); // the document may be closed by then
    CString UnmodifiedDiffers();

    std::mt19937 m_numbers;
    CString m_folder;
    CStringArray m_log;
    CString m_wrong;
    bool m_isClosing = false;
    CString m_savedOnClose; // path
    CString m_expected;     // the text that the save in progress is to write
    std::map<const CAdminModuleDoc*, SavedState> m_saved;
    MessageScope m_messages;
    GuiTool m_tool;
};

// The live checks of a standard's file as text, read as a new run of the tool would; a text that tells why,
// where the file cannot be read.
CString LiveTextOfFile(const CString& path);
CString DigestOf(const CString& text);
