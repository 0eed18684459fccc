// Two runs of the tool side by side, each in a process of its own, and one standard.
#include "files/StandardFile.h"
#include "platform/LanguageLibrary.h"
#include "platform/widgets/MessageBoxes.h"
#include "support/Gui.h"
#include "support/GuiTool.h"
#include "support/GuiWalkProcess.h"
#include "support/TestFolder.h"

#include <QMessageBox>
#include <gtest/gtest.h>

namespace {

constexpr unsigned LockedQuestion = 1588;

class TwoRuns : public ::testing::Test {
protected:
    TwoRuns() : path(folder.Path("held.kvstd")) {
        CStandard().SaveToFile(path);
        first = std::make_unique<WalkProcess>("--hold", path);
        CStringArray told;
        EXPECT_TRUE(first->WaitUntilReady(told));
        EXPECT_EQ(told.size(), 1);
        second = std::make_unique<GuiTool>();
    }

    // Opens the standard in the second run, which asks and is answered.
    bool OpenAndAnswer(const CString& button) {
        CString question;
        const Gui::Answer choose([this](QWidget& dialog) { Gui::ChooseFile(dialog, path); });
        const Gui::Answer answer([&](QWidget& box) {
            question = dynamic_cast<QMessageBox&>(box).text();
            Gui::PressButton(box, button);
        });
        second->Do(Command::Open);
        EXPECT_EQ(question, LoadString(LockedQuestion).section('\n', 0, 0));
        return second->Document().GetUserPath() == path;
    }

    TestFolder folder;
    CString path;
    MessageScope messages{ShowMessageBox};
    std::unique_ptr<WalkProcess> first;
    std::unique_ptr<GuiTool> second;
};

} // namespace

TEST_F(TwoRuns, YesOpensTheHeldStandardToReadOnly) {
    EXPECT_TRUE(OpenAndAnswer("&Yes"));
    EXPECT_TRUE(second->Document().IsReadOnly());
    EXPECT_FALSE(second->Document().HoldsUserFileLock());
}

TEST_F(TwoRuns, NoLeavesTheHeldStandardClosed) {
    EXPECT_FALSE(OpenAndAnswer("&No"));
    EXPECT_EQ(second->App().GetDocuments().size(), 1u);
}

TEST_F(TwoRuns, AKilledRunHoldsNothing) {
    first->Kill();
    EXPECT_TRUE(second->Open(path)); // no question
    EXPECT_FALSE(second->Document().IsReadOnly());
    EXPECT_TRUE(second->Document().HoldsUserFileLock());
}
