// Numbers that many tests speak of, by name.
#pragma once

#include "model/CheckTypes.h"

inline constexpr MQC_CheckType_e Drafting = 101, Arrowheads = 102, References = 107, NoteFont = 109,
                                 Datum = 301, Features = 701;
// The commands that add them.
inline constexpr unsigned AddDrafting = 32771, AddArrowheads = 32772, AddReferences = 32775,
                          AddNoteFont = 32896, AddDatum = 32778, AddFeatures = 32893;
// Controls of the drafting standard.
inline constexpr int OwnStandard = 1020, NameOfStandard = 1315;
// Units as a standard holds them.
inline constexpr int Millimetre = 0, Centimetre = 1, Metre = 2, Inch = 3;
inline constexpr int Degree = 0, Radian = 3;
