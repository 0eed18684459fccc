// The command line over the core. Exit codes: 0 done, 1 findings, 2 wrong usage, 3 could not do it.
#pragma once

#include "cli/Console.h"
#include "platform/Text.h"

// Runs kvstd on the words after the program's name. `moduleFolder` holds the folder of language libraries.
int RunCommandLine(const CStringArray& words, const CString& moduleFolder, Console& console);
