// Random checks that the panes of units, precision, alignment and the like can show in full: values in the
// order of their rows and boxes, and a correction for all that is in force.
#pragma once

#include "model/CheckTypes.h"
#include "support/RandomStandard.h"

#include <algorithm>
#include <map>
#include <set>

class ValueFillings {
public:
    explicit ValueFillings(unsigned seed) : m_random(seed) {}

    static constexpr MQC_CheckType_e Types[] = {108, 405, 409, 408, 314, 123, 312};

    std::unique_ptr<CCheck> Check(MQC_CheckType_e type) {
        auto check = std::make_unique<CCheck>(type, 0, 0, 0, Below(4));
        switch (type) {
        case 108: FillDocumentUnits(*check); break;
        case 405: FillDimensionUnits(*check); break;
        case 409: FillPrecision(*check); break;
        case 408:
            for (const unsigned id : {2274u, 2275u, 2276u})
                FillChoice(*check, id, {1, 2, 3});
            FillChoice(*check, 2277, {2, 4, 3, 1});
            break;
        case 314: FillGaps(*check); break;
        case 123: FillChoice(*check, 140, {0, 1, 2, 3, 4}); break;
        default: FillChoice(*check, 1742, {0, 2, 1, 3, 4}); break;
        }
        return check;
    }

    std::set<unsigned> operators;
    std::map<unsigned, std::set<long>> values; // of choices, by parameter

private:
    using Codes = std::vector<long>;

    unsigned Below(std::size_t count) { return m_random.Below(static_cast<unsigned>(count)); }
    bool Chance(unsigned percent) { return m_random.Chance(percent); }
    double Length() { return Below(9'999'999) / (Chance(50) ? 1e6 : 100.0); }

    template <class T> void Fill(CParameter<T>& parameter, unsigned op, const std::vector<T>& wanted) {
        parameter.Operator = op;
        for (const T value : wanted)
            parameter.Values.Add(value);
        operators.insert(op);
    }
    template <class T>
    void Fill(CParameter<T>& parameter, unsigned op, const std::vector<T>& wanted, T correction) {
        Fill(parameter, op, wanted);
        parameter.SetCorrection(correction);
        parameter.CorrectionKind = CorrectionFixed;
    }
    void FillChoice(CCheck& check, unsigned id, const Codes& codes) {
        Codes chosen;
        for (const long code : codes)
            if (Chance(40))
                chosen.push_back(code);
        if (chosen.empty())
            return;
        values[id].insert(chosen.begin(), chosen.end());
        Fill(*check.GetLongParameter(id), OpOneOf, chosen, chosen[Below(chosen.size())]);
    }
    void FillPair(CCheck& check, unsigned id) {
        constexpr unsigned all[] = {OpNone, OpEqual, OpBelow, OpAbove, OpAtLeast, OpAtMost};
        const unsigned op = all[Below(std::size(all))];
        if (op == OpNone)
            return;
        const long bound = op == OpBelow ? 1 + Below(8) : Below(9);
        values[id].insert(bound);
        const long above = bound + 1 + Below(3);
        const long correction = op == OpEqual    ? bound
                                : op == OpBelow  ? Below(static_cast<std::size_t>(bound))
                                : op == OpAtMost ? Below(static_cast<std::size_t>(bound) + 1)
                                                 : above;
        Fill(*check.GetLongParameter(id), op, {bound}, correction);
    }
    void FillYesNo(CCheck& check, unsigned id) {
        if (const int value = static_cast<int>(Below(3)); value < 2) {
            values[id].insert(value);
            Fill(*check.GetIntParameter(id), OpOneOf, {value}, value);
        }
    }
    void FillLength(CCheck& check, unsigned first) {
        FillChoice(check, first, {6, 7, 8, 0, 1, 2, 10, 9, 3, 4, 5});
        FillPair(check, first + 1);
        FillChoice(check, first + 2, {1, 2});
        if (check.GetLongParameter(first + 2)->Values.Count == 0 ||
            *(check.GetLongParameter(first + 2)->Values.end() - 1) != 2)
            return;
        FillPair(check, first + 3);
        FillYesNo(check, first + 4);
    }
    void FillAngle(CCheck& check) {
        FillChoice(check, 1674, {0, 1, 2, 3});
        FillPair(check, 1675);
    }
    void FillDocumentUnits(CCheck& check) {
        FillChoice(check, 1663, {1, 4, 3, 2, 5});
        const auto& systems = check.GetLongParameter(1663)->Values;
        if (std::ranges::find(systems, 4) != systems.end()) {
            FillLength(check, 1664);
            FillChoice(check, 1676, {6, 7, 8, 0, 1, 2, 10, 9, 3, 4, 5});
            FillPair(check, 1680);
            FillChoice(check, 1677, {1, 2, 3, 4});
            FillChoice(check, 1678, {1, 2, 3, 4, 5, 6, 7, 9, 10});
            FillChoice(check, 1679, {1, 2, 3, 4, 5, 6});
        }
        FillLength(check, 1669);
        FillAngle(check);
    }
    void FillDimensionUnits(CCheck& check) {
        if (FillDocumentSetting(check))
            return;
        FillLength(check, 1664);
        FillAngle(check);
    }
    bool FillDocumentSetting(CCheck& check) {
        if (!Chance(15))
            return false;
        Fill(*check.GetIntParameter(1690), OpEqual, {1}, 1);
        return true;
    }
    void FillPrecision(CCheck& check) {
        for (const unsigned id : {2281u, 2282u, 2283u, 2284u, 2404u, 2405u}) {
            const long row = Below(9);
            values[id].insert(row);
            Fill(*check.GetLongParameter(id), OpEqual, {row}, row);
        }
        Codes compared;
        for (const long code : {11, 12})
            if (Chance(60))
                compared.push_back(code);
        compared.push_back(Chance(50) ? 10 : 9);
        values[2314].insert(compared.begin(), compared.end());
        Fill(*check.GetLongParameter(2314), OpOneOf, compared);
        if (compared.back() == 10)
            for (const unsigned id : {2307u, 2308u, 2309u, 2310u})
                Fill(*check.GetDoubleParameter(id), OpEqual, {Length()});
    }
    void FillGaps(CCheck& check) {
        if (FillDocumentSetting(check))
            return;
        for (const unsigned id : {2293u, 2294u}) {
            const double value = Length();
            Fill(*check.GetDoubleParameter(id), OpEqual, {value}, value);
        }
    }

    RandomStandard m_random;
};
