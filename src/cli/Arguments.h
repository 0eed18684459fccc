// The words of a command line, sorted into options and operands.
#pragma once

#include "platform/Text.h"

#include <QHash>
#include <span>

struct OptionRow {
    const char* name;  // "--all", or "-o"
    const char* value; // what follows it, such as "FOLDER"; null for a switch
    const char* help;
};

struct Arguments {
    CStringArray operands;
    QHash<CString, CString> options; // by name; a switch has the empty text

    bool Has(const char* name) const { return options.contains(QLatin1String(name)); }
    CString Value(const char* name) const { return options.value(QLatin1String(name)); }
};

// False, with `problem` in words, for an option that is not in the table or lacks its value. "--" ends the
// options; "--name=value" counts as "--name value".
bool ParseArguments(const CStringArray& words, std::span<const OptionRow> options, Arguments& out,
                    CString& problem);
