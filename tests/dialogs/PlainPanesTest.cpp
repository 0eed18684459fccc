// Panes of checks that are on or off, and what the templates of all panes have in common.
#include "support/Language.h"
#include "support/PaneRoom.h"

#include "dialogs/PlainPanes.h"
#include "dialogs/StandardCheckDlg.h"
#include "editing/CellEdit.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <set>

namespace {

constexpr MQC_CheckType_e PlainTypes[] = {107, 118, 203, 301, 307, 309, 313, 401, 406,
                                          407, 602, 606, 701, 702, 703, 704, 705};

bool IsNumber(const CString& text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

bool IsInput(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) &&
           (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
            qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget));
}

CString TextOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    return {};
}

std::string Place(const CExtDialog& pane, const QWidget& widget) {
    return (pane.Caption + " / " + widget.metaObject()->className() + ' ' + widget.objectName())
        .toStdString();
}

class AllPanes : public testing::TestWithParam<const char*> {};

} // namespace

TEST_P(AllPanes, EveryRowOfTheCatalogueHasAPaneWithAllItsTexts) {
    const Language language(GetParam());
    PaneRoom room;
    room.Show();
    for (const PageCheckRow& row : PageChecks()) {
        CExtDialog* pane = room.GetChecksPage().GetPane(row.type, true);
        ASSERT_TRUE(pane && pane->HasWindow()) << row.dialogClass;
        EXPECT_FALSE(pane->Caption.isEmpty()) << row.dialogClass;
        EXPECT_FALSE(LoadImageSource(ImageType::Icon, pane->IconID).isEmpty()) << row.dialogClass;
        // All of one width, for none may be cut where another was made first.
        EXPECT_EQ(pane->GetTemplateWidth(), 740) << row.dialogClass;
        for (const QWidget* widget : pane->findChildren<QWidget*>()) {
            EXPECT_FALSE(IsNumber(TextOf(*widget))) << Place(*pane, *widget);
            EXPECT_FALSE(IsNumber(widget->toolTip())) << Place(*pane, *widget);
            if (!IsInput(*widget))
                continue;
            EXPECT_FALSE(widget->accessibleName().isEmpty() && TextOf(*widget).isEmpty())
                << Place(*pane, *widget);
            EXPECT_FALSE(IsNumber(widget->accessibleName())) << Place(*pane, *widget);
        }
        EXPECT_TRUE(pane->GetDlgItem<QComboBox>(1249)) << row.dialogClass;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, AllPanes, testing::Values("English", "German"));

TEST(PlainPanes, ClassesFollowTheCatalogue) {
    PaneRoom room;
    for (const PageCheckRow& row : PageChecks()) {
        const CString made = room.Pane(row.type)->metaObject()->className();
        if (made != "CKeepingCheckDlg") {
            EXPECT_EQ(made, row.dialogClass);
        }
    }
    for (const MQC_CheckType_e type : PlainTypes)
        EXPECT_TRUE(dynamic_cast<CPlainCheckDlg*>(room.Pane(type))) << type;
    EXPECT_TRUE(dynamic_cast<CStandardCheckDlg*>(room.Pane(101)));
    EXPECT_EQ(MakePane(room, PageCheckRow{4711, 0, 0, 0, 0, "CNobodysDlg"}), nullptr);
}

TEST(PlainPanes, EachHasItsCaptionIconAndTopic) {
    ExpectPanes(
        {{107, 1148, 1593, 1005}, {118, 1250, 1949, 1017}, {203, 1249, 1691, 1104}, {301, 1160, 1595, 1103},
         {307, 1168, 1587, 1303}, {309, 1143, 1597, 1305}, {313, 1401, 1958, 1307}, {401, 1163, 1589, 1201},
         {406, 1165, 1591, 1205}, {407, 1260, 2271, 1206}, {602, 1174, 1601, 1502}, {606, 1256, 1736, 1505},
         {701, 1178, 1600, 1601}, {702, 1177, 1599, 1602}, {703, 1251, 1995, 1603}, {704, 1257, 1738, 1604},
         {705, 1441, 2500, 1605}, {101, 1144, 1581, 1001}, {105, 1146, 1723, 1003}, {310, 1166, 1925, 1304}});
}

TEST(PlainPanes, CriticalityReachesTheCheck) {
    PaneRoom room;
    room.Show();
    for (const MQC_CheckType_e type : PlainTypes) {
        CExtDialog& pane = room.Add(type);
        Gui::ChooseRow(*pane.GetDlgItem<QWidget>(1249), 3);
        ASSERT_TRUE(room.Live(type)) << type;
        EXPECT_EQ(room.Live(type)->Criticality, 3u) << type;
        for (const CParameterEntry* entry : room.Live(type)->Parameters)
            VisitParameter(*entry, [](const auto& parameter) { EXPECT_EQ(parameter.Values.Count, 0); });
    }
}

TEST(PlainPanes, WithoutALiveCheckNothingChanges) {
    PaneRoom room;
    room.Show();
    CExtDialog& pane = room.Add(107);
    room.GetChecksPage().RemoveCheck(107, true);
    pane.show();
    Gui::ChooseRow(*pane.GetDlgItem<QWidget>(1249), 0);
    EXPECT_EQ(room.Live(107), nullptr);
    CCheck* deleted = nullptr;
    room.standard.FindAnyByType(107, deleted);
    ASSERT_TRUE(deleted);
    EXPECT_EQ(deleted->Criticality, 1u);
}

TEST(PlainPanes, NothingIsPendingInThem) {
    PaneRoom room;
    room.Show();
    CExtDialog& pane = room.Add(203);
    const int before = room.standard.GetHistoryIndex();
    pane.Criticality = 2;
    pane.OnCriticalityChanged();
    EXPECT_EQ(room.Live(203)->Criticality, 1u);
    EXPECT_EQ(room.standard.GetHistoryIndex(), before);
}

TEST(PlainPanes, TheSameCriticalityAgainIsNoStep) {
    PaneRoom room;
    room.Show();
    CExtDialog& pane = room.Add(307);
    Gui::ChooseRow(*pane.GetDlgItem<QWidget>(1249), 2);
    const int before = room.standard.GetHistoryIndex();
    auto& combo = *pane.GetDlgItem<QComboBox>(1249);
    Q_EMIT combo.activated(2);
    EXPECT_EQ(room.standard.GetHistoryIndex(), before);
}

TEST(PlainPanes, HiddenComponentsHaveNoHelp) {
    PaneRoom room;
    room.Show();
    CHiddenCompDlg pane(room);
    ASSERT_TRUE(pane.Create(nullptr));
    EXPECT_EQ(pane.Caption, LoadString(1733));
    pane.ShowHelpTopic();
    Gui::Show(pane);
    Gui::Key(pane, Qt::Key_F1);
    EXPECT_TRUE(room.helpAsked.empty());
}

TEST(PlainPanes, TemplatesOfTheCatalogueAreThoseOfTheirClasses) {
    PaneRoom room;
    std::set<CString> texts;
    for (const MQC_CheckType_e type : PlainTypes) {
        CExtDialog* pane = room.GetChecksPage().GetPane(type, true);
        texts.insert(pane->findChild<QLabel*>("text")->text());
    }
    EXPECT_EQ(texts.size(), std::size(PlainTypes)); // each tells what it alone requires
}
