#include "engines/UIUtilities.h"

#include "engines/EnumEngine.h"
#include "engines/EnumTables.h"
#include "engines/ParameterKinds.h"
#include "engines/TrailingZeros.h"
#include "platform/LanguageLibrary.h"

#include <QRgb>
#include <cstdint>

namespace {

constexpr int CustomSheetSize = 12;

// The codes of a list that the panes share with the parameters are those of its value list.
int CodeOf(int kind, const CString& text, int unknown = -1) {
    const FoundKey found =
        FindKey(ValueListOf(kind).texts, [&text](std::uint32_t id) { return LoadString(id) == text; });
    return found.found ? static_cast<int>(found.key) : unknown;
}

void FindText(int kind, int code, CString& text) {
    if (const std::uint32_t id = IdOf(ValueListOf(kind).texts, static_cast<std::uint32_t>(code)))
        text = LoadString(id);
}

// An operator and its text: a number of the language library, or a sign that is the same in every language.
struct OperatorRow {
    int code;
    unsigned id;
    const char* sign;
};

// In the order of the comparisons.
constexpr OperatorRow Operators[] = {
    {0, 1632, ""}, {5, 0, "<"},   {8, 0, "<="},  {6, 0, ">"},   {7, 0, ">="},   {2, 1658, ""},  {3, 0, "="},
    {14, 0, "!="}, {4, 1659, ""}, {1, 1657, ""}, {9, 1720, ""}, {10, 1721, ""}, {11, 1722, ""},
};

CString TextOf(const OperatorRow& row) {
    return row.id ? LoadString(row.id) : CString(QLatin1String(row.sign));
}

int BitmapOf(int kind, int code) {
    const std::uint32_t id = IdOf(ValueListOf(kind).images, static_cast<std::uint32_t>(code));
    return id == 0 ? -1 : static_cast<int>(id);
}

// The premultiplied pixel of a colour 0x00BBGGRR.
QRgb PixelOf(unsigned long color, int alpha) {
    return qPremultiply(qRgba(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF, alpha));
}

} // namespace

void CUIUtilities::TrimTrailingZeros(CString& text) const {
    StripTrailingZeros(text);
}

int CUIUtilities::AngleUnitCode(const CString& text) const {
    return CodeOf(KindAngleUnit, text);
}

void CUIUtilities::AngleUnitName(int code, CString& text) const {
    FindText(KindAngleUnit, code, text);
}

int CUIUtilities::LengthUnitCode(const CString& text) const {
    return CodeOf(KindLengthUnit, text);
}

void CUIUtilities::LengthUnitText(int code, CString& text) const {
    FindText(KindLengthUnit, code, text);
}

void CUIUtilities::LengthUnitAbbreviation(const CString& text, CString& out) const {
    const CEnumEngine engine;
    unsigned long unit = CEnumEngine::NotFound;
    engine.FindValueByText(KindLengthUnit, text, unit);
    engine.GetUnitSuffix(unit, out);
}

int CUIUtilities::MassUnitCode(const CString& text) const {
    return CodeOf(KindMassUnit, text);
}

void CUIUtilities::MassUnitName(int code, CString& text) const {
    FindText(KindMassUnit, code, text);
}

int CUIUtilities::DocumentUnit10Code(const CString& text) const {
    return CodeOf(KindDocumentUnit10, text);
}

void CUIUtilities::DocumentUnit10Name(int code, CString& text) const {
    FindText(KindDocumentUnit10, code, text);
}

int CUIUtilities::DocumentUnit11Code(const CString& text) const {
    return CodeOf(KindDocumentUnit11, text);
}

void CUIUtilities::DocumentUnit11Name(int code, CString& text) const {
    FindText(KindDocumentUnit11, code, text);
}

int CUIUtilities::PropertyTypeCode(const CString& text) const {
    return CodeOf(KindCustomPropertyType, text);
}

void CUIUtilities::PropertyTypeText(int code, CString& text) const {
    FindText(KindCustomPropertyType, code, text);
}

int CUIUtilities::FontStyleCode(const CString& text) const {
    return CodeOf(KindFontStyle, text);
}

void CUIUtilities::FontStyleText(int code, CString& text) const {
    FindText(KindFontStyle, code, text);
}

int CUIUtilities::SheetSizeCode(const CString& text) const {
    return CodeOf(KindPaperSize, text, CustomSheetSize);
}

void CUIUtilities::SheetSizeText(int code, CString& text) const {
    FindText(KindPaperSize, code, text);
}

int CUIUtilities::OperatorCode(const CString& text) const {
    for (const OperatorRow& row : Operators)
        if (TextOf(row) == text)
            return row.code;
    return 0;
}

void CUIUtilities::OperatorText(int code, CString& text) const {
    for (const OperatorRow& row : Operators)
        if (row.code == code)
            text = TextOf(row);
}

int CUIUtilities::LineStyleBitmap(int code) const {
    return BitmapOf(KindLineStyle, code);
}

int CUIUtilities::LineWidthBitmap(int code) const {
    return BitmapOf(KindLineThickness, code);
}

void CUIUtilities::ReplaceBitmapColor(QImage& bitmap, unsigned long newColor, unsigned long oldColor) const {
    // Compared as premultiplied pixels, for the soft edges of a drawn picture have lost digits of their
    // colour.
    bitmap = bitmap.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < bitmap.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(bitmap.scanLine(y));
        for (int x = 0; x < bitmap.width(); ++x)
            if (const int alpha = qAlpha(line[x]); alpha > 0 && line[x] == PixelOf(oldColor, alpha))
                line[x] = PixelOf(newColor, alpha);
    }
}
