// Fills parameters of checks for a test.
#pragma once

#include "model/CheckManager.h"
#include "model/ParameterValue.h"

inline void Set(CCheck& check, unsigned id, unsigned op, const CStringArray& values,
                const char* correction = nullptr) {
    VisitParameter(*check.FindParameter(id), [&]<class T>(CParameter<T>& parameter) {
        parameter.Operator = op;
        for (const CString& value : values)
            parameter.Values.Add(ValueForm<T>::Parse(value));
        if (!correction)
            return;
        parameter.CorrectionKind = CorrectionFixed;
        parameter.SetCorrection(ValueForm<T>::Parse(correction));
    });
}

inline CCheck& AddChild(CCheck& container) {
    auto child = dynamic_cast<CCheckManager&>(container).MakeChild();
    CCheck& added = *child;
    container.Children.Add(child.release());
    return added;
}
