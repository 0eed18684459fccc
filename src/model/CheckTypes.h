// What a new check of each type holds. A file or a pane only ever fills these parameters.
#pragma once

#include "model/Parameter.h"

#include <span>

// The number of a check type is what files hold and every switch tests; 0 is a tree node of CStandard.
using MQC_CheckType_e = int;

struct ParameterDefinition {
    unsigned id; // also the number of the label's text
    DataTypeCode dataType;
    unsigned parameterType;
    OperatorCode op;
    bool flag;
};

struct CheckTypeDefinition {
    MQC_CheckType_e type;
    unsigned nameText;
    std::span<const ParameterDefinition> parameters;
};

// Null for a code without name and parameters.
const CheckTypeDefinition* FindCheckType(MQC_CheckType_e type);
std::span<const CheckTypeDefinition> AllCheckTypes(); // in the order of the codes

// A check that may stand more than once is a container of checks of one fixed type.
struct ContainerType {
    MQC_CheckType_e container;
    MQC_CheckType_e child;
    unsigned nameText;
};

// Null for a code that is no container, or no check that stands in one.
const ContainerType* FindContainerType(MQC_CheckType_e type);
const ContainerType* FindContainerOfChild(MQC_CheckType_e child);

// The number of the summary text of a type, 0 for a type without one.
unsigned SummaryTextOf(MQC_CheckType_e type);

// Whether the checker can correct a failing item of a type.
bool IsAutoCorrectable(MQC_CheckType_e type);
