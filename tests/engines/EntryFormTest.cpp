#include "engines/EntryForm.h"
#include "platform/LanguageLibrary.h"

#include <gtest/gtest.h>

TEST(EntryForm, FollowsTheOperatorsText) {
    EXPECT_EQ(FormOf(LoadString(1657)), EntryForm::Range);
    EXPECT_EQ(FormOf(LoadString(1658)), EntryForm::List);
    EXPECT_EQ(FormOf(LoadString(1659)), EntryForm::List);
    for (const char* single : {"<", ">", "<=", ">=", "=", "!="})
        EXPECT_EQ(FormOf(single), EntryForm::Single) << single;
}

TEST(EntryForm, ComparesExactly) {
    for (const CString& text :
         {LoadString(1657).toUpper(), LoadString(1632), CString("=="), CString(" <"), CString()})
        EXPECT_EQ(FormOf(text), EntryForm::Unknown) << text.toStdString();
}
