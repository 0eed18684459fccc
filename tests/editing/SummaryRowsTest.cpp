// The rows of the summary: what stands in them, and over which rows a criticality stands.
#include "editing/SummaryRows.h"

#include "editing/CheckValues.h"
#include "model/CheckTypes.h"
#include "model/Standard.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>

namespace {

constexpr int Millimeters = 0;
constexpr int AngleDegrees = 0;

// A summary that is filled with checks one by one.
struct Summary : SummaryRows {
    Summary() : SummaryRows(Millimeters, AngleDegrees) {}

    // Adds a check that `fill` has filled.
    template <class Fill> Summary& Add(MQC_CheckType_e type, Fill&& fill) {
        const auto check = CStandard::MakeCheck(type);
        fill(*check);
        AddCheck(*check);
        return *this;
    }
    Summary& Add(MQC_CheckType_e type) {
        return Add(type, [](CCheck&) {});
    }

    // "parameter|value|correction" of each row.
    CStringArray Texts() const {
        CStringArray texts;
        for (const SummaryRow& row : Rows)
            texts.append(row.parameter + "|" + row.value.text + "|" + row.correction.text);
        return texts;
    }
};

// "first+rows" of each range.
CStringArray Ranges(const std::vector<SummaryRange>& ranges) {
    CStringArray texts;
    for (const SummaryRange& range : ranges)
        texts.append(CString("%1+%2").arg(range.first).arg(range.rows));
    return texts;
}

const CStringArray OneEmptyRow{"--|--|--"};

} // namespace

TEST(SummaryRows, ACheckWithNothingInForceIsOneRow) {
    Summary summary;
    summary.Add(109);
    EXPECT_EQ(summary.Texts(), OneEmptyRow);
    EXPECT_EQ(summary.Rows[0].name, LoadString(FindCheckType(109)->nameText));
    EXPECT_EQ(Ranges(summary.Criticalities), CStringArray{"1+1"});
}

TEST(SummaryRows, ATypeThatIsNotListedIsOneRow) {
    Summary summary;
    summary.Add(107, [](CCheck& check) { Set(check, 1936, OpEqual, {"anything"}); });
    EXPECT_EQ(summary.Texts(), OneEmptyRow);
}

TEST(SummaryRows, EveryParameterInForceIsARow) {
    Summary summary;
    summary.Add(109, [](CCheck& check) {
        Set(check, 1700, OpOneOf, {"Arial", "Verdana"}, "Arial");
        Set(check, 1704, OpBetween, {"2.5", "3.5"}, "3.5");
        Set(check, 1702, OpEqual, {"1"});
    });
    EXPECT_EQ(summary.Texts(), (CStringArray{"Font Name|Arial,Verdana|Arial", "Strikeout|Yes|--",
                                             "Text Height|between(2.5mm , 3.5mm)|3.5mm"}));
    EXPECT_EQ(Ranges(summary.Checks), CStringArray{"1+3"});
    EXPECT_EQ(Ranges(summary.Criticalities), CStringArray{"1+3"}) << "one for the whole check";
    for (const SummaryRow& row : summary.Rows)
        EXPECT_EQ(row.name, summary.Rows[0].name) << "each row can be clicked";
}

TEST(SummaryRows, RowsOfLaterChecksFollow) {
    Summary summary;
    summary.Add(107).Add(109, [](CCheck& check) {
        Set(check, 1700, OpOneOf, {"Arial"});
        Set(check, 1701, OpOneOf, {"1"});
    });
    summary.Add(701);
    EXPECT_EQ(Ranges(summary.Checks), (CStringArray{"1+1", "2+2", "4+1"}));
    EXPECT_EQ(Ranges(summary.Criticalities), (CStringArray{"1+1", "2+2", "4+1"}));
}

TEST(SummaryRows, OperatorsInFrontOfTheValues) {
    const auto valueOf = [](unsigned op, const CStringArray& values) {
        Summary summary;
        summary.Add(109, [&](CCheck& check) { Set(check, 1704, op, values); });
        return summary.Rows[0].value.text;
    };
    EXPECT_EQ(valueOf(OpEqual, {"2"}), "2mm");
    EXPECT_EQ(valueOf(OpOneOf, {"2", "3"}), "2mm , 3mm");
    EXPECT_EQ(valueOf(OpAtLeast, {"2"}), ">= 2mm");
    EXPECT_EQ(valueOf(OpNoneOf, {"2", "3"}), LoadString(1659) + " 2mm , 3mm");
    EXPECT_EQ(valueOf(OpBetween, {"2", "3"}), LoadString(1657) + "(2mm , 3mm)");
}

TEST(SummaryRows, UnitsAreThoseOfTheDocument) {
    SummaryRows inches(3, AngleDegrees);
    const auto check = CStandard::MakeCheck(109);
    Set(*check, 1704, OpEqual, {"2"}, "1");
    inches.AddCheck(*check);
    EXPECT_EQ(inches.Rows[0].value.text, "2in");
    EXPECT_EQ(inches.Rows[0].correction.text, "1in");
}

TEST(SummaryRows, OneImageIsShown) {
    Summary summary;
    summary.Add(102, [](CCheck& check) { Set(check, 1558, OpOneOf, {"1"}, "0"); });
    const SummaryRow& row = summary.Rows[0];
    EXPECT_TRUE(row.showsCodes);
    EXPECT_EQ(row.parameter, LoadString(1558));
    EXPECT_EQ(row.value.form, SummaryCell::Picture);
    EXPECT_EQ(row.value.number, 1123u);
    EXPECT_EQ(row.value.text, LoadString(1833)) << "for a screen reader";
    EXPECT_EQ(row.correction.form, SummaryCell::Picture);
    EXPECT_EQ(row.correction.number, 1124u);
}

TEST(SummaryRows, ThreeImagesAreCounted) {
    Summary summary;
    summary.Add(102, [](CCheck& check) { Set(check, 1558, OpOneOf, {"1", "2", "3"}); });
    EXPECT_EQ(summary.Rows[0].value.form, SummaryCell::Text);
    EXPECT_EQ(summary.Rows[0].value.text, "3 " + LoadString(1940));
    EXPECT_EQ(summary.Rows[0].correction.form, SummaryCell::Text);
    EXPECT_EQ(summary.Rows[0].correction.text, "--");
    EXPECT_TRUE(summary.Rows[0].showsCodes);
}

TEST(SummaryRows, ImagesWithoutAValueLeaveTheCellEmpty) {
    Summary summary;
    summary.Add(102, [](CCheck& check) { Set(check, 1558, OpOneOf, {}); });
    EXPECT_EQ(summary.Texts(), CStringArray{LoadString(1558) + "||--"});
}

TEST(SummaryRows, AColourFillsItsCell) {
    Summary summary;
    summary.Add(303, [](CCheck& layers) {
        Set(AddChild(layers), 1564, OpOneOf, {"255"}, "16711680");
        Set(AddChild(layers), 1564, OpOneOf, {"1", "2"});
    });
    ASSERT_EQ(summary.Rows.size(), 2u);
    EXPECT_EQ(summary.Rows[0].value.form, SummaryCell::Color);
    EXPECT_EQ(summary.Rows[0].value.number, 0x0000FFu);
    EXPECT_EQ(summary.Rows[0].value.text, "#ff0000") << "for a screen reader";
    EXPECT_EQ(summary.Rows[0].correction.form, SummaryCell::Color);
    EXPECT_EQ(summary.Rows[0].correction.number, 0xFF0000u);
    EXPECT_EQ(summary.Rows[1].value.text, "2 " + LoadString(1940));
    EXPECT_EQ(summary.Rows[1].correction.text, "--");
}

TEST(SummaryRows, CriticalityInWordsAndByItsIcon) {
    const unsigned icons[] = {1429, 1428, 1426, 1427, 1428};
    const unsigned texts[] = {2267, 2268, 2269, 2270, 2268};
    for (unsigned criticality = 0; criticality < 5; ++criticality) {
        Summary summary;
        summary.Add(107, [&](CCheck& check) { check.Criticality = criticality; });
        summary.Add(109, [&](CCheck& check) {
            check.Criticality = criticality;
            Set(check, 1704, OpEqual, {"1"});
        });
        for (const SummaryRow& row : summary.Rows) {
            EXPECT_EQ(row.icon, icons[criticality]);
            EXPECT_EQ(row.criticality, LoadString(texts[criticality]));
        }
    }
}

TEST(SummaryRows, CustomChecksKeepACriticalityEach) {
    Summary summary;
    summary.Add(107).Add(122, [](CCheck& container) {
        container.Criticality = 1;
        for (const unsigned criticality : {3u, 0u}) {
            CCheck& child = AddChild(container);
            child.Criticality = criticality;
            Set(child, 135, OpEqual, {"Name"});
            Set(child, 132, OpEqual, {"Macro"});
        }
        AddChild(container); // says nothing
        Set(AddChild(container), 135, OpEqual, {"Last"});
    });
    EXPECT_EQ(summary.Rows.size(), 6u);
    EXPECT_EQ(Ranges(summary.Checks), (CStringArray{"1+1", "2+5"}));
    EXPECT_EQ(Ranges(summary.Criticalities), (CStringArray{"1+1", "2+2", "4+2", "6+1"}));
    EXPECT_EQ(summary.Rows[1].icon, 1427u);
    EXPECT_EQ(summary.Rows[3].icon, 1429u);
}

TEST(SummaryRows, OtherContainersHaveOneCriticality) {
    Summary summary;
    summary.Add(105, [](CCheck& container) {
        container.Criticality = 3;
        for (const char* name : {"Weight", "Finish"})
            Set(AddChild(container), 1724, OpEqual, {name});
    });
    EXPECT_EQ(Ranges(summary.Criticalities), CStringArray{"1+2"});
    EXPECT_EQ(summary.Rows[1].icon, 1427u) << "not that of the entry";
}

TEST(SummaryRows, EmptyContainersAreOneRow) {
    for (const int type : {105, 122, 127, 303, 310}) {
        Summary summary;
        summary.Add(type);
        EXPECT_EQ(summary.Texts(), OneEmptyRow) << type;
    }
}

TEST(SummaryRows, AFileLocationIsOneRow) {
    Summary summary;
    summary.Add(127, [](CCheck& container) {
        CCheck& child = AddChild(container);
        Set(child, 2473, OpEqual, {"2"}, "2");
        Set(child, 2474, OpOneOf, {"S:\\a\\b\\c\\d\\Formats", "D:\\Local"});
    });
    EXPECT_EQ(summary.Texts(), CStringArray{"Sheet Formats|Formats (S:\\a\\...\\d)Local (D:)|Sheet Formats"});
}

TEST(SummaryRows, DraftingStandardsInWordsWithTheirCorrection) {
    Summary summary;
    summary.Add(101, [](CCheck& check) { Set(check, 1578, OpOneOf, {"1", "2"}, "2"); });
    EXPECT_EQ(summary.Texts(), CStringArray{"Drafting Standard|ANSI,ISO|ISO"});
}

TEST(SummaryRows, ADraftingStandardOfOnesOwnAsCorrection) {
    Summary summary;
    summary.Add(101, [](CCheck& check) {
        Set(check, 1578, OpOneOf, {"8"}, "8");
        Set(check, 0, OpOneOf, {"House rules"});
    });
    EXPECT_EQ(summary.Texts(), CStringArray{"Drafting Standard|House rules|House rules"});
}

TEST(SummaryRows, DraftingStandardsWithoutAChoiceSayNothing) {
    Summary summary;
    summary.Add(101);
    EXPECT_EQ(summary.Texts(), OneEmptyRow);
    Summary codesOfNoText;
    codesOfNoText.Add(101, [](CCheck& check) { Set(check, 1578, OpOneOf, {"9"}); });
    EXPECT_EQ(codesOfNoText.Texts(), OneEmptyRow);
}

TEST(SummaryRows, TheLaterOfTwoEqualNamesIsFound) {
    Summary summary;
    summary.Add(109, [](CCheck& check) { check.Name = "Same"; });
    summary.Add(110, [](CCheck& check) { check.Name = "Same"; });
    EXPECT_EQ(summary.NameToType.value("Same"), 110);
    EXPECT_EQ(Ranges(summary.Checks), (CStringArray{"1+1", "2+1"})) << "they stay apart";
}

TEST(SummaryRows, TheHeightOfATextFollowsTheCorrectionColumn) {
    constexpr int Dpi = 96;
    constexpr int Width = 1500; // 100 pixels
    EXPECT_EQ(RowHeightFor(0, Width, Dpi), 350);
    EXPECT_EQ(RowHeightFor(99, Width, Dpi), 350);
    EXPECT_EQ(RowHeightFor(100, Width, Dpi), 215) << "exactly one line is less high than a shorter text";
    EXPECT_EQ(RowHeightFor(101, Width, Dpi), 430);
    EXPECT_EQ(RowHeightFor(200, Width, Dpi), 430);
    EXPECT_EQ(RowHeightFor(201, Width, Dpi), 645);
    EXPECT_EQ(RowHeightFor(201, Width, 2 * Dpi), 430);
}

TEST(SummaryRows, TheHeightOfAColumnWithoutWidth) {
    EXPECT_EQ(RowHeightFor(100, 0, 96), 350);
    EXPECT_GT(RowHeightFor(2'000'000'000, 15, 96), 0);
}

TEST(SummaryRows, TheHighestTextSetsTheHeight) {
    const auto measure = [](const CString& text) { return static_cast<int>(10 * text.size()); };
    SummaryRow row;
    row.parameter = row.value.text = row.correction.text = "--";
    row.name = "A name that is very long";
    EXPECT_EQ(RowHeightFor(MeasureRow(row, measure), 1500, 96), 645) << "of 240 pixels";
    row.showsCodes = true;
    EXPECT_EQ(RowHeightFor(MeasureRow(row, measure), 1500, 96), 350);
}
