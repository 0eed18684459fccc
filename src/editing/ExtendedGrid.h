// The grid of the layer check, whose cells open windows of their own instead of editors.
#pragma once

#include "editing/GridClass.h"

class CxExtendedGrid : public CGridClass {
public:
    using CGridClass::CGridClass;
};
