#include "editing/CorrectionChoices.h"

#include "model/Parameter.h"
#include "platform/Format.h"

#include <algorithm>

namespace {

// How many numbers above the first are tried for one that is in no list.
constexpr int OutsideTries = 100;

long Whole(const CString& text) {
    long number = 0;
    ParseLong(text, number);
    return number;
}

double Number(const CString& text) {
    double number = 0;
    ParseDouble(text, number);
    return number;
}

bool IsReadable(const CString& text) {
    double number = 0;
    return ParseDouble(text, number);
}

} // namespace

bool CorrectionChoices::TakesWords() const {
    return !IsNumber() || (!Strings.isEmpty() && !IsReadable(Strings[0]));
}

CString CorrectionChoices::ChoiceAt(qsizetype index) const {
    if (index < 0 || index >= Count())
        return {};
    return ShowsImages() ? FormatInt(Numbers[index]) : Strings[index];
}

qsizetype CorrectionChoices::IndexOf(const CString& text) const {
    for (qsizetype i = 0; i < Count(); ++i)
        if (ChoiceAt(i).compare(text, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

void CorrectionChoices::TakeOver(const CorrectionChoices& record, bool keepsText) {
    const CString text = Text;
    const int hasValue = HasValue;
    *this = record;
    if (!keepsText)
        return;
    Text = text;
    HasValue = hasValue;
    if (const qsizetype found = IndexOf(text); found >= 0)
        SelectedIndex = static_cast<int>(found);
}

bool CorrectionChoices::HoldsNumber(double number) const {
    return std::any_of(Strings.begin(), Strings.end(), [number](const CString& entry) {
        return IsReadable(entry) && Number(entry) == number;
    });
}

bool CorrectionChoices::LiesBetween(double number) const {
    const auto [low, high] = std::minmax({Number(Strings[0]), Number(Strings[1])});
    return number >= low && number <= high;
}

// The first entry counted up, or with a number behind it, to what no entry equals; empty where all are taken.
CString CorrectionChoices::NextOutside() const {
    for (int step = 1; step <= OutsideTries; ++step) {
        const long number = Whole(Strings[0]) + step;
        if (IsNumber() && !HoldsNumber(static_cast<double>(number)))
            return FormatInt(number);
        if (!IsNumber() && !Strings.contains(Strings[0] + FormatInt(step)))
            return Strings[0] + FormatInt(step);
    }
    return {};
}

void CorrectionChoices::SetChoices(const CorrectionChoices& record) {
    if (record.Operator != Operator) {
        *this = record;
        return;
    }
    const auto setText = [this](const CString& text) {
        Text = text;
        HasValue = 1;
    };
    const bool hasFirst = !record.Strings.isEmpty();
    const CString first = hasFirst ? record.Strings[0] : CString();
    const long bound = Whole(first), number = Whole(Text);
    switch (Operator) {
    case OpOneOf: TakeOver(record, record.IndexOf(Text) >= 0); break;
    case OpEqual: TakeOver(record, false); break;
    case OpNoneOf: {
        TakeOver(record, true);
        const bool isTaken =
            Strings.contains(Text) || (IsNumber() && IsReadable(Text) && HoldsNumber(Number(Text)));
        if (const CString free = isTaken ? NextOutside() : CString(); !free.isEmpty())
            setText(free);
        break;
    }
    case OpBelow: TakeOver(record, hasFirst && number < bound); break;
    case OpAbove: TakeOver(record, hasFirst && number > bound); break;
    case OpAtLeast: TakeOver(record, hasFirst && number >= bound); break;
    case OpAtMost: TakeOver(record, hasFirst && number <= bound); break;
    case OpNotEqual:
        TakeOver(record, hasFirst && !(record.EntryStyle != NumberEntry && Text.isEmpty()));
        if (hasFirst && !IsNumber() && Text == first)
            setText(first + u'1');
        else if (hasFirst && IsNumber() && number == bound)
            setText(FormatInt(bound + 1));
        break;
    case OpBetween:
        TakeOver(record, !Text.isEmpty() && record.Strings.size() == 2 && record.LiesBetween(Number(Text)));
        break;
    default: break;
    }
}

// What stands for a value that the user has not given; empty where nothing does.
CString CorrectionChoices::DefaultText() const {
    if (Strings.isEmpty())
        return {};
    const CString& first = Strings[0];
    if (!IsNumber()) {
        switch (Operator) {
        case OpEqual:
        case OpContains:
        case OpBeginsWith:
        case OpEndsWith: return first;
        case OpNotEqual: return first + u'1';
        default: return {};
        }
    }
    switch (Operator) {
    case OpBetween:
    case OpEqual:
    case OpAtLeast:
    case OpAtMost: return IsReadable(first) ? FormatInt(Whole(first)) : first; // a word has no number
    case OpBelow: return FormatInt(Whole(first) - 1);
    case OpAbove:
    case OpNotEqual: return FormatInt(Whole(first) + 1);
    case OpNoneOf: return NextOutside();
    default: return {};
    }
}

CString CorrectionChoices::MakeDisplayText() {
    if (HasValue > 0)
        return Text;
    const CString made = DefaultText();
    if (!made.isEmpty()) {
        Text = made;
        HasValue = 1;
    }
    return made;
}

void CorrectionChoices::Select(qsizetype index) {
    if (index < 0 || index >= Count())
        return;
    SelectedIndex = static_cast<int>(index);
    Text = ChoiceAt(index);
    HasValue = 1;
}

bool CorrectionChoices::NumberSatisfies(const CString& entered) const {
    const bool isFirst = entered == Strings[0];
    if (!IsReadable(entered))
        return Operator == OpOneOf ? IndexOf(entered) >= 0 // such as the word of a font style
                                   : Operator == OpEqual && isFirst;
    const double number = Number(entered), bound = Number(Strings[0]);
    switch (Operator) {
    case OpBetween: return Strings.size() != 2 || LiesBetween(number);
    case OpOneOf: return HoldsNumber(number);
    case OpEqual: return IsReadable(Strings[0]) && number == bound;
    case OpNoneOf: return !HoldsNumber(number);
    case OpBelow: return number < bound;
    case OpAbove: return number > bound;
    case OpAtLeast: return number >= bound;
    case OpAtMost: return number <= bound;
    case OpNotEqual: return number != bound;
    default: return true;
    }
}

bool CorrectionChoices::TextSatisfies(const CString& entered) const {
    switch (Operator) {
    case OpOneOf: return IndexOf(entered) >= 0;
    case OpContains: return entered.contains(Strings[0]);
    case OpBeginsWith: return entered.startsWith(Strings[0]);
    case OpEndsWith: return entered.endsWith(Strings[0]);
    case OpNotEqual: return entered != Strings[0];
    default: return true;
    }
}

bool CorrectionChoices::Satisfies(const CString& entered) const {
    if (entered.isEmpty() || Strings.isEmpty())
        return true;
    return IsNumber() ? NumberSatisfies(entered) : TextSatisfies(entered);
}

// What takes the place of a refused text. It is never one that would be refused in its turn, for the user
// could not leave the field then.
CString CorrectionChoices::Replacement() const {
    const CString made = IsNumber() ? DefaultText() : Operator == OpNotEqual ? Strings[0] + u'1' : Strings[0];
    if (!made.isEmpty() && Satisfies(made))
        return made;
    return Satisfies(Strings[0]) ? Strings[0] : CString();
}

bool CorrectionChoices::CheckCorrectionText(const CString& entered) {
    const bool holds = Satisfies(entered);
    Text = holds ? entered : Replacement();
    HasValue = Text.isEmpty() ? 0 : 1;
    if (const qsizetype found = Operator == OpOneOf ? IndexOf(Text) : -1; found >= 0)
        SelectedIndex = static_cast<int>(found);
    return holds;
}
