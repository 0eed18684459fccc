#include "support/RandomStandard.h"

#include "model/ParameterValue.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <limits>

namespace {

// Texts that are awkward in XML, in lists or on the screen, but that a file can hold.
const CStringArray& AwkwardTexts() {
    static const CStringArray texts{
        "Arial",
        "Ø 12,5 ±0.1",
        "",
        " ",
        "  leading and trailing  ",
        "&<>\"'",
        "&amp; &#10; <![CDATA[ ]]>",
        "line\nline\r\n\ttab\r",
        "0",
        "-1",
        "8",
        "12.50 mm",
        "1e400",
        "C:\\Rules\\macro.swp",
        QString::fromUtf8("図面 Чертёж 😀 e\xCC\x81"),
        CString(300, u'x'),
    };
    return texts;
}

// Characters that no document can hold: they are left out of what is written.
const CStringArray& UnwritableTexts() {
    static const CStringArray texts{
        CString(u'\x01'),
        CString(u'\x1F') + "tail",
        CString(QChar(0)) + "after nul",
        CString(QChar(0xD83D)),
        "x" + CString(QChar(0xDE00)),
        CString(QChar(0xFFFE)),
        CString(QChar(0xFFFF)),
        "a\x0B"
        "b\x0C"
        "c",
    };
    return texts;
}

// More than a set of values holds, so that lists grow.
constexpr unsigned MostValues = 14;

} // namespace

int RandomStandard::Type() {
    static constexpr int Strange[] = {404, 502, 605, 900, -7, 128};
    if (Chance(5))
        return Strange[Below(std::size(Strange))];
    const auto types = AllCheckTypes();
    return types[Below(static_cast<unsigned>(types.size()))].type;
}

CString RandomStandard::Text() {
    const auto& awkward = AwkwardTexts();
    CString text = awkward[Below(static_cast<unsigned>(awkward.size()))];
    if (m_taste == Taste::Fitting)
        return text + "x"; // never empty
    const auto& unwritable = UnwritableTexts();
    if (Chance(15))
        text += unwritable[Below(static_cast<unsigned>(unwritable.size()))];
    return Chance(10) ? text + AwkwardTexts()[1] : text;
}

double RandomStandard::Double() {
    const double small = static_cast<std::int32_t>(m_numbers()) / 1000.0;
    switch (Below(12)) {
    case 0: return 0.0;
    case 1: return -0.0;
    case 2: return 1e-12;
    case 3: return -std::numeric_limits<double>::max();
    case 4: return std::numeric_limits<double>::denorm_min();
    case 5: return small * 1e200;
    case 6: return small / 7e5;
    default: return small;
    }
}

template <> int RandomStandard::Value() {
    return Chance(70) ? static_cast<int>(Below(20)) - 3 : static_cast<std::int32_t>(m_numbers());
}
template <> long RandomStandard::Value() {
    return Value<int>();
}
template <> unsigned long RandomStandard::Value() {
    return static_cast<std::uint32_t>(Value<int>());
}
template <> bool RandomStandard::Value() {
    return Chance(50);
}
template <> double RandomStandard::Value() {
    return Double();
}
template <> CString* RandomStandard::Value() {
    if (m_taste == Taste::Any && Chance(5))
        return nullptr;
    return new CString(Text());
}
template <> COleDateTime* RandomStandard::Value() {
    return nullptr;
}

unsigned RandomStandard::Operator(unsigned& count) {
    if (m_taste == Taste::Any) {
        count = Chance(30) ? 0 : Below(MostValues);
        return Chance(3) ? 0xFFFFFFF0u + Below(16) : Below(16);
    }
    static constexpr std::array<unsigned, 12> InForce{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 14};
    if (Chance(20)) {
        count = 0;
        return OpNone;
    }
    const unsigned op = InForce[Below(InForce.size())];
    count = op == OpBetween ? 2 : 1 + Below(MostValues);
    return op;
}

template <class T> void RandomStandard::FillParameter(CParameter<T>& parameter) {
    unsigned count = 0;
    parameter.Operator = Operator(count);
    parameter.ClearValues();
    for (unsigned i = 0; i < count; ++i)
        parameter.Values.Add(Value<T>());
    if (m_taste == Taste::Fitting || Chance(50))
        parameter.SetCorrection(Value<T>());
    parameter.CorrectionKind = Chance(50) ? CorrectionFixed : CorrectionAbsent;
    if (m_taste == Taste::Any && Chance(20))
        parameter.Remarks = Text();
}

void RandomStandard::FillCheck(CCheck& check) {
    for (const CParameterEntry* entry : check.Parameters)
        VisitParameter(*entry, [this](auto& parameter) { FillParameter(parameter); });
    check.Criticality = Chance(95) ? Below(4) : static_cast<unsigned>(m_numbers());
}

void RandomStandard::Rename(CCheck& check) {
    const bool isNameKept = m_taste == Taste::Any || !FindContainerType(check.Type);
    if (isNameKept && Chance(20))
        check.Name = Text();
    for (CCheck* child : check.Children)
        Rename(*child);
}

void RandomStandard::FillChildren(CCheckManager& container) {
    const unsigned count = Below(5);
    for (unsigned i = 0; i < count; ++i) {
        auto child = container.MakeChild();
        do
            FillCheck(*child);
        while (m_taste == Taste::Fitting && child->Parameters[0]->Parameter->Operator == OpNone);
        container.Children.Add(child.release());
    }
}

std::unique_ptr<CCheck> RandomStandard::Check(int type) {
    auto check = CStandard::MakeCheck(type);
    FillCheck(*check);
    if (auto* container = dynamic_cast<CCheckManager*>(check.get()))
        FillChildren(*container);
    return check;
}

void RandomStandard::Fill(CStandard& standard, unsigned count) {
    static constexpr unsigned LifeStatuses[] = {LifeInForce, LifeDeleted, LifeEdited, LifeUnreadable};
    for (unsigned i = 0; i < count; ++i) {
        unsigned number = 0;
        auto check = Check(Type());
        Rename(*check);
        check->Status = m_taste == Taste::Any ? Below(3) : 0;
        check->LifeStatus = LifeStatuses[Below(std::size(LifeStatuses))];
        standard.InsertCheck(std::move(check), number);
    }
    standard.Unit = static_cast<int>(Below(11));
    standard.AngularUnit = static_cast<int>(Below(4));
    standard.RunRWConfigOption = static_cast<int>(Below(10));
    standard.Name = Text();
}

void RandomStandard::Edit(CStandard& standard) {
    const int type = Type();
    CCheck* live = nullptr;
    standard.FindLiveByType(type, live);
    auto check = Check(type);
    if (live)
        check->Name = live->Name; // a new name alone would change the check without a step
    unsigned number = 0;
    if (!live)
        standard.AddCheck(check, number);
    else if (Chance(30))
        standard.DeleteCheck(live->Sequence);
    else
        standard.EditCheck(std::move(check));
}
