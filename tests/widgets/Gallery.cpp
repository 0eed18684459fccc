#include "widgets/Gallery.h"

#include "platform/widgets/Look.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeWidget>

namespace {

template <class Control> Control* Disabled(Control* control) {
    control->setEnabled(false);
    return control;
}

QComboBox* Combo(const QStringList& rows, bool isEditable = false) {
    auto* combo = new QComboBox;
    combo->addItems(rows);
    combo->setEditable(isEditable);
    return combo;
}

QWidget* Fields() {
    auto* group = new QGroupBox("&Fields");
    auto* grid = new QGridLayout(group);
    auto* edit = new QLineEdit("2.5 , 3.5");
    edit->setObjectName("edit");
    auto* wrong = new QLineEdit("2,5 mm?");
    QPalette palette = wrong->palette();
    palette.setColor(QPalette::Base, QColor(Look::WrongGround));
    wrong->setPalette(palette);
    auto* hint = new QLineEdit;
    hint->setPlaceholderText("Any value");
    auto* spin = new QSpinBox;
    spin->setObjectName("spin");
    auto* units = Combo({"Millimetres", "Centimetres", "Metres", "Inches"});
    units->setObjectName("combo");
    int row = 0;
    for (QWidget* field : std::initializer_list<QWidget*>{
             edit, Disabled(new QLineEdit("Disabled")), wrong, hint, units, Disabled(Combo({"Any"})),
             Combo({"Liberation Sans"}, true), spin, Disabled(new QSpinBox)}) {
        grid->addWidget(new QLabel(row % 2 ? "Line spacing" : "Text height"), row, 0);
        grid->addWidget(field, row, 1);
        grid->addWidget(new QLabel("mm"), row++, 2);
    }
    return group;
}

QWidget* Buttons() {
    auto* group = new QGroupBox("Buttons");
    auto* grid = new QGridLayout(group);
    auto* primary = new QPushButton("OK");
    primary->setDefault(true);
    auto* flat = new QPushButton("Flat");
    flat->setFlat(true);
    auto* toggled = new QPushButton("Held");
    toggled->setCheckable(true);
    toggled->setChecked(true);
    int column = 0;
    for (QPushButton* button :
         {primary, new QPushButton("&Cancel"), Disabled(new QPushButton("Disabled")), flat, toggled}) {
        button->setObjectName(button->text());
        grid->addWidget(button, 0, column++);
    }
    column = 0;
    for (const Qt::CheckState state : {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked}) {
        auto* box = new QCheckBox("ISO");
        box->setTristate();
        box->setCheckState(state);
        box->setObjectName(QString("box%1").arg(state));
        grid->addWidget(box, 1, column);
        auto* grey = Disabled(new QCheckBox("DIN"));
        grey->setTristate();
        grey->setCheckState(state);
        grid->addWidget(grey, 2, column);
        auto* radio = new QRadioButton("points");
        radio->setChecked(column == 1);
        grid->addWidget(radio, 3, column++);
    }
    grid->addWidget(Disabled(new QRadioButton("disabled")), 3, column);
    return group;
}

QWidget* Lists() {
    auto* splitter = new QSplitter;
    auto* list = new QListWidget;
    list->setObjectName("list");
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const char* face : {"Century Gothic", "DejaVu Sans", "ISOCPEUR", "Liberation Sans", "Romans"})
        list->addItem(face);
    list->item(1)->setSelected(true);
    list->item(3)->setSelected(true);
    auto* tree = new QTreeWidget;
    tree->setHeaderLabels({"Parameter", "Value"});
    for (const char* name : {"Layer", "Colour"}) {
        auto* item = new QTreeWidgetItem(tree, {name, "7"});
        item->setCheckState(0, Qt::Checked);
        new QTreeWidgetItem(item, {"Part", "none of"});
    }
    tree->expandItem(tree->topLevelItem(0));
    auto* table = new QTableWidget(40, 3);
    table->setHorizontalHeaderLabels({"Check", "Parameter", "Target Value"});
    for (int row = 0; row < 40; ++row)
        for (int column = 0; column < 3; ++column)
            table->setItem(row, column, new QTableWidgetItem(QString("%1.%2").arg(row).arg(column)));
    table->selectRow(2);
    for (QWidget* view : std::initializer_list<QWidget*>{list, tree, table, Disabled(new QListWidget)})
        splitter->addWidget(view);
    return splitter;
}

QWidget* Tabs() {
    auto* tabs = new QTabWidget;
    tabs->setDocumentMode(true);
    tabs->addTab(Lists(), "Checks");
    tabs->addTab(new QTextEdit("Summary"), "Summary");
    tabs->addTab(new QWidget, "Options");
    return tabs;
}

QWidget* Rest() {
    auto* tabs = new QTabWidget;
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    auto* progress = new QProgressBar;
    progress->setValue(40);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(30);
    auto* across = new QScrollBar(Qt::Horizontal);
    auto* text = new QTextEdit("A remark of several lines");
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    auto* still = new QScrollBar(Qt::Horizontal);
    still->setRange(0, 0);
    int row = 0;
    for (QWidget* control : std::initializer_list<QWidget*>{progress, slider, across, still, line, text})
        grid->addWidget(control, row++, 0);
    auto* group = new QGroupBox("&Correct to");
    group->setCheckable(true);
    (new QGridLayout(group))->addWidget(new QLabel("A label with a <a href='x'>link</a>"));
    grid->addWidget(group, row, 0);
    tabs->addTab(page, "Plain");
    tabs->addTab(new QWidget, Look::IconOf(1144), {});
    tabs->addTab(new QWidget, Look::IconOf(1146), "Pictures");
    return tabs;
}

void FillMenu(QMenu& menu) {
    menu.addAction(Look::IconOf(1144), "&New\tCtrl+N");
    menu.addAction("&Open...\tCtrl+O");
    menu.addAction(Look::IconOf(1146), "Save &As...")->setEnabled(false);
    menu.addSeparator();
    for (const bool isOn : {true, false}) {
        auto* mark = menu.addAction("&Status Bar");
        mark->setCheckable(true);
        mark->setChecked(isOn);
    }
    menu.addMenu("&Recent Files")->addAction("1");
}

void FillToolBar(QToolBar& bar) {
    bar.setMovable(false);
    for (const unsigned id : {1144u, 1146u, 1166u, 1150u}) {
        auto* action = bar.addAction(Look::IconOf(id), QString::number(id));
        action->setCheckable(true);
        action->setChecked(id == 1146);
        action->setEnabled(id != 1150);
    }
    bar.addSeparator();
    auto* shown = bar.addAction(Look::IconOf(1166), "Show all checks");
    shown->setCheckable(true);
    shown->setChecked(true);
}

} // namespace

std::unique_ptr<QWidget> MakeGallery() {
    auto window = std::make_unique<QMainWindow>();
    QMenu* file = window->menuBar()->addMenu("&File");
    file->setObjectName("file");
    FillMenu(*file);
    for (const char* name : {"&Edit", "&Checks", "&Window", "&Help"})
        window->menuBar()->addMenu(name);
    FillToolBar(*window->addToolBar("Main"));
    auto* left = new QToolBar("Catalogue");
    left->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    FillToolBar(*left);
    window->addToolBar(Qt::LeftToolBarArea, left);
    auto* central = new QWidget;
    central->setFont(Look::PageFont());
    auto* grid = new QGridLayout(central);
    grid->addWidget(Fields(), 0, 0);
    grid->addWidget(Buttons(), 0, 1);
    grid->addWidget(Rest(), 0, 2);
    grid->addWidget(Tabs(), 1, 0, 1, 3);
    window->setCentralWidget(central);
    window->statusBar()->showMessage("Ready");
    for (const char* text : {"4 checks", "CAP", "NUM"})
        window->statusBar()->addPermanentWidget(new QLabel(text));
    window->resize(1100, 760);
    return window;
}

QImage Picture(QWidget& window, const CString& name) {
    const QImage picture = window.grab().toImage();
    const CString folder = qEnvironmentVariable("RULEWARD_PICTURES");
    if (!folder.isEmpty())
        picture.save(folder + "/" + name + ".png");
    return picture;
}
