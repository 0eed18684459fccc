#include "cli/CommandTable.h"
#include "cli/OpenedStandard.h"
#include "cli/RowWords.h"
#include "cli/StandardJson.h"
#include "cli/TextTable.h"
#include "engines/ParameterKinds.h"
#include "model/CheckTypes.h"
#include "model/CheckWording.h"
#include "platform/LanguageLibrary.h"

#include <QFileInfo>

namespace {

CString UnitName(int kind, int code) {
    CString text;
    CEnumEngine().GetDisplayString(kind, static_cast<unsigned>(code), text);
    return text.isEmpty() ? CString("not set") : text;
}

CString CriticalityName(unsigned criticality) {
    CString text;
    unsigned long icon = 0;
    CEnumEngine().GetCriticalityTextAndIcon(criticality, text, icon);
    return text;
}

// When and by whom the file was saved, as far as it says.
CString SavedText(const OpenedStandard& opened) {
    const CString on = opened.HeaderText("CreatedOn");
    const CString by = opened.HeaderText("Createdby");
    if (on.isEmpty() && by.isEmpty())
        return "not told";
    return by.isEmpty() ? on : CString(on + " by " + by).trimmed();
}

void PrintHeader(const OpenedStandard& opened, const CString& path, Console& console) {
    CheckList all;
    opened.Standard.GetAllChecks(all);
    const int live = opened.Standard.CountLiveChecks();
    const int deleted = static_cast<int>(all.size()) - live;
    TextTable table;
    table.Add({"Standard:", QFileInfo(path).completeBaseName()});
    table.Add({"File:", path});
    table.Add({"Saved:", SavedText(opened)});
    table.Add({"Version:", CString::number(opened.Version)});
    table.Add({"Units:", UnitName(KindLengthUnit, opened.Standard.Unit) + ", " +
                             UnitName(KindAngleUnit, opened.Standard.AngularUnit)});
    table.Add(
        {"Checks:", deleted ? CString("%1, and %2 deleted").arg(live).arg(deleted) : CString::number(live)});
    console.Print(table.Text());
}

CStringArray RowCells(const CheckRow& row, bool withCriticality) {
    const CString correction = CorrectionText(row.parameter);
    const CString value = ValueText(row.parameter);
    return {row.parameter.parameter, value.isEmpty() ? NothingToSay : value,
            correction == NothingToSay ? CString() : "correct to " + correction,
            withCriticality ? "[" + CriticalityName(row.criticality) + "]" : CString()};
}

void PrintCheck(const CCheck& check, const CStandard& standard, Console& console) {
    const CString name = check.Name + (check.LifeStatus == LifeDeleted ? " (deleted)" : "");
    console.PrintLine();
    console.PrintLine(
        CString("%1  %2  [%3]").arg(check.Sequence, 3).arg(name, CriticalityName(check.Criticality)));
    const std::vector<CheckRow> rows = WordCheck(check, standard.Unit, standard.AngularUnit);
    if (rows.empty()) {
        const CString summary = LoadString(SummaryTextOf(check.Type));
        console.PrintLine("     " + (summary.isEmpty() ? NothingToSay : summary));
        return;
    }
    TextTable table(5);
    for (size_t i = 0; i < rows.size(); ++i) {
        const bool isFirst = i == 0 || rows[i].child != rows[i - 1].child;
        const bool wasLong = i > 1 && rows[i - 1].child == rows[i - 2].child;
        if (isFirst && wasLong)
            table.AddBlank();
        table.Add(RowCells(rows[i], isFirst && rows[i].criticality != check.Criticality));
    }
    console.Print(table.Text());
}

} // namespace

int RunShow(const Arguments& arguments, Console& console) {
    const CString path = arguments.operands[0];
    OpenedStandard opened;
    if (!opened.Open(path)) {
        console.Error(path, opened.Reason);
        return ExitFailed;
    }
    CheckList checks;
    if (arguments.Has("--all"))
        opened.Standard.GetAllChecks(checks);
    else
        opened.Standard.GetLiveChecks(checks);
    if (arguments.Has("--json")) {
        console.Print(StandardJson(opened, checks));
        return ExitDone;
    }
    PrintHeader(opened, path, console);
    for (const CCheck* check : checks)
        PrintCheck(*check, opened.Standard, console);
    return ExitDone;
}
