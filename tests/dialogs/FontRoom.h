// A pane of a font check on a page, and the parameters that it writes.
#pragma once

#include "support/PaneRoom.h"

#include "editing/ChoiceList.h"
#include "editing/ComboBoxExt.h"
#include "editing/MyStatic.h"
#include "engines/ActiveUnit.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

namespace Font {

enum Control : int {
    Units = 1000,
    HeightCombo,
    HeightField,
    SpacingCombo,
    SpacingField,
    Points,
    PointsCombo,
    StrikeoutBox,
    UnderlineBox,
    DocumentFontBox = 1068,
    Names = 1136,
    Styles,
    PointSizes
};
enum Parameter : unsigned {
    DocumentFont = 1690,
    Name = 1700,
    Style,
    Strikeout,
    Underline,
    Height,
    Spacing,
    PointHeight
};
// Rows of the boxes of operators.
enum Row : int { Any, Equal, Below, Above, AtMost, AtLeast, Between, OneOf, NoneOf };

constexpr MQC_CheckType_e Notes = 109, Annotations = 202, Dimensions = 403;

// "<operator>:<value>,<value>..." of a parameter.
inline CString Written(const CCheck& check, unsigned id) {
    CString text;
    VisitParameter(*check.FindParameter(id), [&]<class T>(const CParameter<T>& parameter) {
        CStringArray values;
        for (const T& value : parameter.Values) {
            if constexpr (std::is_same_v<T, CString*>)
                values.append(*value);
            else if constexpr (std::is_arithmetic_v<T>)
                values.append(QString::number(value));
        }
        text = QString::number(parameter.Operator) + u':' + values.join(u',');
    });
    return text;
}

} // namespace Font

// Works one of the panes; all references hold as long as the pane does.
class FontHand {
public:
    explicit FontHand(ControlHost& pane) : m_pane(pane) {}

    template <class T = QWidget> T& Get(int number) const { return *m_pane.GetDlgItem<T>(number); }
    QComboBox& Combo(int number) const { return Get<QComboBox>(number); }
    QLineEdit& Field(int number) const { return Get<QLineEdit>(number); }
    CMyStatic& Correction(int number) const { return Get<CMyStatic>(number); }
    bool Has(int number) const { return m_pane.GetDlgItem(number); }
    bool IsEnabled(int number) const { return Get(number).isEnabled(); }

    void Click(int number) const { Gui::Click(Get(number)); }
    void ClickRow(int number, int row) const {
        auto& list = Get<CChoiceList>(number);
        list.scrollToItem(list.item(row));
        Gui::ClickAt(*list.viewport(), list.visualItemRect(list.item(row)).center());
    }
    // By the arrow keys.
    void Choose(int number, int row) const { Gui::ChooseRow(Get(number), row); }
    // Chooses an operator and types its values, one key after another.
    void Enter(int combo, int row, const CString& values) const {
        Choose(combo, row);
        QLineEdit& field = Field(combo + 1);
        Gui::Focus(field);
        field.selectAll();
        Gui::Key(field, Qt::Key_Delete);
        Gui::Type(field, values);
    }
    void Leave() const { Gui::Focus(Get(Font::Names)); }

private:
    ControlHost& m_pane;
};

class FontRoom : public testing::Test {
protected:
    explicit FontRoom(MQC_CheckType_e type = Font::Notes) : m_type(type) {}

    void SetUp() override {
        SetActiveLengthUnitProvider([this] { return room.standard.Unit; });
        room.standard.Unit = 0;
        room.Show();
        room.GetChecksPage().resize(1100, 900);
        room.Add(m_type);
    }
    void TearDown() override { SetActiveLengthUnitProvider({}); }

    CExtDialog& Pane() { return *room.Pane(m_type); }
    FontHand Hand() { return FontHand(Pane()); }
    CCheck& Live() { return *room.Live(m_type); }

    CString Written(unsigned id) { return Font::Written(Live(), id); }

    PaneRoom room;

private:
    MQC_CheckType_e m_type;
};
