#include "editing/CriticalityRows.h"

#include "platform/LanguageLibrary.h"
#include "platform/widgets/Look.h"

#include <QComboBox>
#include <iterator>

namespace {

struct Row {
    unsigned text;
    unsigned icon;
};

constexpr Row Rows[] = {{2267, 1425}, {2268, 1424}, {2269, 1426}, {2270, 1427}};

} // namespace

void FillCriticalityRows(QComboBox& combo) {
    for (const Row& row : Rows)
        combo.addItem(Look::SmallIconOf(row.icon), LoadString(row.text));
}

int RowOfCriticality(unsigned criticality) {
    return criticality < std::size(Rows) ? static_cast<int>(criticality) : 1;
}
