#include "dialogs/ReportView.h"

#include "support/Gui.h"

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

QByteArray Lines(int count) {
    QByteArray html = "<html><body>";
    for (int line = 0; line < count; ++line)
        html += "<p>Line " + QByteArray::number(line) + "</p>";
    return html + "</body></html>";
}

} // namespace

TEST(LaidOutReport, APartIsDrawnAsInTheWhole) {
    const LaidOutReport report(Lines(20), {});
    EXPECT_TRUE(report.Text().contains("Line 19"));
    const QImage whole = report.Draw({}, report.Size().toSize(), 1);
    const QRect part(10, 50, 200, 120);
    EXPECT_EQ(report.Draw(part.topLeft(), part.size(), 1), whole.copy(part));
    QImage white(part.size(), whole.format());
    white.fill(Qt::white);
    EXPECT_NE(whole.copy(part), white);
}

TEST(ReportView, ScrollsByKeysAndStaysInPlaceWhenZoomed) {
    ReportView view(std::make_unique<LaidOutReport>(Lines(200), CString()));
    Gui::Show(view);
    QScrollBar& bar = *view.verticalScrollBar();
    Gui::Focus(view);
    Gui::Key(view, Qt::Key_End);
    EXPECT_EQ(bar.value(), bar.maximum());
    Gui::Key(view, Qt::Key_Home);
    EXPECT_EQ(bar.value(), 0);
    Gui::Key(view, Qt::Key_Space);
    EXPECT_GT(bar.value(), 0);
    const auto middle = [&] { return (bar.value() + view.viewport()->height() / 2.0) / bar.maximum(); };
    const double before = middle();
    view.SetScale(1.5);
    EXPECT_NEAR(middle(), before, 0.02);
}

TEST(ReportView, TheWheelWithControlZooms) {
    ReportView view(std::make_unique<LaidOutReport>(Lines(200), CString()));
    Gui::Show(view);
    std::vector<int> steps;
    QObject::connect(&view, &ReportView::ZoomTurned, [&](int step) { steps.push_back(step); });
    QWheelEvent turn(QPointF(5, 5), view.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &turn);
    EXPECT_EQ(steps, std::vector<int>{-1});
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}
