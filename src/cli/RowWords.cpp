#include "cli/RowWords.h"

#include "engines/EnumEngine.h"
#include "engines/UIUtilities.h"

namespace {

CString CodeText(const ParameterRow& row, unsigned long code) {
    CString text;
    if (row.form == ParameterRow::Colors)
        text = ColorText(code);
    else
        CEnumEngine().GetDisplayString(static_cast<int>(row.parameterType), code, text);
    return text;
}

} // namespace

CString ColorText(unsigned long color) {
    return CString("#%1%2%3")
        .arg(color & 0xFF, 2, 16, QChar(u'0'))
        .arg(color >> 8 & 0xFF, 2, 16, QChar(u'0'))
        .arg(color >> 16 & 0xFF, 2, 16, QChar(u'0'));
}

CString ValueText(const ParameterRow& row) {
    if (row.form == ParameterRow::Text)
        return row.value;
    CStringArray texts;
    for (const unsigned long code : row.codes)
        texts.append(CodeText(row, code));
    CString op;
    if (row.op != OpOneOf && row.op != OpEqual)
        CUIUtilities().OperatorText(static_cast<int>(row.op), op);
    return (op.isEmpty() ? op : op + " ") + texts.join(" , ");
}

CString CorrectionText(const ParameterRow& row) {
    if (row.form == ParameterRow::Text)
        return row.correction;
    return row.hasCorrectionCode ? CodeText(row, row.correctionCode) : NothingToSay;
}
