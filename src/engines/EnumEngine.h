// The dictionary between the numbers stored in a parameter and what the user sees.
#pragma once

#include "platform/Text.h"

#include <QImage>

// All knowledge stands in constant tables, so an engine costs nothing to make: each user builds its own.
// `type` is a parameter's ParameterType; values and numbers count as 32 bits. A value that the list
// lacks has the number 0 and the empty text, and that is a success.
class CEnumEngine {
public:
    virtual ~CEnumEngine() = default;

    // What a search by text or picture stores where it finds nothing: -1 in 32 bits.
    static constexpr unsigned long NotFound = 0xFFFFFFFF;

    // The number of the picture of a value, or of its text in a list without pictures.
    // False, with `id` unchanged, for a type without such a list.
    bool GetItemID(int type, unsigned long value, unsigned long& id) const;

    // The text of a value; false, with an empty text, for a type that is not shown by a list or as a number.
    bool GetDisplayString(int type, unsigned long value, CString& text) const;

    // The text and the picture of a value; false, with both empty, for a type without pictures.
    bool GetImageAndText(int type, unsigned long value, CString& text, QImage& bitmap) const;

    // The value whose picture or text is given; the lowest where several have it. False, with NotFound
    // stored, where none has it. Nothing asked for (0, or an empty text) is true and leaves `value` alone.
    bool FindValueByImage(int type, unsigned long imageId, unsigned long& value) const;
    bool FindValueByText(int type, const CString& text, unsigned long& value) const;

    // 0 text or plain number, 1 measured number, 2 colour, 3 choice of pictures.
    // False, with `kind` unchanged, for a type without a kind.
    bool GetValueKind(int type, int& kind) const;

    // The short form of a length unit, such as "mm"; empty where the unit has none.
    void GetUnitSuffix(unsigned long unit, CString& text) const;

    // Appends the short form to a length; any other type stays as it is.
    void AppendUnitSuffix(int type, unsigned long unit, CString& text) const;

    // The text of a criticality, and the number of its bitmap in the report. Unknown values count as 1.
    void GetCriticalityTextAndIcon(unsigned long value, CString& text, unsigned long& icon) const;

    // The text of a measured number, which is stored in the units given, with its unit.
    // False where no unit was added: no measured type, or a `lengthUnit` of -1, even for an angle.
    bool FormatMeasuredValue(int type, double value, unsigned long lengthUnit, unsigned long angleUnit,
                             CString& text) const;

    // The fixed English name of a hole type; empty where the code has none.
    void GetHoleTypeName(unsigned long key, CString& text) const;
};

// The text of a criticality, and the number of its bitmap in the windows, which differs from the report's.
void GetCriticalityIcon(unsigned long value, CString& text, unsigned long& icon);
