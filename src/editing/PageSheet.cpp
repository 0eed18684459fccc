#include "editing/PageSheet.h"

#include "editing/GridColors.h"
#include "platform/LanguageLibrary.h"

#include <QVBoxLayout>

namespace {

enum Column { NameColumn, ParameterColumn, ValueColumn, CorrectionColumn, IconColumn, CriticalityColumn };
constexpr unsigned HeaderTexts[] = {2395, 2261, 1968, 1907, 2260, 2260};
constexpr int ColumnCount = 6;

// A width in twips of which the columns are parts.
int BaseWidth(int clientWidth, int dpi) {
    return clientWidth / 4 * 1440 / dpi;
}

CString HeaderNames() {
    CStringArray names;
    for (const unsigned text : HeaderTexts)
        names.append(LoadString(text));
    names.removeDuplicates();
    return names.join(", ");
}

} // namespace

CPageSheet::CPageSheet(QWidget* parent)
    : QWidget(parent), Grid(new CAdminGridClass(this)), Font(Look::PageFont()) {
    Grid->setObjectName("1005");
    Grid->setAccessibleName(HeaderNames());
    Grid->SetBaseFont(Font);
    Grid->SetBackColor(BackColor);
    Grid->RowChosen = [this](int row) { OnRowChosen(row); };
    Grid->Resized = [this] {
        SetColumnWidths();
        SetRowHeights();
    };
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    layout->addWidget(Grid);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, ColorOf(BackColor));
    setPalette(colors);
    setAutoFillBackground(true);
    SetUpHeader();
}

CPageSheet::~CPageSheet() {
    delete Grid; // it tells of its size to its end
}

void CPageSheet::SetUpHeader() {
    Grid->SetColCount(ColumnCount);
    for (int col = 0; col < ColumnCount; ++col)
        Grid->SetCellText(0, col, LoadString(HeaderTexts[col]));
    Grid->SetCoveredCellsRowCol({0, IconColumn, 0, CriticalityColumn});
    Grid->SetRowBold(0);
    Grid->SetColBold(NameColumn);
    Grid->SetRowHeight(0, HeaderRowHeight);
    Grid->SetColAlignment(IconColumn, Qt::AlignHCenter);
    Grid->SetColAlignment(CriticalityColumn, Qt::AlignLeft);
    Grid->SetColWrap(CriticalityColumn, false); // it stands beside its icon on one line
    SetColumnWidths();
}

void CPageSheet::SetColumnWidths() {
    constexpr double Parts[ColumnCount] = {1.18, 1.0, 0.75, 0.75, 0.11, 0.2};
    const int base = BaseWidth(Grid->viewport()->width(), Grid->logicalDpiX());
    for (int col = 0; col < ColumnCount; ++col)
        Grid->SetColWidth(col, static_cast<int>(base * Parts[col]));
}

// Most texts of a summary stand in many rows.
void CPageSheet::Measure(const std::vector<SummaryRow>& rows) {
    const QFontMetrics metrics(Font);
    QHash<CString, int> known;
    const auto measure = [&](const CString& text) {
        const auto found = known.constFind(text);
        return found != known.constEnd() ? *found : *known.insert(text, metrics.horizontalAdvance(text));
    };
    m_extents.clear();
    for (const SummaryRow& row : rows)
        m_extents.push_back(MeasureRow(row, measure));
}

void CPageSheet::SetRowHeights() {
    const int width = Grid->GetColWidth(CorrectionColumn);
    int row = 0;
    for (const RowExtent& extent : m_extents)
        Grid->SetRowHeight(++row, RowHeightFor(extent, width, Grid->logicalDpiX()));
}

void CPageSheet::OnSetActive(SummarySource& source) {
    m_source = &source;
    Grid->BeginTrans();
    Grid->ClearAll();
    Grid->HoverRow = 0;
    Grid->SetRowCount(0);
    LastRow = 0;
    SetUpHeader();
    const std::vector<const CCheck*> checks = source.ChecksInCatalogueOrder();
    source.CommitPending();
    SummaryRows summary(source.LengthUnit(), source.AngleUnit());
    for (const CCheck* check : checks)
        summary.AddCheck(*check);
    Measure(summary.Rows);
    NameToType = std::move(summary.NameToType);
    Grid->SetRowCount(static_cast<int>(summary.Rows.size()));
    for (const SummaryRow& row : summary.Rows)
        FillRow(++LastRow, row);
    Cover(summary);
    SetRowHeights();
    Grid->CommitTrans();
    SetColumnWidths();
}

void CPageSheet::FillRow(int row, const SummaryRow& from) {
    Grid->SetCellText(row, NameColumn, from.name);
    FillCell(row, ParameterColumn, {SummaryCell::Text, from.parameter, 0});
    FillCell(row, ValueColumn, from.value);
    FillCell(row, CorrectionColumn, from.correction);
    Grid->SetCellBitmap(row, IconColumn, from.icon);
    Grid->SetCellSpokenText(row, IconColumn, from.criticality);
    Grid->SetCellText(row, CriticalityColumn, from.criticality);
}

void CPageSheet::FillCell(int row, int col, const SummaryCell& from) {
    if (from.form == SummaryCell::Text) {
        Grid->SetCellText(row, col, from.text);
        if (from.text == NothingToSay)
            Grid->SetCellTextColor(row, col, GridColors::QuietText);
        return;
    }
    Grid->SetCellSpokenText(row, col, from.text);
    if (from.form == SummaryCell::Picture) {
        Grid->SetCellBitmap(row, col, from.number);
        return;
    }
    Grid->SetCellControl(row, col, ControlLayerColor);
    Grid->SetCellInterior(row, col, from.number);
}

void CPageSheet::Cover(const SummaryRows& summary) {
    for (const SummaryRange& check : summary.Checks)
        Grid->SetCoveredCellsRowCol({check.first, NameColumn, check.first + check.rows - 1, NameColumn});
    for (const SummaryRange& range : summary.Criticalities)
        for (const int col : {IconColumn, CriticalityColumn})
            Grid->SetCoveredCellsRowCol({range.first, col, range.first + range.rows - 1, col});
}

void CPageSheet::OnRowChosen(int row) {
    if (!m_source || row < 1 || row > LastRow)
        return;
    const auto type = NameToType.constFind(Grid->GetCellText(row, NameColumn));
    if (type != NameToType.constEnd())
        m_source->ShowCheck(*type);
}
