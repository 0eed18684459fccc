#include "editing/ComboBoxExt.h"
#include "editing/ExACRichEdit.h"
#include "editing/MyStatic.h"
#include "gui/FullStandard.h"
#include "gui/GuiFigures.h"
#include "gui/Watch.h"
#include "support/Gui.h"
#include "support/GuiTool.h"

#include <QAbstractButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>
#include <array>

namespace {

constexpr int Keys = 400;
constexpr int LongestText = 20;
constexpr int ManyRows = 2000;
constexpr double MostlyWithinMs = 16;
constexpr double AlwaysWithinMs = 33;

// A control in a pane of the full standard that takes keys: a field, a combo box or a correction.
struct KeyTarget {
    const char* name;
    MQC_CheckType_e check;
    int control;
    std::array<int, 2> boxes; // what has to be ticked first; 0 for nothing
    int comparison = 0;       // the box whose first comparison is chosen then; 0 for none
};

constexpr KeyTarget Targets[] = {
    {"name of the own drafting standard", 101, 1315, {1020, 0}},
    {"correction of the drafting standard", 101, 1304, {1020, 1007}},
    {"decimal places of the units", 108, 1111, {1130, 0}, 1110},
    {"text height beside 500 fonts", FontCheck, 1002, {1000, 0}, 1001},
};

// What has the keyboard in a control.
QWidget& InputOf(QWidget& control) {
    auto* correction = qobject_cast<CMyStatic*>(&control);
    if (!correction)
        return control;
    return correction->List()->isHidden() ? static_cast<QWidget&>(*correction->Edit()) : *correction->List();
}

QWidget& Prepare(GuiTool& tool, const KeyTarget& target) {
    tool.Page().ShowCheck(target.check);
    Gui::Settle();
    for (const int number : target.boxes)
        if (auto* box = tool.Control<QAbstractButton>(target.check, number); box && !box->isChecked())
            Gui::Click(*box);
    if (auto* comparison = tool.Control<QWidget>(target.check, target.comparison))
        Gui::ChooseRow(*comparison, 1);
    auto* control = tool.Control<QWidget>(target.check, target.control);
    if (!control)
        qFatal("There is no %s.", target.name);
    QWidget& input = InputOf(*control);
    Gui::Focus(input);
    if (!input.hasFocus())
        qFatal("No key reaches the %s.", target.name);
    return input;
}

// Writes a text and takes it back, or goes down in a list or a number and up again.
void Press(QWidget& input, int turn) {
    const bool isThere = turn % (2 * LongestText) < LongestText;
    if (const auto* list = qobject_cast<QComboBox*>(&input))
        QTest::sendKeyEvent(QTest::Press, &input, list->currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down,
                            CString(), Qt::NoModifier);
    else if (const auto* number = qobject_cast<QSpinBox*>(&input))
        QTest::sendKeyEvent(QTest::Press, &input, number->value() > 0 ? Qt::Key_Down : Qt::Key_Up, CString(),
                            Qt::NoModifier);
    else
        QTest::sendKeyEvent(QTest::Press, &input, isThere ? Qt::Key_1 : Qt::Key_Backspace,
                            isThere ? CString("1") : CString(), Qt::NoModifier);
}

std::vector<double> MeasureKeys(QWidget& input, const KeyTarget& target) {
    PaintWatch watch(input);
    std::vector<double> times;
    for (int turn = 0; turn < Keys; ++turn) {
        const OwnTime time;
        Press(input, turn);
        if (!watch.WaitUntilPainted())
            qFatal("A key changes nothing on the screen in the %s.", target.name);
        times.push_back(time.Milliseconds());
        QTest::sendKeyEvent(QTest::Release, &input, Qt::Key_1, CString(), Qt::NoModifier);
        Gui::Settle();
    }
    return times;
}

void MeasureTargets(const CString& path, const std::string& addition, std::vector<Figure>& figures) {
    GuiTool tool;
    if (!tool.App().OpenDocumentFile(path))
        qFatal("The standard does not open.");
    tool.App().FlipShowAll();
    for (const KeyTarget& target : Targets) {
        const std::vector<double> times = MeasureKeys(Prepare(tool, target), target);
        const std::string name = std::string("key, ") + target.name + addition;
        figures.push_back({name + ", 95 % (ms)", Percentile(times, 0.95), MostlyWithinMs});
        figures.push_back({name + ", all (ms)", Percentile(times, 1), AlwaysWithinMs});
    }
}

} // namespace

std::vector<Figure> KeyFigures() {
    const QTemporaryDir folder;
    const CString plain = folder.filePath("full.kvstd");
    const CString many = folder.filePath("many rows.kvstd");
    WriteFullStandard(plain);
    WriteFullStandard(many, ManyRows);
    std::vector<Figure> figures;
    MeasureTargets(plain, "", figures);
    MeasureTargets(many, ", 2,000 rows", figures);
    return figures;
}
