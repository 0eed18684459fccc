// What panes have written comes back into the panes of another run of the tool.
#include "dialogs/KeepingCheckDlg.h"
#include "support/GuiTool.h"
#include "support/PaneRoom.h"
#include "support/RandomStandard.h"
#include "support/Seeds.h"
#include "support/StandardText.h"
#include "support/TestFolder.h"
#include "support/WrittenCheck.h"

#include "model/Catalogue.h"

namespace {

constexpr unsigned Rounds = 8; // 200 in a campaign
constexpr int Millimeters = 0;

// Panes that show all of their check.
std::vector<MQC_CheckType_e> TypesOf(PaneRoom& room) {
    std::vector<MQC_CheckType_e> types;
    for (const PageCheckRow& row : PageChecks())
        if (!dynamic_cast<CKeepingCheckDlg*>(&room.Add(row.type)))
            types.push_back(row.type);
    return types;
}

// What a pane makes of any check, which is then one that it can express.
std::unique_ptr<CCheck> Expressible(CExtDialog& pane, const CCheck& any) {
    std::unique_ptr<CCheck> made;
    for (int pass = 0; pass < 2; ++pass) { // the first may bring a form into order
        pane.LoadCheck(made ? *made : any);
        made = CStandard::MakeCheck(pane.CheckType);
        pane.FillCheck(*made);
    }
    return made;
}

// As a file gives it back: where nothing is required nothing is kept, and a missing correction is made.
std::string StoredText(const CCheck& check) {
    CStandard read;
    ReadText(CString::fromStdString(TextOfCheck(check)), read);
    return LiveTextOf(read).toStdString();
}

} // namespace

TEST(FreshTool, PanesShowWhatOthersHaveWritten) {
    PaneRoom room;
    room.standard.Unit = Millimeters;
    room.Show();
    const std::vector<MQC_CheckType_e> types = TypesOf(room);
    const TestFolder folder;
    for (unsigned round = 0; round < SeedCount(Rounds); ++round) {
        RandomStandard random(FirstSeed() + round, RandomStandard::Taste::Fitting);
        CStandard standard;
        standard.Unit = Millimeters;
        for (const MQC_CheckType_e type : types) {
            unsigned sequence = 0;
            standard.InsertCheck(Expressible(*room.Pane(type), *random.Check(type)), sequence);
        }
        ASSERT_TRUE(standard.SaveToFile(folder.Path("Fillings.kvstd")));
        GuiTool tool;
        ASSERT_TRUE(tool.App().OpenDocumentFile(folder.Path("Fillings.kvstd")));
        for (const MQC_CheckType_e type : types) {
            CCheck* written = nullptr;
            standard.FindLiveByType(type, written);
            const std::unique_ptr<CCheck> shown = CStandard::MakeCheck(type);
            tool.Page().GetPane(type, false)->FillCheck(*shown);
            EXPECT_EQ(StoredText(*shown), StoredText(*written)) << "check " << type << ", round " << round;
        }
    }
}
