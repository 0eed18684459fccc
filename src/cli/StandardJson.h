// A standard as JSON, for programs.
#pragma once

#include "cli/OpenedStandard.h"

CString StandardJson(const OpenedStandard& opened, const CheckList& checks);
