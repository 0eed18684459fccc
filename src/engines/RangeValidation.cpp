// The bounds of the values that a value box takes.
#include "engines/ActiveUnit.h"
#include "engines/TextServices.h"
#include "engines/ValidateEngine.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"

#include <array>

namespace {

struct Bounds {
    double maximum;
    double minimum; // 0 itself is always allowed
    unsigned message;
};

constexpr Bounds PlainBounds = {1000000, 0.000001, 2043};

// By unit code. Roughly the metric range in each unit, rounded by hand; standards depend on the
// figures as they are, the irregular rows and the message shared by micron and mil included.
constexpr std::array<Bounds, 11> LengthBounds = {{
    {1000000, 0.0000001, 2191},              // millimetre
    {100000, 0.00000001, 2192},              // centimetre
    {1000, 0.0000000001, 2193},              // metre
    {39370.07874016, 0.0000000039, 2194},    // inch
    {3280.83989501, 0.0000000003, 2195},     // foot
    {3280, 0.0000000039, 2196},              // foot and inch
    {10000000000000, 1, 2197},               // angstrom
    {1000000000000, 0.1, 2198},              // nanometre
    {1000000000, 0.0001, 2199},              // micron
    {39370078.74015749, 0.000003937, 2199},  // mil
    {39370078740.157486, 0.0039370079, 2201} // microinch
}};

// The bounds in force, or null where there are none: a length without a document.
const Bounds* BoundsOf(bool isLength) {
    if (!isLength)
        return &PlainBounds;
    const int unit = ActiveLengthUnit();
    return unit >= 0 && unit < static_cast<int>(LengthBounds.size()) ? &LengthBounds[unit] : nullptr;
}

bool IsOutside(double value, const Bounds& bounds) {
    return value > bounds.maximum || (value < bounds.minimum && value != 0);
}

} // namespace

bool CValidateEngine::CheckRange(CString& valueText, bool isLength) {
    const bool endsInComma = valueText.endsWith(u',');
    const Bounds* bounds = BoundsOf(isLength);
    gtStrtok tokens(valueText, ",");
    CStringArray kept;
    bool valid = true;
    for (int i = 0; i < tokens.GetCount(); ++i) {
        CString token = tokens.GetToken(i);
        double value = 0;
        if (!ParseDouble(token, value))
            continue;
        if (bounds && IsOutside(value, *bounds)) {
            ShowMessage(LoadString(bounds->message));
            token = isLength ? CString() : token.left(6);
            valid = false;
        } else if (!valid) {
            // A good value behind a bad one goes as well, and is told of by a box without a text.
            ShowMessage(CString());
            token.clear();
        }
        kept.append(token);
    }
    if (!kept.isEmpty())
        valueText = kept.join(u',') + (endsInComma ? "," : "");
    return valid;
}
