// The units of a standard in its view.
#include "ViewRoom.h"

#include "editing/PageSheet.h"
#include "engines/UnitConvertor.h"
#include "platform/LanguageLibrary.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr unsigned AddGap = 32922;
constexpr MQC_CheckType_e Gap = 314;
constexpr unsigned ArrowLength = 1552, GapLength = 2293; // parameters
constexpr int HeightCombo = 1001, HeightField = 1002;    // controls of a font check
constexpr int EqualRow = 1, OneOfRow = 7;                // of its comparisons

class ViewUnits : public ViewRoom {
protected:
    // A value and its label as a pane would have them.
    void Attach(unsigned long dimension) {
        value = new QLineEdit("1", &Pane(References));
        label = new QLabel("?", &Pane(References));
        Document().GetUnitSettings().push_back(std::make_unique<CUnitSettings>(value, label, 0, dimension));
    }
    void ChooseLength(const CString& name) {
        View().ActivatePage(OptionsPage);
        Gui::Settle();
        auto& combo = *View().GetOptionsPage().GetDlgItem<QComboBox>(1280);
        combo.setCurrentIndex(-1);
        Gui::ChooseRow(combo, combo.findText(name));
    }
    void AddWithLength(unsigned command, MQC_CheckType_e type, unsigned parameter) {
        Send(command);
        auto edited = CStandard::CloneCheck(*Live(type));
        CParameter<double>* length = edited->GetDoubleParameter(parameter);
        length->Operator = OpOneOf;
        length->Values.Add(25.4);
        Standard().EditCheckCopy(*edited);
        Page().LoadPane(*edited);
    }
    double Length(MQC_CheckType_e type, unsigned parameter) { // of a deleted check too
        CCheck* check = nullptr;
        Standard().FindAnyByType(type, check);
        return check->GetDoubleParameter(parameter)->Values[0];
    }
    // Types values for the height of the notes' font, key by key.
    QLineEdit& EnterHeight(int row, const CString& values) {
        if (Position(NoteFont) < 0)
            Page().AddCheck(NoteFont, nullptr);
        Gui::ChooseRow(*Pane(NoteFont).GetDlgItem<QComboBox>(HeightCombo), row);
        auto& field = *Pane(NoteFont).GetDlgItem<QLineEdit>(HeightField);
        Gui::Focus(field);
        field.selectAll();
        Gui::Type(field, values);
        return field;
    }
    int Setting(const char* name) {
        int unit = -1;
        CChkbldsetting().GetInt(name, unit);
        return unit;
    }

    QLineEdit* value = nullptr;
    QLabel* label = nullptr;
};

} // namespace

TEST_F(ViewUnits, ANewStandardTakesTheUnitsOfTheSettings) {
    EXPECT_EQ(Standard().Unit, Setting("UnitSettings"));
    EXPECT_EQ(Standard().AngularUnit, Setting("AngularUnitSetting"));
    EXPECT_EQ(View().GetOptionsPage().LengthUnitName, View().GetLengthUnitName());
    EXPECT_FALSE(View().GetLengthUnitName().isEmpty());
}

TEST_F(ViewUnits, AChosenUnitConvertsControlsAndIsKeptForNewStandards) {
    Send(AddReferences);
    View().ApplyUnits(Millimetre, Degree);
    Attach(DimensionLength);
    value->setText("25.4");
    View().ActivatePage(OptionsPage);
    Gui::Settle();
    // From millimetres down to inches each unit on the way is chosen in turn.
    Gui::ChooseRow(*View().GetOptionsPage().GetDlgItem<QComboBox>(1280), 8);
    EXPECT_EQ(Standard().Unit, Inch);
    EXPECT_NEAR(value->text().toDouble(), 1.0, 1e-6);
    EXPECT_EQ(label->text(), "in");
    EXPECT_EQ(Setting("UnitSettings"), Inch);
    EXPECT_EQ(View().GetLengthUnitName(), LoadString(1629));
    New();
    EXPECT_EQ(Standard().Unit, Inch);
}

TEST_F(ViewUnits, AChosenUnitConvertsAllChecksAndTheSummary) {
    View().ApplyUnits(Millimetre, Degree);
    AddWithLength(AddArrowheads, Arrowheads, ArrowLength);
    AddWithLength(AddGap, Gap, GapLength);
    Send(AddGap); // takes it away
    ASSERT_EQ(Live(Gap), nullptr);
    ChooseLength(LoadString(1629));
    EXPECT_NEAR(Length(Arrowheads, ArrowLength), 1.0, 1e-6);
    EXPECT_NEAR(Length(Gap, GapLength), 1.0, 1e-6) << "it may be brought back";
    View().ActivatePage(SummaryPage);
    CString shown = View().GetSummaryPage().Grid->GetCellText(1, 2);
    ASSERT_TRUE(shown.endsWith("in")) << shown.toStdString();
    shown.chop(2);
    EXPECT_NEAR(shown.toDouble(), 1.0, 1e-6);
}

TEST_F(ViewUnits, AnEntryIsHeldToTheUnitOfItsStandard) {
    View().ApplyUnits(Millimetre, Degree);
    EXPECT_EQ(EnterHeight(EqualRow, "5000").text(), "5000");
    EXPECT_TRUE(told.isEmpty());
    View().ApplyUnits(Metre, Degree);
    EXPECT_EQ(EnterHeight(EqualRow, "5000").text(), "");
    EXPECT_EQ(told, CStringArray{LoadString(2193)});
}

TEST_F(ViewUnits, ValuesThatWereTypedFollowTheUnit) {
    constexpr int Centimetres = 4; // row
    View().ApplyUnits(Millimetre, Degree);
    const QLineEdit& field = EnterHeight(OneOfRow, "1,0,25");
    View().ActivatePage(OptionsPage);
    Gui::ChooseRow(*View().GetOptionsPage().GetDlgItem<QComboBox>(1280), Centimetres);
    EXPECT_EQ(field.text(), "0.1 , 0.0 , 2.5");
    const CParameter<double>& heights = *Live(NoteFont)->GetDoubleParameter(1704);
    ASSERT_EQ(heights.Values.Count, 3);
    EXPECT_NEAR(heights.Values[2], 2.5, 1e-9);
}

TEST_F(ViewUnits, AnAngleUnitLeavesLengthsAlone) {
    Send(AddReferences);
    View().ApplyUnits(Millimetre, Degree);
    Attach(DimensionAngle);
    value->setText("180");
    View().ActivatePage(OptionsPage);
    Gui::Settle();
    Gui::ChooseRow(*View().GetOptionsPage().GetDlgItem<QComboBox>(1341), 1);
    EXPECT_EQ(Standard().AngularUnit, Radian);
    EXPECT_EQ(Standard().Unit, Millimetre);
    EXPECT_NEAR(value->text().toDouble(), 3.14159265, 1e-6);
    EXPECT_EQ(label->text(), LoadString(1636));
    EXPECT_EQ(Setting("AngularUnitSetting"), Radian);
}

TEST_F(ViewUnits, TheSameUnitOnceMoreChangesNothing) {
    Send(AddReferences);
    View().ApplyUnits(Inch, Degree);
    Attach(DimensionLength);
    value->setText("0.3");
    ChooseLength(LoadString(1629));
    EXPECT_EQ(value->text(), "0.3");
}

TEST_F(ViewUnits, UnitsFromOutsideKeepTheOldAngleForNewStandards) {
    View().ApplyUnits(Inch, Degree);
    View().ApplyUnits(Metre, Radian);
    EXPECT_EQ(Standard().Unit, Metre);
    EXPECT_EQ(Standard().AngularUnit, Radian);
    EXPECT_EQ(Setting("UnitSettings"), Metre);
    EXPECT_EQ(Setting("AngularUnitSetting"), Degree);
    EXPECT_EQ(View().GetAngleUnitName(), LoadString(1636));
}

TEST_F(ViewUnits, RebuildingSetsLabelsAndLeavesValues) {
    Send(AddReferences);
    Attach(DimensionLength);
    Standard().Unit = Inch;
    View().RebuildDisplay();
    EXPECT_EQ(label->text(), "in");
    EXPECT_EQ(value->text(), "1");
    Document().GetUnitSettings().clear();
    Attach(DimensionAngle);
    Standard().AngularUnit = Radian;
    View().RebuildDisplay();
    EXPECT_EQ(label->text(), LoadString(1636));
}

TEST_F(ViewUnits, AUnitThatIsNotOfferedIsKept) {
    EXPECT_TRUE(Standard().LoadFromXmlText("<Standard Unit=\"5\" AngularUnit=\"0\" Version=\"2026\"/>"));
    View().RebuildDisplay();
    View().ActivatePage(OptionsPage);
    EXPECT_EQ(View().GetOptionsPage().GetDlgItem<QComboBox>(1280)->currentIndex(), -1);
    EXPECT_EQ(Standard().Unit, 5) << "feet and inches";
}

TEST_F(ViewUnits, AUnitThatIsNotOfferedStaysInTheFile) {
    const TestFolder folder;
    folder.Put("a.kvstd", "<Standard Unit=\"5\" AngularUnit=\"0\" Version=\"2026\"><Check Type=\"107\"/>"
                          "</Standard>");
    ASSERT_NE(app.OpenDocumentFile(folder.Path("a.kvstd")), nullptr);
    View().ActivatePage(OptionsPage);
    View().ActivatePage(ChecksPage);
    EXPECT_TRUE(Send(Command::Save));
    QFile saved(Document().GetWorkingFile());
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_TRUE(saved.readAll().contains(" Unit=\"5\" "));
}
