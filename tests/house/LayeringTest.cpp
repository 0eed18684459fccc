// The rooms of the source and who may include whom.
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>
#include <gtest/gtest.h>

namespace {

struct Include {
    QString file;   // relative to src
    QString header; // as it is written
};

QList<Include> IncludesOf(const QString& folder) {
    static const QRegularExpression line("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]",
                                         QRegularExpression::MultilineOption);
    const QString root = QString(RULEWARD_SOURCE_FOLDER) + "/src/";
    QList<Include> includes;
    QDirIterator files(root + folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        auto found = line.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext())
            includes.append({file.fileName().mid(root.size()), found.next().captured(1)});
    }
    return includes;
}

bool IsWidgetHeader(const QString& header) {
    static const QRegularExpression names("^(QtWidgets|QtPrintSupport|QtUiTools)|^Q(Widget|Application|"
                                          "Dialog|MessageBox|FileDialog|Label|LineEdit|"
                                          "ComboBox|PushButton|MainWindow|TableView|TreeWidget|ListWidget|"
                                          "Menu|ToolBar|Action|MdiArea|Printer)$|"
                                          "^platform/widgets/");
    return names.match(header).hasMatch();
}

} // namespace

TEST(Layering, TheCoreIncludesNoWidgetHeader) {
    for (const char* folder : {"platform", "engines", "model", "files", "cli"})
        for (const Include& include : IncludesOf(folder))
            EXPECT_FALSE(!include.file.startsWith("platform/widgets/") && IsWidgetHeader(include.header))
                << include.file.toStdString() << " includes " << include.header.toStdString();
}

TEST(Layering, IncludesFollowTheOrderOfTheRooms) {
    const QMap<QString, QStringList> allowed = {{"platform", {"platform"}},
                                                {"engines", {"platform", "engines"}},
                                                {"model", {"platform", "engines", "model"}},
                                                {"files", {"platform", "engines", "model", "files"}},
                                                {"cli", {"platform", "engines", "model", "files", "cli"}}};
    const QStringList rooms = {"platform", "engines", "model", "files", "cli", "shell", "editing", "dialogs"};
    for (auto room = allowed.begin(); room != allowed.end(); ++room)
        for (const Include& include : IncludesOf(room.key())) {
            const QString from = include.header.section('/', 0, 0);
            // A check reads and writes its own element, and so knows the XML layer.
            const bool isXmlLayer = room.key() == "model" && include.header.startsWith("files/Xml");
            EXPECT_TRUE(!rooms.contains(from) || isXmlLayer || room->contains(from))
                << include.file.toStdString() << " includes " << include.header.toStdString();
        }
}
