// What the panes of units, precision, alignment and the like have in common.
#include "ValueFillings.h"
#include "ValueRoom.h"

#include "engines/UnitConvertor.h"
#include "support/GuiTool.h"
#include "support/Language.h"

#include <algorithm>
#include <cmath>

namespace {

// What a user would call the control by, beside its label.
CString NameOf(const QWidget& control) {
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    const CString name = control.accessibleName();
    const CString text = name.isEmpty() && button ? button->text() : name;
    return text + u'/' + control.accessibleDescription();
}

} // namespace

TEST(ValuePanes, EachHasItsCaptionPictureAndHelp) {
    ExpectPanes({{108, 1147, 1662, 1004},
                 {405, 1164, 1689, 1204},
                 {409, 1258, 2273, 1208},
                 {408, 1259, 2272, 1207},
                 {314, 1407, 1759, 1308},
                 {123, 1408, 139, 1019},
                 {312, 1265, 1743, 1306}});
}

TEST(ValuePanes, EveryInputHasANameOfItsOwn) {
    PaneRoom room;
    room.Show();
    for (const MQC_CheckType_e type : ValueFillings::Types) {
        CExtDialog& pane = room.Add(type);
        std::set<CString> names;
        for (const auto& [number, control] : pane.Controls().asKeyValueRange()) {
            if (number < 3 || number >= CExtDialog::CaptionControl || qobject_cast<QLabel*>(control))
                continue;
            EXPECT_NE(NameOf(*control), "/") << type << ' ' << number;
            EXPECT_TRUE(names.insert(NameOf(*control)).second) << type << ' ' << number;
        }
    }
}

TEST(ValuePanes, KeysOfTheLabelsDifferInEachLanguage) {
    for (const char* name : {"English", "German"}) {
        const Language language(name);
        CString menus;
        for (const unsigned menu : {2107u, 2108u, 2109u, 2110u, 2059u})
            menus += LoadString(menu)[LoadString(menu).indexOf(u'&') + 1].toLower();
        PaneRoom room;
        room.Show();
        for (const MQC_CheckType_e type : ValueFillings::Types) {
            const CExtDialog& pane = room.Add(type);
            CString keys = menus;
            const auto note = [&keys](const CString& text) {
                if (const qsizetype mark = text.indexOf(u'&'); mark >= 0 && mark + 1 < text.size())
                    keys += text[mark + 1].toLower();
            };
            for (const auto* label : pane.findChildren<QLabel*>())
                note(label->text());
            for (const auto* button : pane.findChildren<QAbstractButton*>())
                note(button->text());
            CString different = keys;
            std::sort(different.begin(), different.end());
            different.erase(std::unique(different.begin(), different.end()), different.end());
            EXPECT_EQ(keys.size(), different.size()) << name << ' ' << type << ' ' << keys.toStdString();
        }
    }
}

TEST(ValuePanes, ALabelStandsBeforeItsControl) {
    PaneRoom room;
    room.Show();
    for (const MQC_CheckType_e type : ValueFillings::Types)
        for (const auto* label : room.Add(type).findChildren<QLabel*>())
            EXPECT_TRUE(!label->text().contains(u'&') || label->buddy()) << label->text().toStdString();
}

TEST(ValuePanes, EveryRowOfAListIsReachedAndWhole) {
    for (const char* name : {"English", "German"}) {
        const Language language(name);
        for (const int width : {740, 1100}) {
            PaneRoom room;
            room.Show();
            room.GetChecksPage().resize(width, 1500);
            for (auto* list : room.Add(108).findChildren<CChoiceList*>()) {
                for (int row = 0; row < list->count(); ++row) {
                    QListWidgetItem* const item = list->item(row);
                    list->scrollToItem(item);
                    const QRect place = list->visualItemRect(item);
                    EXPECT_TRUE(list->viewport()->rect().contains(place)) << item->text().toStdString();
                    EXPECT_GT(place.width(), list->fontMetrics().horizontalAdvance(item->text()))
                        << item->text().toStdString();
                }
            }
        }
    }
}

namespace {

// All lengths of the live checks, in a steady order.
std::vector<double> LengthsOf(const CStandard& standard) {
    std::vector<double> lengths;
    for (const MQC_CheckType_e type : {102, 109, 202, 314, 403, 409}) {
        CCheck* check = nullptr;
        standard.FindLiveByType(type, check);
        for (const CParameterEntry* entry : check->Parameters)
            if (entry->Parameter->ParameterType == 1 && entry->DataType == DataDouble)
                for (const double value : static_cast<CParameter<double>&>(*entry->Parameter).Values)
                    lengths.push_back(value);
    }
    return lengths;
}

// The relative error of rounding to ten decimals, some times over.
void ExpectNear(double value, double wanted) {
    EXPECT_NEAR(value, wanted, std::max(1e-9 * std::abs(wanted), 1e-9)) << wanted;
}

} // namespace

TEST(ValuePanes, LengthsFollowAllUnitsAndComeBack) {
    const Messages messages;
    GuiTool tool({1360, 860});
    tool.View().ApplyUnits(0, 0);
    for (const PageCheckRow& row : PageChecks())
        tool.Page().AddCheck(row.type, nullptr);
    Gui::Settle();
    CCheck* live = nullptr;
    for (const auto& [type, ids] :
         std::vector<std::pair<int, std::vector<unsigned>>>{{102, {1552, 1553, 1554}},
                                                            {109, {1704, 1705}},
                                                            {202, {1704}},
                                                            {403, {1705}},
                                                            {314, {2293, 2294}},
                                                            {409, {2307, 2308}}}) {
        tool.Standard().FindLiveByType(type, live);
        ASSERT_TRUE(live) << type;
        auto check = CStandard::CloneCheck(*live);
        double value = 0.5;
        for (const unsigned id : ids)
            Require<double>(check->GetDoubleParameter(id), OpEqual, {value *= 25.4});
        if (type == 409) {
            check->GetLongParameter(2314)->ClearValues();
            Require<long>(check->GetLongParameter(2314), OpOneOf, {11, 12, 10});
        }
        tool.Page().GetPane(type, false)->LoadCheck(*check);
        tool.Page().GetPane(type, false)->OnParameterChanged();
    }
    const std::vector<double> start = LengthsOf(tool.Standard());
    ASSERT_GE(start.size(), 11u);
    int unit = 0;
    for (const int next : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0}) {
        const std::vector<double> before = LengthsOf(tool.Standard());
        tool.View().ApplyUnits(next, 0);
        Gui::Settle();
        const std::vector<double> after = LengthsOf(tool.Standard());
        ASSERT_EQ(after.size(), start.size());
        for (std::size_t i = 0; i < after.size(); ++i)
            ExpectNear(after[i],
                       CUnitConvertor().Convert(before[i], DimensionLength, static_cast<unsigned long>(unit),
                                                static_cast<unsigned long>(next)));
        const PaneHand gaps(*tool.Page().GetPane(314, false));
        ExpectNear(gaps.Field(1285).text().toDouble(), after[after.size() - 5]);
        unit = next;
    }
    const std::vector<double> end = LengthsOf(tool.Standard());
    for (std::size_t i = 0; i < end.size(); ++i)
        ExpectNear(end[i], start[i]);
    // A change in a pane now writes what its controls show: the same figures, in the told rounding.
    for (const MQC_CheckType_e type : {102, 109, 202, 314, 403, 409})
        tool.Page().GetPane(type, false)->OnParameterChanged();
    const std::vector<double> written = LengthsOf(tool.Standard());
    ASSERT_EQ(written.size(), start.size());
    for (std::size_t i = 0; i < written.size(); ++i)
        EXPECT_NEAR(written[i], start[i], 1e-6 * std::max(1.0, start[i]));
}
