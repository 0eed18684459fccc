#include "cli/CommandTable.h"
#include "cli/OpenedStandard.h"
#include "engines/ParameterKinds.h"
#include "model/ParameterWording.h"

#include <algorithm>

namespace {

struct UnitName {
    const char* name;
    int code;
};

// The codes of the value lists of length and angle units.
constexpr UnitName LengthUnits[] = {{"mm", 0}, {"cm", 1},   {"m", 2},        {"in", 3},
                                    {"ft", 4}, {"ftin", 5}, {"angstrom", 6}, {"nm", 7},
                                    {"um", 8}, {"mil", 9},  {"uin", 10}};
constexpr UnitName AngleUnits[] = {{"deg", 0}, {"rad", 3}};

// Leaves `code` where the option is not given; false for a unit that is not known.
bool ReadUnit(const Arguments& arguments, const char* option, std::span<const UnitName> units, int& code) {
    if (!arguments.Has(option))
        return true;
    for (const UnitName& unit : units)
        if (arguments.Value(option) == QLatin1String(unit.name)) {
            code = unit.code;
            return true;
        }
    return false;
}

bool IsKnown(std::span<const UnitName> units, int code) {
    return std::any_of(units.begin(), units.end(),
                       [code](const UnitName& unit) { return unit.code == code; });
}

int WrongUnit(const CString& problem, Console& console) {
    console.Error(problem);
    console.Error("try \"kvstd convert --help\"");
    return ExitUsage;
}

// The corrections that keep their figures, and mean something else in the new unit.
class CorrectionWarnings {
public:
    CorrectionWarnings(const CString& path, const CStandard& standard, Console& console)
        : m_path(path), m_standard(standard), m_console(console) {}

    void Tell(bool lengthChanged, bool angleChanged) {
        m_lengthChanged = lengthChanged;
        m_angleChanged = angleChanged;
        CheckList checks;
        m_standard.GetAllChecks(checks);
        for (const CCheck* check : checks) {
            TellOf(*check, check->Name);
            for (const CCheck* child : check->Children)
                TellOf(*child, check->Name);
        }
    }

private:
    bool IsConcerned(unsigned kind) const {
        return kind == KindAngle ? m_angleChanged
                                 : (kind == KindLength || kind == KindVolume) && m_lengthChanged;
    }

    void TellOf(const CCheck& check, const CString& name) {
        for (const CParameterEntry* entry : check.Parameters) {
            const auto* parameter = dynamic_cast<const CParameter<double>*>(entry->Parameter.get());
            if (!parameter || !IsConcerned(parameter->ParameterType) || parameter->Correction == 0 ||
                parameter->CorrectionKind != CorrectionFixed)
                continue;
            const ParameterRow row = WordParameter(*entry, m_standard.Unit, m_standard.AngularUnit);
            if (row.form != ParameterRow::None)
                m_console.Warn(CString("%1: %2: the correction of \"%3\" is not converted: it is now %4")
                                   .arg(m_path, name, row.parameter, row.correction));
        }
    }

    const CString& m_path;
    const CStandard& m_standard;
    Console& m_console;
    bool m_lengthChanged = false;
    bool m_angleChanged = false;
};

} // namespace

int RunConvert(const Arguments& arguments, Console& console) {
    const CString path = arguments.operands[0];
    const CString target = arguments.Value("-o");
    int length = CStandard::UnitNotSet;
    int angle = CStandard::UnitNotSet;
    if (!ReadUnit(arguments, "--length", LengthUnits, length))
        return WrongUnit("unknown unit " + arguments.Value("--length"), console);
    if (!ReadUnit(arguments, "--angle", AngleUnits, angle))
        return WrongUnit("unknown unit " + arguments.Value("--angle"), console);
    if (length == CStandard::UnitNotSet && angle == CStandard::UnitNotSet)
        return WrongUnit("option --length or --angle is needed", console);
    OpenedStandard opened;
    if (!opened.Open(path)) {
        console.Error(path, opened.Reason);
        return ExitFailed;
    }
    CStandard& standard = opened.Standard;
    if ((length >= 0 && !IsKnown(LengthUnits, standard.Unit)) ||
        (angle >= 0 && !IsKnown(AngleUnits, standard.AngularUnit))) {
        console.Error(path, "the standard does not say in which unit its values are");
        return ExitFailed;
    }
    const int oldLength = standard.Unit;
    const int oldAngle = standard.AngularUnit;
    standard.ChangeUnits(length < 0 ? oldLength : length, angle < 0 ? oldAngle : angle);
    CString reason;
    const bool saved = SaveOpenedStandard(opened, target, reason);
    console.TellOfSave(target, saved, reason);
    if (!saved)
        return ExitFailed;
    CorrectionWarnings(path, standard, console)
        .Tell(standard.Unit != oldLength, standard.AngularUnit != oldAngle);
    return ExitDone;
}
