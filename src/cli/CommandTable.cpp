#include "cli/CommandTable.h"

namespace {

constexpr OptionRow ShowOptions[] = {
    {"--all", nullptr, "Show deleted checks too."},
    {"--json", nullptr, "Print JSON, for programs."},
};
constexpr OptionRow MergeOptions[] = {{"-o", "OUT", "The standard to write."}};
constexpr OptionRow ReportOptions[] = {
    {"-o", "FOLDER", "The folder to write to; it is made if it is missing."},
    {"--html", nullptr, "Write the page as HTML too."},
    {"--pdf", nullptr, "Write the page as PDF too."},
};
constexpr OptionRow ConvertOptions[] = {
    {"-o", "OUT", "The standard to write."},
    {"--length", "UNIT", "The new unit of lengths: mm, cm, m, in, ft, ftin, angstrom, nm, um, mil or uin."},
    {"--angle", "UNIT", "The new unit of angles: deg or rad."},
};
constexpr OptionRow CatalogueOptions[] = {{"--json", nullptr, "Print JSON, for programs."}};

constexpr CommandRow Commands[] = {
    {"show", "FILE", 1, 1, ShowOptions, "Print the header and the checks of a standard.",
     "Checks stand in number order. Each parameter in force is shown with its operator, its values with "
     "their units, the correction that a failing item gets, and the criticality of the check.",
     RunShow},
    {"validate",
     "FILE...",
     1,
     -1,
     {},
     "Tell what would be refused, dropped or repaired on opening.",
     "Opens each file as the tool would and names file, check and reason of every finding. The files are "
     "not changed.",
     RunValidate},
    {"merge", "FILE FILE...", 2, -1, MergeOptions, "Merge standards into one; a later file wins.",
     "A check of a type that stands in several files is taken from the last one. Lengths and volumes are "
     "converted to the units of the first file. Prints a line for each check that was replaced.",
     RunMerge},
    {"report", "FILE", 1, 1, ReportOptions, "Write the report of a standard.",
     "Writes the report as XML, its stylesheet and its pictures; with options also the page itself.",
     RunReport},
    {"pack",
     "FOLDER OUT",
     2,
     2,
     {},
     "Pack a folder into a standard file.",
     "The folder holds the XML of the standard, as its only .kvstd file, and the folders of its checks.",
     RunPack},
    {"unpack",
     "FILE FOLDER",
     2,
     2,
     {},
     "Unpack a standard file into a folder.",
     "The folder is made if it is missing, and must be empty otherwise.",
     RunUnpack},
    {"convert", "FILE", 1, 1, ConvertOptions, "Change the units of a standard.",
     "Converts the values of every check, deleted ones included. Corrections stay as they are; a warning "
     "names "
     "each that is now in another unit.",
     RunConvert},
    {"catalogue", "", 0, 0, CatalogueOptions, "Print what a standard may hold.",
     "Groups, check types with their parameters, and the values of each list.", RunCatalogue},
};

constexpr OptionRow Globals[] = {
    {"--language", "NAME", "Use the texts of this language, such as German."},
    {"--help", nullptr, "Print this help, or that of the command."},
    {"--version", nullptr, "Print the version."},
};

} // namespace

std::span<const CommandRow> CommandTable() {
    return Commands;
}
std::span<const OptionRow> GlobalOptions() {
    return Globals;
}

const CommandRow* FindCommand(const CString& name) {
    for (const CommandRow& command : Commands)
        if (name == QLatin1String(command.name))
            return &command;
    return nullptr;
}
