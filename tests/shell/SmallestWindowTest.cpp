#include "model/Catalogue.h"
#include "platform/LanguageLibrary.h"
#include "platform/Settings.h"
#include "shell/CatalogueButton.h"
#include "shell/TabToolbar.h"
#include "support/GuiTool.h"

#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace {

constexpr QSize Smallest(1024, 700);

void SetLanguage(const char* name) {
    CCommonRegSetting settings;
    settings.SetString("CurrentLanguage", name);
    settings.WriteAll();
}

class SmallestWindow : public testing::TestWithParam<const char*> {
protected:
    SmallestWindow() { SetLanguage(GetParam()); }
    ~SmallestWindow() override {
        SetLanguage("English");
        LoadLanguage(RULEWARD_BIN_FOLDER, "English");
    }
};

} // namespace

TEST_P(SmallestWindow, ShowsEveryPaneWhole) {
    GuiTool tool(Smallest);
    for (const PageCheckRow& row : PageChecks())
        tool.Page().AddCheck(row.type, nullptr);
    if (!tool.View().IsShowingAll()) {
        ASSERT_TRUE(tool.Do(Command::ShowAllChecks));
    }
    EXPECT_EQ(tool.Frame().width(), Smallest.width());
    EXPECT_FALSE(tool.Page().horizontalScrollBar()->isVisible());
    for (const PageCheckRow& row : PageChecks()) {
        CExtDialog* pane = tool.Pane(row.type);
        ASSERT_NE(pane, nullptr) << row.dialogClass;
        for (const QLabel* label : pane->findChildren<QLabel*>())
            EXPECT_TRUE(label->isHidden() || label->wordWrap() || label->width() >= label->sizeHint().width())
                << row.dialogClass << ": " << label->text().toStdString();
        const auto* criticality = pane->GetDlgItem<QComboBox>(1249);
        ASSERT_NE(criticality, nullptr) << row.dialogClass;
        EXPECT_LE(criticality->mapTo(pane, QPoint(criticality->width(), 0)).x(), pane->width())
            << row.dialogClass;
    }
}

TEST_P(SmallestWindow, ShowsEveryNameOfTheCatalogueWhole) {
    GuiTool tool(Smallest);
    for (unsigned group = 0; group < CheckGroups().size(); ++group) {
        tool.Frame().GetTabToolbar().FocusGroup(group);
        for (const CatalogueButton* button : tool.Frame().findChildren<CatalogueButton*>()) {
            const int text = button->fontMetrics().horizontalAdvance(button->text());
            EXPECT_GE(button->width(), CatalogueButton::TextAt + text) << button->text().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, SmallestWindow, testing::Values("English", "German"));
