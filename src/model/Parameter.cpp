#include "model/Parameter.h"

#include "model/Check.h"
#include "model/ParameterValue.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"

template <class T> void CParameter<T>::ClearValues() {
    for (const T& value : Values)
        FreeValue(value);
    Values.Clear();
}

template <class T> void CParameter<T>::SetCorrection(T value) {
    FreeValue(Correction);
    Correction = value;
}

template <class T> void CParameter<T>::FreeValues() {
    for (const T& value : Values)
        FreeValue(value);
    FreeValue(Correction);
}

template <class T> void CParameter<T>::CopyValues(const CParameter& other) {
    FreeValues();
    Values = other.Values;
    for (T& value : Values)
        value = CopyValue(value);
    Correction = CopyValue(other.Correction);
}

template class CParameter<int>;
template class CParameter<long>;
template class CParameter<bool>;
template class CParameter<double>;
template class CParameter<CString*>;
template class CParameter<COleDateTime*>;
template class CParameter<unsigned long>;
template class CParameter<CCheck*>;

namespace {

std::unique_ptr<CParameterBase> MakeParameter(int dataType) {
    switch (dataType) {
    case DataInt: return std::make_unique<CParameter<int>>();
    case DataLong: return std::make_unique<CParameter<long>>();
    case DataBool: return std::make_unique<CParameter<bool>>();
    case DataDouble: return std::make_unique<CParameter<double>>();
    case DataText: return std::make_unique<CParameter<CString*>>();
    case DataDate: return std::make_unique<CParameter<COleDateTime*>>();
    case DataUnsigned: return std::make_unique<CParameter<unsigned long>>();
    default: ReportIllegalDataType(); return nullptr;
    }
}

} // namespace

void ReportIllegalDataType() {
    ShowMessage("Illegal Param DataType Defined");
}

std::unique_ptr<CParameterEntry> CreateParameter(int dataType, unsigned id, unsigned op,
                                                 unsigned parameterType, bool flag) {
    auto entry = std::make_unique<CParameterEntry>();
    entry->DataType = dataType;
    entry->ID = id;
    entry->Flag = flag;
    entry->Parameter = MakeParameter(dataType);
    if (!entry->Parameter)
        return entry;
    entry->Parameter->Name = LoadString(id);
    entry->Parameter->ID = id;
    entry->Parameter->Operator = op;
    entry->Parameter->ParameterType = parameterType;
    return entry;
}
