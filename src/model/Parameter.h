// One typed parameter of a check: operator, expected values and the correction for a failing item.
#pragma once

#include "model/GrowArray.h"
#include "platform/Text.h"

#include <memory>

class CCheck;

// The codes by which the whole program tells the kinds of parameter apart.
enum DataTypeCode {
    DataInt = 1,
    DataLong = 2,
    DataBool = 3,
    DataDouble = 4,
    DataText = 5,
    DataDate = 6,
    DataUnsigned = 7
};

// Comparisons of a parameter. A parameter of operator OpNone or OpLeftOut is not in force.
enum OperatorCode : unsigned {
    OpNone = 0,
    OpBetween = 1,
    OpOneOf = 2,
    OpEqual = 3,
    OpNoneOf = 4,
    OpBelow = 5,
    OpAbove = 6,
    OpAtLeast = 7,
    OpAtMost = 8,
    OpContains = 9,
    OpBeginsWith = 10,
    OpEndsWith = 11,
    OpLeftOut = 12,
    OpTextOnly = 13,
    OpNotEqual = 14
};

// Whether a correction stands in `Correction`.
constexpr int CorrectionFixed = 1;
constexpr int CorrectionAbsent = 2;

// What parameters of all data types share.
class CParameterBase {
public:
    virtual ~CParameterBase() = default;

    CString Name; // the label, in the language in which it was loaded
    unsigned Operator = OpOneOf;
    unsigned ParameterType = 0; // the value list, see CEnumEngine
    CString Remarks;
    unsigned ID = 0; // also the number of the label's text
    int CorrectionKind = CorrectionAbsent;

protected:
    CParameterBase() = default;
    CParameterBase(const CParameterBase&) = default;
    CParameterBase& operator=(const CParameterBase&) = default;
};

// `T` is one of int, long, bool, double, CString*, COleDateTime*, unsigned long, whole numbers always
// within 32 bits; CParameter<CCheck*> holds the links of a tree node. Pointers to texts and dates are
// owned by the parameter.
template <class T> class CParameter : public CParameterBase {
public:
    CParameter() = default;
    CParameter(const CParameter& other) : CParameterBase(other) { CopyValues(other); }
    CParameter& operator=(const CParameter& other) {
        if (this == &other)
            return *this;
        CParameterBase::operator=(other);
        CopyValues(other);
        return *this;
    }
    ~CParameter() override { FreeValues(); }

    // Empties the list; owned values are freed.
    void ClearValues();
    // Takes over the new correction; an owned one before it is freed.
    void SetCorrection(T value);

    CGrowArray<T> Values;
    T Correction = T();

private:
    void CopyValues(const CParameter& other);
    void FreeValues();
};

// A parameter in the list of a check.
class CParameterEntry {
public:
    int DataType = 0; // DataTypeCode
    unsigned ID = 0;
    bool Flag = false;                         // the panes treat a flagged parameter as optional
    std::unique_ptr<CParameterBase> Parameter; // the CParameter<T> of the data type; null for an illegal one
};

// A parameter with its label loaded, without values and correction. A data type outside 1..7 shows the
// message "Illegal Param DataType Defined" and gives an entry without a parameter.
std::unique_ptr<CParameterEntry> CreateParameter(int dataType, unsigned id, unsigned op,
                                                 unsigned parameterType, bool flag);

// Shows the message for a data type that does not exist.
void ReportIllegalDataType();

// Calls `action` with the CParameter<T>& of an entry. False, after the message, for an illegal data type.
template <class Action> bool VisitParameter(const CParameterEntry& entry, Action&& action) {
    CParameterBase* base = entry.Parameter.get();
    switch (base ? entry.DataType : 0) {
    case DataInt: action(static_cast<CParameter<int>&>(*base)); return true;
    case DataLong: action(static_cast<CParameter<long>&>(*base)); return true;
    case DataBool: action(static_cast<CParameter<bool>&>(*base)); return true;
    case DataDouble: action(static_cast<CParameter<double>&>(*base)); return true;
    case DataText: action(static_cast<CParameter<CString*>&>(*base)); return true;
    case DataDate: action(static_cast<CParameter<COleDateTime*>&>(*base)); return true;
    case DataUnsigned: action(static_cast<CParameter<unsigned long>&>(*base)); return true;
    default: ReportIllegalDataType(); return false;
    }
}
