// Help in its four forms, all made from the table of commands.
#pragma once

#include "cli/CommandTable.h"

CString UsageText();                          // of the program
CString UsageText(const CommandRow& command); // of one command
CString ManPage();                            // troff, section 1
CString BashCompletion();
