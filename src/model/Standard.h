// A standard in memory: the header fields of its file, its checks, live and deleted, and its edit history.
// Every change of a check passes through here, so that it can be undone.
#pragma once

#include "engines/EnumEngine.h"
#include "model/CheckManager.h"
#include "platform/Text.h"

#include <functional>
#include <memory>
#include <vector>

using CheckList = std::vector<CCheck*>; // not owned

class CStandard {
public:
    CStandard();
    ~CStandard();
    CStandard(const CStandard&) = delete;
    // Takes over units, options and all checks, renumbered from 1, but neither header nor history.
    CStandard& operator=(const CStandard& other);

    // A check of a type, a container for the five container types. It belongs to the caller.
    static std::unique_ptr<CCheck> MakeCheck(MQC_CheckType_e type);
    static std::unique_ptr<CCheck> CloneCheck(const CCheck& check);
    static void CopyOver(CCheck& target, const CCheck& source); // with the life status

    // Adds a check. Where one of its type was deleted, that one comes back into force with the settings
    // it had, and `check` stays with the caller, as a copy of it; else `check` is taken and is null
    // afterwards. Result: the new history index.
    int AddCheck(std::unique_ptr<CCheck>& check, unsigned& outSequence);
    // Applies an edited copy to the live check of its type. Null when done; where there is no live check,
    // nothing happens and the result is an empty check of the type.
    std::unique_ptr<CCheck> EditCheck(std::unique_ptr<CCheck> check);
    std::unique_ptr<CCheck> EditCheckCopy(const CCheck& check);
    void DeleteCheck(unsigned sequence); // marks it deleted
    void RemoveCheck(unsigned sequence); // destroys it, without history
    // Takes a check under a new number, without history.
    void InsertCheck(std::unique_ptr<CCheck> check, unsigned& outSequence);

    // Each leaves `outCheck` unchanged where there is none. Types give the lowest number that matches.
    void FindBySequence(unsigned sequence, CCheck*& outCheck) const;
    void FindLiveByType(MQC_CheckType_e type, CCheck*& outCheck) const;
    void FindAnyByType(MQC_CheckType_e type, CCheck*& outCheck) const;

    // Append in number order, in a time that grows with the numbers given out.
    bool GetLiveChecks(CheckList& list) const; // true if there is at least one
    bool GetAllChecks(CheckList& list) const;  // with the deleted ones; true unless the standard is empty
    int CountLiveChecks() const;
    bool HasManagedCorrection() const;
    // The macro files of the custom checks.
    void GetReferencedFiles(CStringArray& list) const;

    // Stamps the header with user and time, the time in the form of the language.
    void SetHeader(const CString& name, const CString& language);
    // Sets both units and converts every check, deleted ones and snapshots of the history included.
    void ChangeUnits(int lengthUnit, int angleUnit);

    // The edit history. A step is a snapshot check; its index moves when the oldest step is dropped.
    // Result of StepHistory: the type of the check concerned, 0 where there was nothing to do.
    int PushHistory(std::unique_ptr<CCheck> snapshot);
    MQC_CheckType_e StepHistory(bool isUndo, int& outStep);
    bool CanUndo() const { return HistoryIndex >= 0; }
    bool CanRedo();
    int GetHistoryIndex() const { return HistoryIndex; }
    unsigned MoveCheck(unsigned newSequence, MQC_CheckType_e type); // result: the old number
    // How many steps have been dropped as too old: index plus this count names a step for good.
    int GetDroppedSteps() const { return m_droppedSteps; }
    // Told the index of the first step that a new one discards, before it is gone.
    std::function<void(int firstIndex)> StepsDiscarded;

    // Files: see files/StandardFile.cpp and files/ReportXml.cpp.
    bool SaveToFile(const CString& path);   // always true; throws CXmlError, and then the file is as it was
    bool LoadFromFile(const CString& path); // false, after message 2040, where the file cannot be read
    bool LoadFromXmlText(const CString& text);
    const CString& BuildReportXml(); // lists only pictures that no build of this object listed before
    std::unique_ptr<CCheck> ReadCheck(const CXmlElement& element) const; // null for one without a type

    CGrowArray<CCheck*> History; // owned snapshots, at most MostSteps
    int HistoryIndex = -1;       // the last step in effect
    int RedoAvailable = 0;
    CEnumEngine Enum;
    CString Name; // the path of the file, or the title of a standard that has none
    CString CreatedOn;
    CString Createdby;
    CGrowArray<unsigned long> ReportImages; // pictures already listed in a report
    CCheck* Root;                           // the top node of the check tree, owned, never null
    unsigned LastSequence = 0;              // the highest number ever given out
    int Unit = UnitNotSet;                  // length unit
    int AngularUnit = UnitNotSet;
    CString ReportXml;
    int RunRWConfigOption = 0; // stored for the checker

    static constexpr int UnitNotSet = -2;
    static constexpr int MostSteps = 20;

private:
    void LoadFrom(const CXmlElement& root);
    void RemoveAllChecks();
    void DiscardStepsAhead();
    CCheck* CheckOfSnapshot(const CCheck& snapshot) const;
    CCheck* CheckOfStep(int index) const;
    bool SwapWithSnapshot(unsigned sequence, CCheck** snapshotSlot);
    bool TakeStep(int index, bool isUndo);

    std::vector<CCheck*> m_stepChecks; // the check of each step, not owned; null once it was removed
    int m_droppedSteps = 0;
};
