// Conversions between what a control shows and the codes of the model. Every text is compared with, or
// taken from, the language library, so they follow the language of the tool.
#pragma once

#include "platform/Text.h"

#include <QImage>

// A `...Code` that knows no such text answers -1, unless it says otherwise.
// A `...Text` or `...Name` that knows no such code leaves `text` as it is.
class CUIUtilities {
public:
    virtual ~CUIUtilities() = default;

    void TrimTrailingZeros(CString& text) const; // as StripTrailingZeros

    int AngleUnitCode(const CString& text) const;
    void AngleUnitName(int code, CString& text) const;
    int LengthUnitCode(const CString& text) const;
    void LengthUnitText(int code, CString& text) const;
    void LengthUnitAbbreviation(const CString& text, CString& out) const; // empty where there is none
    int MassUnitCode(const CString& text) const;
    void MassUnitName(int code, CString& text) const;
    int DocumentUnit10Code(const CString& text) const;
    void DocumentUnit10Name(int code, CString& text) const;
    int DocumentUnit11Code(const CString& text) const;
    void DocumentUnit11Name(int code, CString& text) const;

    int PropertyTypeCode(const CString& text) const;
    void PropertyTypeText(int code, CString& text) const;
    int FontStyleCode(const CString& text) const;
    void FontStyleText(int code, CString& text) const;
    int SheetSizeCode(const CString& text) const; // 12, a size of one's own, for any unknown text
    void SheetSizeText(int code, CString& text) const;
    int OperatorCode(const CString& text) const; // 0, not tested, for any unknown text
    void OperatorText(int code, CString& text) const;

    int LineStyleBitmap(int code) const; // the bitmap's number, or -1
    int LineWidthBitmap(int code) const; // the bitmap's number, or -1

    // Replaces every pixel of one colour, whatever its transparency, which stays. Colours are 0x00BBGGRR.
    // The picture is left in Format_ARGB32_Premultiplied.
    void ReplaceBitmapColor(QImage& bitmap, unsigned long newColor, unsigned long oldColor) const;
};
