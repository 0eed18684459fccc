#include "model/Check.h"

#include "engines/EnumEngine.h"
#include "engines/UnitConvertor.h"
#include "model/CheckTypes.h"
#include "model/ParameterCompare.h"
#include "model/ParameterValue.h"
#include "platform/LanguageLibrary.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(modelLog, "ruleward.model", QtWarningMsg)

constexpr MQC_CheckType_e DraftingStandard = 101;
constexpr MQC_CheckType_e MisalignedConcentricMates = 608;
constexpr unsigned ChoicesId = 1578;
constexpr unsigned CustomTextId = 0;
constexpr int DraftingStandardList = 4;
constexpr long CustomChoice = 8;

} // namespace

CCheck::CCheck(MQC_CheckType_e type, unsigned sequence, unsigned status, unsigned lifeStatus,
               unsigned criticality)
    : Type(type), Sequence(sequence), Status(status), LifeStatus(lifeStatus), Criticality(criticality) {
    if (type == MisalignedConcentricMates)
        qCDebug(modelLog, "Populate_MisalignConcentricCheck Entered \n");
    const CheckTypeDefinition* definition = FindCheckType(type);
    if (!definition)
        return;
    Name = LoadString(definition->nameText);
    for (const ParameterDefinition& row : definition->parameters)
        Parameters.Add(CreateParameter(row.dataType, row.id, row.op, row.parameterType, row.flag).release());
}

CCheck::~CCheck() {
    for (CParameterEntry* entry : Parameters)
        delete entry;
}

CCheck& CCheck::CopyFrom(const CCheck& source) {
    Sequence = source.Sequence;
    Type = source.Type;
    Links = source.Links;
    Name = source.Name;
    Criticality = source.Criticality;
    CopyParametersFrom(source);
    return *this;
}

void CCheck::CopyParametersFrom(const CCheck& source) {
    for (int i = 0; i < Parameters.Count && i < source.Parameters.Count; ++i)
        if (Parameters[i] && source.Parameters[i])
            AssignParameter(*source.Parameters[i], *Parameters[i]);
}

bool CCheck::ApplyParametersTo(CCheck& target) const {
    bool changed = false;
    for (int i = 0; i < Parameters.Count && i < target.Parameters.Count; ++i)
        if (Parameters[i] && target.Parameters[i])
            changed |= ApplyParameter(*Parameters[i], *target.Parameters[i]);
    return changed;
}

bool CCheck::ApplyTo(CCheck& target) {
    target.Name = Name;
    bool changed = ApplyParametersTo(target);
    changed |= target.Criticality != Criticality;
    target.Criticality = Criticality;
    return changed;
}

CParameterEntry* CCheck::FindParameter(unsigned id) const {
    for (CParameterEntry* entry : Parameters)
        if (entry && entry->ID == id)
            return entry;
    return nullptr;
}

template <class T> CParameter<T>* CCheck::Typed(unsigned id, int dataType) const {
    const CParameterEntry* entry = FindParameter(id);
    if (!entry || entry->DataType != dataType)
        return nullptr;
    return static_cast<CParameter<T>*>(entry->Parameter.get());
}

CParameter<int>* CCheck::GetIntParameter(unsigned id) const {
    return Typed<int>(id, DataInt);
}
CParameter<long>* CCheck::GetLongParameter(unsigned id) const {
    return Typed<long>(id, DataLong);
}
CParameter<bool>* CCheck::GetBoolParameter(unsigned id) const {
    return Typed<bool>(id, DataBool);
}
CParameter<double>* CCheck::GetDoubleParameter(unsigned id) const {
    return Typed<double>(id, DataDouble);
}
CParameter<CString*>* CCheck::GetStringParameter(unsigned id) const {
    return Typed<CString*>(id, DataText);
}
CParameter<COleDateTime*>* CCheck::GetDateParameter(unsigned id) const {
    return Typed<COleDateTime*>(id, DataDate);
}
CParameter<unsigned long>* CCheck::GetULongParameter(unsigned id) const {
    return Typed<unsigned long>(id, DataUnsigned);
}

void CCheck::ConvertUnits(int oldLength, int newLength, int oldAngle, int newAngle) {
    const CUnitConvertor convertor;
    const auto length = [&](double value) {
        return convertor.Convert(value, DimensionLength, static_cast<unsigned>(oldLength),
                                 static_cast<unsigned>(newLength));
    };
    for (const CParameterEntry* entry : Parameters) {
        if (!entry || entry->DataType != DataDouble)
            continue;
        auto& parameter = static_cast<CParameter<double>&>(*entry->Parameter);
        for (double& value : parameter.Values) {
            if (parameter.ParameterType == 1)
                value = length(value);
            else if (parameter.ParameterType == 31)
                value = length(length(length(value)));
            else if (parameter.ParameterType == 2)
                value = convertor.Convert(value, DimensionAngle, static_cast<unsigned>(oldAngle),
                                          static_cast<unsigned>(newAngle));
        }
    }
}

bool CCheck::IsACSupported() const {
    return IsAutoCorrectable(Type);
}

void CCheck::SetCorrectionKind(int kind) {
    CorrectionKind = static_cast<unsigned>(kind);
    for (const CParameterEntry* entry : Parameters)
        VisitParameter(*entry, [kind](auto& parameter) { parameter.CorrectionKind = kind; });
}

int CCheck::GetChoiceTexts(CStringArray& outTexts, CString& outCorrectionText) const {
    const CParameter<long>* choices = GetLongParameter(ChoicesId);
    const CParameter<CString*>* custom = GetStringParameter(CustomTextId);
    const CEnumEngine engine;
    const auto textOf = [&](long code) {
        CString text;
        if (code < CustomChoice)
            engine.GetDisplayString(DraftingStandardList, static_cast<unsigned long>(code), text);
        else if (code == CustomChoice && custom && custom->Values.Count > 0 && custom->Values[0])
            text = *custom->Values[0];
        return text;
    };
    if (!choices)
        return static_cast<int>(CorrectionKind);
    for (const long code : choices->Values)
        if (code < CustomChoice || (code == CustomChoice && custom && custom->Values.Count > 0))
            outTexts.append(textOf(code));
    if (choices->CorrectionKind == CorrectionFixed) {
        outCorrectionText = textOf(choices->Correction);
        if (choices->Correction == CustomChoice)
            return 0;
    }
    return static_cast<int>(CorrectionKind);
}

void CCheck::RemoveParameter(unsigned id) {
    CParameterEntry* entry = FindParameter(id);
    Parameters.Remove(entry);
    delete entry;
}

void CCheck::ConvertChoicesToText() {
    if (Type != DraftingStandard)
        return;
    CStringArray texts;
    CString correction;
    const int kind = GetChoiceTexts(texts, correction);
    RemoveParameter(ChoicesId);
    auto entry = CreateParameter(DataText, ChoicesId, OpOneOf, 0, false);
    auto& parameter = static_cast<CParameter<CString*>&>(*entry->Parameter);
    for (const CString& text : texts)
        parameter.Values.Add(new CString(text));
    CorrectionKind = static_cast<unsigned>(kind);
    parameter.CorrectionKind = kind;
    if (!correction.isEmpty())
        parameter.SetCorrection(new CString(correction));
    Parameters.Add(entry.release());
    RemoveParameter(CustomTextId);
}
