#include "support/FilledStandard.h"

#include "engines/EnumTables.h"
#include "engines/ParameterKinds.h"
#include "model/CheckTypes.h"
#include "model/ParameterValue.h"

namespace {

constexpr OperatorCode NumberOperators[] = {OpOneOf, OpEqual, OpAtLeast, OpBetween, OpNoneOf,
                                            OpBelow, OpAbove, OpAtMost,  OpNotEqual};
constexpr OperatorCode TextOperators[] = {OpOneOf, OpEqual, OpContains, OpBeginsWith, OpEndsWith};

// Deals operators and values out in turn, so that every run gives the same standard.
struct Dealer {
    size_t turn = 0;

    OperatorCode Operator(const CParameterEntry& entry) {
        ++turn;
        if (entry.DataType == DataText)
            return TextOperators[turn % std::size(TextOperators)];
        const bool isList = !ValueListOf(Kind(entry)).texts.empty() || Kind(entry) == KindColor;
        return isList ? OpOneOf : NumberOperators[turn % std::size(NumberOperators)];
    }

    CStringArray Values(const CParameterEntry& entry, OperatorCode op) const {
        const ValueList& list = ValueListOf(Kind(entry));
        CStringArray codes;
        for (const IdRun& run : list.texts)
            for (std::uint32_t i = 0; i < run.count && codes.size() < 3; ++i)
                codes.append(QString::number(run.firstKey + i));
        if (entry.DataType == DataBool)
            return {"1"};
        if (Kind(entry) == KindColor)
            return {"255", "65280"};
        if (!codes.isEmpty())
            return codes;
        if (entry.DataType == DataText)
            return {"Plate & <Sheet>", "Maß 2"};
        return op == OpBetween ? CStringArray{"1.5", "20"} : CStringArray{"2.5"};
    }

    static int Kind(const CParameterEntry& entry) { return static_cast<int>(entry.Parameter->ParameterType); }
};

void Fill(CCheck& check, Dealer& dealer) {
    for (const CParameterEntry* entry : check.Parameters) {
        const OperatorCode op = dealer.Operator(*entry);
        SetParameter(check, entry->ID, op, dealer.Values(*entry, op));
    }
}

} // namespace

void SetParameter(CCheck& check, unsigned id, OperatorCode op, const CStringArray& values) {
    VisitParameter(*check.FindParameter(id), [&]<class T>(CParameter<T>& parameter) {
        parameter.Operator = op;
        parameter.ClearValues();
        for (const CString& value : values)
            parameter.Values.Add(ValueForm<T>::Parse(value));
        if (!values.isEmpty())
            parameter.SetCorrection(ValueForm<T>::Parse(values.first()));
    });
}

CCheck& AddCheckWith(CStandard& standard, MQC_CheckType_e type, unsigned id, OperatorCode op,
                     const CStringArray& values) {
    auto check = CStandard::MakeCheck(type);
    CCheck& added = *check;
    SetParameter(added, id, op, values);
    unsigned sequence = 0;
    standard.InsertCheck(std::move(check), sequence);
    return added;
}

void FillStandard(CStandard& standard) {
    standard.Name = "/home/anna/Plate rules.kvstd";
    standard.Createdby = "designer";
    standard.CreatedOn = "03/05/2026 14:07:09";
    standard.Unit = 0;
    standard.AngularUnit = 0;
    Dealer dealer;
    for (const CheckTypeDefinition& definition : AllCheckTypes()) {
        auto check = CStandard::MakeCheck(definition.type);
        Fill(*check, dealer);
        auto* container = dynamic_cast<CCheckManager*>(check.get());
        for (int i = 0; container && i < 2; ++i) {
            auto child = container->MakeChild();
            Fill(*child, dealer);
            container->Children.Add(child.release());
        }
        check->Criticality = static_cast<unsigned>(dealer.turn % 4);
        unsigned sequence = 0;
        standard.InsertCheck(std::move(check), sequence);
    }
}
