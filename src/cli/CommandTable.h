// The one table of commands. Usage, help, man page and shell completion are all made from it.
#pragma once

#include "cli/Arguments.h"
#include "cli/Console.h"

#include <span>

struct CommandRow {
    const char* name;
    const char* operands; // as it stands in the usage line
    int fewest;
    int most; // of operands; -1 for any number
    std::span<const OptionRow> options;
    const char* summary;
    const char* details;
    int (*run)(const Arguments& arguments, Console& console);
};

std::span<const CommandRow> CommandTable();
std::span<const OptionRow> GlobalOptions();
const CommandRow* FindCommand(const CString& name); // null for an unknown one

int RunShow(const Arguments& arguments, Console& console);
int RunValidate(const Arguments& arguments, Console& console);
int RunMerge(const Arguments& arguments, Console& console);
int RunReport(const Arguments& arguments, Console& console);
int RunPack(const Arguments& arguments, Console& console);
int RunUnpack(const Arguments& arguments, Console& console);
int RunConvert(const Arguments& arguments, Console& console);
int RunCatalogue(const Arguments& arguments, Console& console);
