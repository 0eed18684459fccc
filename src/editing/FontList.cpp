#include "editing/FontList.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace {

// Of families of one name the system tells the maker as well, which no document does.
CString WithoutMaker(const CString& family) {
    const qsizetype maker = family.indexOf(" [");
    return maker > 0 && family.endsWith(u']') ? family.left(maker) : family;
}

CStringArray NamesOfFamilies() {
    CStringArray names;
    for (const CString& family : QFontDatabase::families())
        // Such as "Serif", which stands for another family.
        if (const bool isName = QFontDatabase::hasFamily(family);
            isName && !QFontDatabase::isPrivateFamily(family))
            names.append(WithoutMaker(family));
    names.removeDuplicates();
    return names;
}

// Asked of the system once: a standard may have a dozen lists of them.
const CStringArray& InstalledNames() {
    static CStringArray names;
    [[maybe_unused]] static const auto change =
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, [] { names.clear(); });
    if (names.isEmpty())
        names = NamesOfFamilies();
    return names;
}

} // namespace

// Gives a row its face when it is drawn: most rows of a long list never are.
class CFontList::FaceDelegate : public RowDelegate {
public:
    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        // A family of symbols could not be read in its own face; one that is missing here has none.
        if (!QFontDatabase::writingSystems(option->text).contains(QFontDatabase::Latin))
            return;
        option->font.setFamily(option->text);
        option->fontMetrics = QFontMetrics(option->font);
    }
};

CFontList::CFontList(QWidget* parent) : CChoiceList(parent) {
    setItemDelegate(new FaceDelegate(this));
}

void CFontList::FillWithInstalled() {
    clear();
    addItems(InstalledNames());
}
