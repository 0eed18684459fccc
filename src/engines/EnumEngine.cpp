#include "engines/EnumEngine.h"

#include "engines/EnumTables.h"
#include "engines/HoleNames.h"
#include "engines/ParameterKinds.h"
#include "engines/TrailingZeros.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

#include <array>
#include <cstdint>

namespace {

std::uint32_t Low32(unsigned long value) {
    return static_cast<std::uint32_t>(value);
}

bool Store(const FoundKey& found, unsigned long& value) {
    value = found.found ? found.key : CEnumEngine::NotFound;
    return found.found;
}

// The number of the short form of a length unit's text, or 0.
unsigned SuffixIdOf(std::uint32_t textId) {
    switch (textId) {
    case 1621: return 1821;
    case 1622: return 1735;
    case 1623: return 1997;
    case 1624: return 2010;
    case 1625: return 2011;
    case 1626: return 2012;
    case 1627: return 2013;
    case 1628: return 2014;
    case 1629: return 2015;
    case 1630: return 2016;
    default: return 0;
    }
}

struct CriticalityLook {
    unsigned text;
    unsigned reportIcon;
    unsigned windowIcon;
};

const CriticalityLook& LookOf(unsigned long criticality) {
    static constexpr std::array<CriticalityLook, 4> Looks{
        {{2267, 1425, 1429}, {2268, 1424, 1428}, {2269, 1423, 1426}, {2270, 1422, 1427}}};
    const std::uint32_t value = Low32(criticality);
    return Looks[value < Looks.size() ? value : 1];
}

// The exponent form of a number below 1. The part from the exponent on is taken one character too long
// on its left, so a digit stands twice: 1.23e-05 is shown as 1.233e-05. Existing reports show it so.
CString SmallVolumeText(double value) {
    CString text = FormatScientific(value, 2);
    const qsizetype exponent = text.indexOf(u'e');
    CString mantissa = text.left(exponent);
    StripTrailingZeros(mantissa);
    return mantissa + text.right(exponent + 1);
}

CString VolumeText(const CString& number) {
    double value = 0;
    ParseDouble(number, value);
    if (1.0 > value)
        return SmallVolumeText(value);
    CString text = FormatFixed(value, 2);
    StripTrailingZeros(text);
    return text;
}

} // namespace

bool CEnumEngine::GetItemID(int type, unsigned long value, unsigned long& id) const {
    const ValueList& list = ValueListOf(type);
    switch (list.use) {
    case ListUse::Texts:
    case ListUse::Options: id = IdOf(list.texts, Low32(value)); return true;
    case ListUse::Pictures: id = IdOf(list.images, Low32(value)); return true;
    default: return false;
    }
}

bool CEnumEngine::GetDisplayString(int type, unsigned long value, CString& text) const {
    const ValueList& list = ValueListOf(type);
    switch (list.use) {
    case ListUse::Texts:
    case ListUse::Pictures:
    case ListUse::ShownOnly: text = LoadString(IdOf(list.texts, Low32(value))); return true;
    case ListUse::YesNo: text = LoadString(IdOf(list.texts, Low32(value) != 0)); return true;
    case ListUse::Number: text = FormatInt(static_cast<std::int32_t>(Low32(value))); return true;
    case ListUse::None:
    case ListUse::Options: break;
    }
    text.clear();
    return false;
}

bool CEnumEngine::GetImageAndText(int type, unsigned long value, CString& text, QImage& bitmap) const {
    const ValueList& list = ValueListOf(type);
    const bool pictures = list.use == ListUse::Pictures;
    text = LoadString(pictures ? IdOf(list.texts, Low32(value)) : 0);
    bitmap = LoadImageOf(ImageType::Bitmap, pictures ? IdOf(list.images, Low32(value)) : 0);
    return pictures;
}

bool CEnumEngine::FindValueByImage(int type, unsigned long imageId, unsigned long& value) const {
    const std::uint32_t wanted = Low32(imageId);
    if (wanted == 0)
        return true;
    return Store(FindKey(ValueListOf(type).images, [wanted](std::uint32_t id) { return id == wanted; }),
                 value);
}

bool CEnumEngine::FindValueByText(int type, const CString& text, unsigned long& value) const {
    if (text.isEmpty())
        return true;
    const ValueList& list = ValueListOf(type);
    const IdMap texts = list.use == ListUse::Texts ? list.texts : IdMap();
    return Store(FindKey(texts, [&text](std::uint32_t id) { return LoadString(id) == text; }), value);
}

bool CEnumEngine::GetValueKind(int type, int& kind) const {
    const ValueList& list = ValueListOf(type);
    if (list.valueKind == NoValueKind)
        return false;
    kind = list.valueKind;
    return true;
}

void CEnumEngine::GetUnitSuffix(unsigned long unit, CString& text) const {
    text = LoadString(SuffixIdOf(IdOf(ValueListOf(KindLengthUnit).texts, Low32(unit))));
}

void CEnumEngine::AppendUnitSuffix(int type, unsigned long unit, CString& text) const {
    if (type != KindLength)
        return;
    CString suffix;
    GetUnitSuffix(unit, suffix);
    text += suffix;
}

void CEnumEngine::GetCriticalityTextAndIcon(unsigned long value, CString& text, unsigned long& icon) const {
    const CriticalityLook& look = LookOf(value);
    text = LoadString(look.text);
    icon = look.reportIcon;
}

bool CEnumEngine::FormatMeasuredValue(int type, double value, unsigned long lengthUnit,
                                      unsigned long angleUnit, CString& text) const {
    text = FormatDouble(value);
    StripTrailingZeros(text);
    const bool measured = type == KindLength || type == KindAngle || type == KindVolume;
    if (!measured || Low32(lengthUnit) == NotFound)
        return false;
    CString unit;
    if (type == KindAngle) {
        GetDisplayString(KindAngleUnit, angleUnit, unit);
        text += u' ' + unit;
        return true;
    }
    GetUnitSuffix(lengthUnit, unit);
    if (type == KindVolume)
        text = VolumeText(text) + unit + "^3";
    else
        text += unit;
    return true;
}

void CEnumEngine::GetHoleTypeName(unsigned long key, CString& text) const {
    text = QString::fromLatin1(HoleNameOf(Low32(key)));
}

void GetCriticalityIcon(unsigned long value, CString& text, unsigned long& icon) {
    const CriticalityLook& look = LookOf(value);
    text = LoadString(look.text);
    icon = look.windowIcon;
}
