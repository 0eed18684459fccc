// Plays the tool's main job without a screen, as a user would do it with mouse and keys, and leaves what came
// of it to be looked at: the standard, its report and a picture of each step. Fails where the standard that
// is opened again is not what was entered.
#include "platform/widgets/Look.h"
#include "platform/widgets/MessageBoxes.h"
#include "shell/PrintStandard.h"
#include "support/Gui.h"
#include "support/GuiTool.h"
#include "support/StandardText.h"
#include "tour/Steps.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

namespace {

constexpr MQC_CheckType_e DraftingStandard = 101, NoteFont = 109, DimensionArrows = 402, Spelling = 203,
                          OverlappingViews = 307, MateErrors = 602;
constexpr unsigned DraftingStandards = 1578, FontHeight = 1704; // parameters
constexpr int IsoBox = 1007, DinBox = 1009;
constexpr int FontList = 1136, HeightComparison = 1001, HeightField = 1002, ClosedArrowBox = 1110;
constexpr int MillimeterRow = 3, InchRow = 8;
constexpr int EqualRow = 1;
constexpr int Low = 0, High = 2, Critical = 3;
constexpr int LengthCombo = 1280, AddButton = 1008, OkButton = 1;

class Tour {
public:
    Tour(const CString& outFolder, const CString& samplesFolder)
        : m_out(outFolder), m_samples(samplesFolder), m_steps(outFolder) {}

    bool Play() {
        Start();
        ChooseUnits();
        AddChecks();
        EnterValues();
        UndoAndRedo();
        ConvertUnits();
        Save();
        OpenAgain();
        MergeWithSample();
        ShowSummary();
        PrintReport();
        return m_steps.AllHeld();
    }

private:
    CString Out(const CString& name) const { return QDir(m_out).filePath(name); }
    void Shoot(const CString& name, const CString& says) { m_steps.Shoot(m_tool.Picture(), name, says); }

    void Start() {
        m_steps.Expect(m_tool.Standard().CountLiveChecks() == 0, "the tool starts with an empty standard");
        Shoot("start", "A new, empty standard; the catalogue of checks at the left.");
    }

    void ChooseUnits() {
        ChooseLengthUnit(InchRow);
        Shoot("units", "The options: the standard is to be in inches.");
        m_tool.ShowPage(ChecksPage);
    }

    void ChooseLengthUnit(int row) {
        m_tool.ShowPage(OptionsPage);
        Gui::ChooseRow(*Gui::FindNumber(m_tool.View(), LengthCombo), row);
    }

    void AddChecks() {
        m_tool.PressCheck(DraftingStandard);
        AddFont();
        for (const MQC_CheckType_e type : {DimensionArrows, Spelling, OverlappingViews, MateErrors})
            m_tool.PressCheck(type);
        m_tool.Do(Command::ShowAllChecks);
        m_steps.Expect(m_tool.Standard().CountLiveChecks() == 6, "six checks of five groups are added");
        m_tool.Page().ShowCheck(DraftingStandard);
        Shoot("checks-added", "Checks of five groups, each with its pane.");
    }

    // Fonts are asked for in a dialog, for several checks may have one in common.
    void AddFont() {
        const Gui::Answer font([this](QWidget& dialog) {
            auto& fonts = dynamic_cast<QListWidget&>(*Gui::FindNumber(dialog, FontList));
            Gui::ClickAt(*fonts.viewport(), fonts.visualItemRect(fonts.item(0)).center());
            Gui::ChooseRow(*Gui::FindNumber(dialog, HeightComparison), EqualRow);
            Gui::Focus(*Gui::FindNumber(dialog, HeightField));
            Gui::Type(*Gui::FindNumber(dialog, HeightField), "0.125");
            m_steps.Shoot(dialog.grab().toImage(), "font",
                          "A font check is added: a face, and letters 0.125 inches high.");
            Gui::Click(*Gui::FindNumber(dialog, OkButton));
        });
        m_tool.PressCheck(NoteFont);
        m_steps.Expect(font.WasAnswered(), "the dialog for font checks comes");
    }

    void EnterValues() {
        Gui::Click(*m_tool.Control<QWidget>(DraftingStandard, IsoBox));
        Gui::Click(*m_tool.Control<QWidget>(DraftingStandard, DinBox));
        Gui::Click(*m_tool.Control<QWidget>(DimensionArrows, ClosedArrowBox));
        m_tool.SetCriticality(DraftingStandard, High);
        m_tool.SetCriticality(Spelling, Low);
        m_tool.SetCriticality(MateErrors, Critical);
        CCheck* check = nullptr;
        m_tool.Standard().FindLiveByType(DraftingStandard, check);
        const CParameter<long>* allowed = check ? check->GetLongParameter(DraftingStandards) : nullptr;
        m_steps.Expect(allowed && allowed->Operator == OpOneOf && allowed->Values.Count == 2,
                       "two drafting standards are allowed");
        m_tool.Page().ShowCheck(DraftingStandard);
        Shoot("values-entered", "Standards, letters and arrowheads are entered, each with its correction.");
    }

    void UndoAndRedo() {
        m_tool.Do(Command::Undo);
        m_steps.Expect(CriticalityOf(MateErrors) != Critical, "the last step is undone");
        Shoot("undone", "The last criticality is undone.");
        m_tool.Do(Command::Redo);
        m_steps.Expect(CriticalityOf(MateErrors) == Critical, "the step is done again");
    }

    CString Height() { return m_tool.Control<QLineEdit>(NoteFont, HeightField)->text(); }

    void ConvertUnits() {
        ChooseLengthUnit(MillimeterRow);
        m_tool.ShowPage(ChecksPage);
        m_steps.Expect(Height() == "3.175", "a height of 0.125 inches is 3.175 mm");
        m_tool.Page().ShowCheck(NoteFont);
        Shoot("units-converted", "The same standard in millimeters: every value is converted.");
    }

    void Save() {
        m_steps.Expect(m_tool.SaveAs(Out("Tour.kvstd")), "the standard is saved");
        m_entered = LiveTextOf(m_tool.Standard()); // with the header that saving has stamped
        m_steps.Expect(!m_tool.Document().IsModified(), "a saved standard is not modified");
        m_steps.Tell("Tour.kvstd", "The saved standard.");
        Shoot("saved", "Saved as Tour.kvstd; nothing is left to be saved.");
    }

    void OpenAgain() {
        m_steps.Expect(m_tool.Close(), "the document closes");
        m_steps.Expect(m_tool.Open(Out("Tour.kvstd")), "the standard opens again");
        m_steps.Expect(LiveTextOf(m_tool.Standard()) == m_entered,
                       "the standard that was opened again is what was entered");
        CCheck* font = nullptr;
        m_tool.Standard().FindLiveByType(NoteFont, font);
        const CParameter<double>* height = font ? font->GetDoubleParameter(FontHeight) : nullptr;
        m_steps.Expect(height && height->Values.Count == 1 && height->Correction == height->Values[0],
                       "the height's correction is converted with it");
        Shoot("opened-again", "Closed and opened again: all is as entered.");
    }

    void MergeWithSample() {
        const Gui::Answer merge([this](QWidget& dialog) { WorkMergeDialog(dialog); });
        m_tool.Do(Command::Merge);
        m_steps.Expect(QFile::exists(Out("Merged.kvstd")), "the merge is saved");
        m_steps.Tell("Merged.kvstd", "The merged standard.");
        m_steps.Expect(m_tool.Document().GetUserPath() == Out("Merged.kvstd"), "the merge is opened");
        m_steps.Expect(m_tool.Standard().CountLiveChecks() > 6, "the merge holds the checks of both");
        Shoot("merged", "The merge of both, opened as a document of its own.");
    }

    // Adds both files, the tour's own last so that its values win.
    void WorkMergeDialog(QWidget& dialog) {
        for (const CString& file : {m_samples + "/Metric drawings to ISO.kvstd", Out("Tour.kvstd")}) {
            const Gui::Answer choose([&file](QWidget& picker) { Gui::ChooseFile(picker, file); });
            Gui::Click(*Gui::FindNumber(dialog, AddButton));
        }
        m_steps.Shoot(dialog.grab().toImage(), "merge",
                      "The merge dialog with two standards; the later one wins.");
        const Gui::Answer target([this](QWidget& picker) { Gui::ChooseFile(picker, Out("Merged.kvstd")); });
        Gui::Click(*Gui::FindNumber(dialog, OkButton));
    }

    void ShowSummary() {
        m_tool.ShowPage(SummaryPage);
        Shoot("summary", "The summary: every requirement of the merged standard in one table.");
    }

    void PrintReport() {
        m_tool.Do(Command::PrintAtOnce);
        QWidget* window = nullptr;
        for (QWidget* candidate : QApplication::topLevelWidgets())
            if (candidate->inherits("ReportWindow") && candidate->isVisible())
                window = candidate;
        m_steps.Expect(window != nullptr, "the report is shown, as there is no printer");
        if (!window)
            return;
        m_steps.Shoot(window->grab().toImage(), "report", "The report, shown where there is no printer.");
        const Gui::Answer target([this](QWidget& picker) { Gui::ChooseFile(picker, Out("Report.pdf")); });
        Gui::Key(*window, Qt::Key_S, Qt::ControlModifier);
        for (int wait = 0; wait < 500 && !QFile::exists(Out("Report.pdf")); ++wait)
            QTest::qWait(20);
        m_steps.Expect(QFile::exists(Out("Report.pdf")), "the report is saved as PDF");
        m_steps.Tell("Report.pdf", "The same report on paper, saved from the window.");
        window->close();
        Gui::Settle();
    }

    unsigned CriticalityOf(MQC_CheckType_e type) {
        CCheck* check = nullptr;
        m_tool.Standard().FindLiveByType(type, check);
        return check ? check->Criticality : 99;
    }

    CString m_out;
    CString m_samples;
    TourSteps m_steps;
    GuiTool m_tool;
    CString m_entered;
};

// Without this the desktop's printers would be asked for, and the tour would end on paper.
class NoPrinter : public PrintAdapter {
public:
    bool HasPrinter() const override { return false; }
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: tour OUT-FOLDER SAMPLES-FOLDER\n");
        return 2;
    }
    QTemporaryDir home;
    for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    QApplication application(argc, argv);
    const Gui::Setup setup;
    Look::ApplyTo(application);
    const MessageScope messages(ShowMessageBox);
    const NoPrinter adapter;
    const PrintAdapterScope printing(adapter);
    QDir().mkpath(argv[1]);
    // Those of an earlier tour would be asked about.
    for (const char* result : {"Tour.kvstd", "Merged.kvstd", "Report.pdf"})
        QFile::remove(QDir(argv[1]).filePath(result));
    Tour tour(QDir(argv[1]).absolutePath(), QDir(argv[2]).absolutePath());
    if (!tour.Play())
        return 1;
    std::printf("All is as it should be.\n");
    return 0;
}
