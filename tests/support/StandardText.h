// A standard in its stored form as text, and back.
#pragma once

#include "model/Standard.h"

#include <gtest/gtest.h>

// The text of the file that saving would write. As in saving, parameters that do not fit are corrected.
CString TextOf(const CStandard& standard);

// Reads a text that is expected to be readable into a standard.
void ReadText(const CString& text, CStandard& standard);

// The text of the live checks alone, as if none had ever been edited: what a user sees of a standard.
CString LiveTextOf(const CStandard& standard);

// All checks, or the live ones, by number.
// A new check as a command adds it.
void Insert(CStandard& standard, int type);
CheckList AllOf(const CStandard& standard);
CheckList LiveOf(const CStandard& standard);
std::vector<unsigned> NumbersOf(const CheckList& checks);
