// One rule of a standard: a check of a type of the catalogue with its fixed list of parameters.
#pragma once

#include "files/XmlElement.h"
#include "model/CheckTypes.h"
#include "model/Parameter.h"

// `LifeStatus` of a live check, and the kind of step of a snapshot in the edit history.
enum LifeStatusCode : unsigned {
    LifeInForce = 0, // snapshot: the check was added
    LifeDeleted = 1, // kept in standard and file, but hidden; snapshot: the check was deleted
    LifeEdited = 2,
    LifeMoved = 3, // in a snapshot only
    LifeUnreadable = 0xFFFFFFFFu
};

class CCheck {
public:
    // Loads the name and appends the parameters of the type. A type that is not known has neither.
    CCheck(MQC_CheckType_e type, unsigned sequence, unsigned status, unsigned lifeStatus,
           unsigned criticality);
    virtual ~CCheck();
    CCheck(const CCheck&) = delete;
    CCheck& operator=(const CCheck&) = delete;

    // Copies all but `Status`, `LifeStatus`, `CorrectionKind` and `Children`.
    virtual CCheck& CopyFrom(const CCheck& source);
    virtual void ReadXml(const CXmlElement& element);
    // A new element of the current document. Parameters whose operator and values do not fit are
    // corrected in the check itself.
    virtual std::unique_ptr<CXmlElement> WriteXml();
    virtual void HookA() {}
    // Copies name, parameters and criticality onto a check of the same type; true if anything differed.
    virtual bool ApplyTo(CCheck& target);
    virtual void HookB() {}
    virtual int HookC() { return -1; }
    // The first entry with this ID, or null.
    virtual CParameterEntry* FindParameter(unsigned id) const;
    virtual int HookD() { return 0; }
    virtual int HookE() { return 1; }
    virtual void HookF() {}
    // Converts the values, not the corrections, of lengths, angles and volumes. Unit codes of CUnitConvertor.
    virtual void ConvertUnits(int oldLength, int newLength, int oldAngle, int newAngle);

    // Each finds by ID; null also when the parameter has another data type.
    CParameter<int>* GetIntParameter(unsigned id) const;
    CParameter<long>* GetLongParameter(unsigned id) const;
    CParameter<bool>* GetBoolParameter(unsigned id) const;
    CParameter<double>* GetDoubleParameter(unsigned id) const;
    CParameter<CString*>* GetStringParameter(unsigned id) const;
    CParameter<COleDateTime*>* GetDateParameter(unsigned id) const;
    CParameter<unsigned long>* GetULongParameter(unsigned id) const;

    // Whether the checker can correct a failing item of this type.
    bool IsACSupported() const;
    // Sets the kind of the check and of every parameter.
    void SetCorrectionKind(int kind);
    // Overwrites the attribute `Summary` for the types that have a summary text.
    void WriteSummary(CXmlElement& element) const;

    // For type 101: the texts of the coded list 1578, and of its correction. Result: the kind of the
    // correction.
    int GetChoiceTexts(CStringArray& outTexts, CString& outCorrectionText) const;
    // Replaces the coded list by its texts, for display. Only for a scratch copy: the model keeps the codes.
    void ConvertChoicesToText();

    MQC_CheckType_e Type;
    CString Name;
    CParameter<CCheck*> Links; // the two children of a tree node, not owned; empty in a real check
    unsigned Sequence;         // the number within the standard, from 1; 0 until it is added
    unsigned Status;
    unsigned LifeStatus;                     // LifeStatusCode
    CGrowArray<CParameterEntry*> Parameters; // owned
    unsigned Criticality;                    // 0 to 3; any other counts as 1
    CGrowArray<CCheck*> Children;            // owned; empty except in CCheckManager
    unsigned CorrectionKind = 0;

protected:
    // Steps that plain checks and containers share.
    bool ApplyParametersTo(CCheck& target) const;
    void CopyParametersFrom(const CCheck& source);
    void ReadParameters(const CXmlElement& element);
    void WriteParameters(CXmlElement& element);

private:
    template <class T> CParameter<T>* Typed(unsigned id, int dataType) const;
    void RemoveParameter(unsigned id);
};
