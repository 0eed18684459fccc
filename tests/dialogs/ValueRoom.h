// A pane whose controls stand for parameters one by one, on a page, and a hand that works it.
#pragma once

#include "support/Messages.h"
#include "support/PaneRoom.h"
#include "support/WrittenCheck.h"

#include "editing/ChoiceList.h"
#include "editing/ComboBoxExt.h"
#include "editing/ExACRichEdit.h"
#include "editing/MyStatic.h"
#include "editing/NumberSpin.h"
#include "engines/ActiveUnit.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

// Rows of the boxes of operators, and of yes and no.
enum PairRow : int { AnyRow, EqualRow, BelowRow, AboveRow, AtLeastRow, AtMostRow };
enum YesNoRow : int { EitherRow, YesRow, NoRow };

// All references hold as long as the pane does.
class PaneHand {
public:
    explicit PaneHand(ControlHost& pane) : m_pane(pane) {}

    template <class T = QWidget> T& Get(int number) const { return *m_pane.GetDlgItem<T>(number); }
    QComboBox& Combo(int number) const { return Get<QComboBox>(number); }
    QLineEdit& Field(int number) const { return Get<QLineEdit>(number); }
    CNumberSpin& Spin(int number) const { return Get<CNumberSpin>(number); }
    CChoiceList& List(int number) const { return Get<CChoiceList>(number); }
    CMyStatic& Correction(int number) const { return Get<CMyStatic>(number); }
    bool IsEnabled(int number) const { return Get(number).isEnabled(); }
    bool IsTicked(int number) const { return Get<QAbstractButton>(number).isChecked(); }

    void Click(int number) const { Gui::Click(Get(number)); }
    void ClickRow(int number, int row) const {
        CChoiceList& list = List(number);
        list.scrollToItem(list.item(row));
        Gui::ClickAt(*list.viewport(), list.visualItemRect(list.item(row)).center());
    }
    // By the arrow keys.
    void Choose(int number, int row) const { Gui::ChooseRow(Get(number), row); }
    // Takes the old text out and types the new one, key by key.
    void Enter(int number, const CString& text) const {
        Gui::Focus(Get(number));
        auto* field = qobject_cast<QLineEdit*>(&Get(number));
        (field ? field : Get(number).findChild<QLineEdit*>())->selectAll();
        Gui::Key(Get(number), Qt::Key_Delete);
        Gui::Type(Get(number), text);
    }
    void Leave() const { Gui::Focus(Get(CExtDialog::CriticalityControl)); }

private:
    ControlHost& m_pane;
};

class ValueRoom : public testing::Test {
protected:
    explicit ValueRoom(MQC_CheckType_e type) : m_type(type) {}

    void SetUp() override {
        SetActiveLengthUnitProvider([this] { return room.standard.Unit; });
        room.standard.Unit = 0;
        room.standard.AngularUnit = 0;
        room.Show();
        room.GetChecksPage().resize(1100, 1500);
        room.Add(m_type);
    }
    void TearDown() override { SetActiveLengthUnitProvider({}); }

    CExtDialog& Pane() { return *room.Pane(m_type); }
    PaneHand Hand() { return PaneHand(Pane()); }
    CCheck& Live() { return *room.Live(m_type); }
    CString Written(unsigned id) { return ::Written(Live(), id); }
    CString Correction(unsigned id) { return WrittenCorrection(Live(), id); }
    // What the pane makes of a check that it was loaded with.
    std::unique_ptr<CCheck> Passed(const CCheck& check) {
        Pane().LoadCheck(check);
        auto shown = std::make_unique<CCheck>(m_type, 0, 0, 0, 1);
        Pane().FillCheck(*shown);
        return shown;
    }

    PaneRoom room;
    Messages messages;

private:
    MQC_CheckType_e m_type;
};

// Puts a requirement into a check.
template <class T> void Require(CParameter<T>* parameter, unsigned op, const std::vector<T>& values) {
    parameter->Operator = op;
    for (const T value : values)
        parameter->Values.Add(value);
}

using Gui::RowsOf;
inline CStringArray RowsOf(const QListWidget& list) {
    CStringArray rows;
    for (int i = 0; i < list.count(); ++i)
        rows.append(list.item(i)->text());
    return rows;
}

inline CStringArray TextsOf(std::initializer_list<unsigned> numbers) {
    CStringArray texts;
    for (const unsigned number : numbers)
        texts.append(LoadString(number));
    return texts;
}
