#include "editing/BoxGroup.h"

#include "editing/PictureBox.h"
#include "engines/EnumEngine.h"
#include "model/Check.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <algorithm>
#include <type_traits>
#include <utility>

namespace {

template <class T> constexpr bool IsWhole = std::is_same_v<T, int> || std::is_same_v<T, long>;

const CParameterEntry* EntryOf(const CCheck& check, unsigned parameter) {
    const CParameterEntry* entry = check.FindParameter(parameter);
    return entry && entry->Parameter ? entry : nullptr;
}

} // namespace

BoxGroup::BoxGroup(const ControlHost& window, unsigned parameter, std::vector<ValueBox> boxes)
    : m_window(window), m_parameter(parameter), m_boxes(std::move(boxes)) {
    std::erase_if(m_boxes,
                  [&](const ValueBox& box) { return !window.GetDlgItem<QAbstractButton>(box.number); });
    // The name of a box tells its value alone.
    for (const ValueBox& box : m_boxes)
        m_window.GetDlgItem(box.number)->setAccessibleDescription(LoadString(parameter));
}

void BoxGroup::ShowPictures(int parameterType) {
    const CEnumEngine engine;
    for (const auto& [number, value] : m_boxes) {
        unsigned long bitmap = 0;
        CString text;
        const auto code = static_cast<unsigned long>(value);
        auto* box = m_window.GetDlgItem<CPictureBox>(number);
        if (box && engine.GetItemID(parameterType, code, bitmap) &&
            engine.GetDisplayString(parameterType, code, text))
            box->SetPicture(static_cast<unsigned>(bitmap), text);
    }
}

void BoxGroup::SetEnabled(bool isEnabled) {
    for (const ValueBox& box : m_boxes)
        m_window.GetDlgItem(box.number)->setEnabled(isEnabled);
}

void BoxGroup::Clear() {
    for (const ValueBox& box : m_boxes)
        m_window.GetDlgItem<QAbstractButton>(box.number)->setChecked(false);
}

void BoxGroup::Load(const CCheck& check) {
    Clear();
    const CParameterEntry* entry = EntryOf(check, m_parameter);
    if (!entry || entry->Parameter->Operator == OpNone)
        return;
    VisitParameter(*entry, [&]<class T>(const CParameter<T>& parameter) {
        if constexpr (IsWhole<T>)
            for (const ValueBox& box : m_boxes)
                m_window.GetDlgItem<QAbstractButton>(box.number)
                    ->setChecked(std::ranges::find(parameter.Values, static_cast<T>(box.value)) !=
                                 parameter.Values.end());
    });
}

void BoxGroup::Store(CCheck& check) const {
    const CParameterEntry* entry = EntryOf(check, m_parameter);
    if (!entry)
        return;
    VisitParameter(*entry, [&]<class T>(CParameter<T>& parameter) {
        if constexpr (IsWhole<T>) {
            parameter.ClearValues();
            for (const ValueBox& box : m_boxes)
                if (m_window.GetDlgItem<QAbstractButton>(box.number)->isChecked())
                    parameter.Values.Add(static_cast<T>(box.value));
            parameter.Operator = parameter.Values.Count > 0 ? OpOneOf : OpNone;
        }
    });
}
