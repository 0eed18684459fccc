// The length unit of the document in front, for those engines that hold no document of their own.
// Used from the user-interface thread only.
#pragma once

#include <functional>

constexpr int NoActiveUnit = -2; // what stands for the unit while there is no document

// The unit code, 0..10, of the document in front; `NoActiveUnit` without one.
int ActiveLengthUnit();

// The shell names here where the unit is to be had; an empty function takes that back.
void SetActiveLengthUnitProvider(std::function<int()> provider);
