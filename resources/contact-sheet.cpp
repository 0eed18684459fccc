// Draws every picture of a folder of SVG files to sheets that can be looked at: each at its own size and
// three times as large, on white and on the ground of the check page. A file that cannot be drawn fails the
// run.
//
//   contact-sheet <images folder> <out folder>
//
// The images folder holds one folder for each type of picture, with the files <number>.svg.

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QSvgRenderer>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

constexpr QSize PageSize{1600, 1200}; // pixels
constexpr int Margin = 16;
constexpr int Gap = 6;
constexpr int Magnification = 3;
constexpr int LabelHeight = 18;
constexpr int HeadingHeight = 30;
constexpr int WidestSideBySide = 48; // wider pictures have their two sizes one above the other
const QColor White(0xFF, 0xFF, 0xFF);
const QColor PageGround(0xDE, 0xE1, 0xE3); // the ground of the check page
const QColor SheetGround(0xF4, 0xF4, 0xF4);

struct Picture {
    QString Type;
    int Number;
    QString Path;
    QSize Size; // pixels at 100 %
};

void Complain(const QString& text) {
    QTextStream(stderr) << text << '\n';
}

// False and a message when the file is no SVG that can be drawn.
bool ReadPicture(const QString& type, const QString& path, Picture& picture) {
    const QSvgRenderer renderer(path);
    if (!renderer.isValid() || renderer.defaultSize().isEmpty()) {
        Complain(path + ": not a picture that can be drawn");
        return false;
    }
    bool isNumber = false;
    const int number = QFileInfo(path).completeBaseName().toInt(&isNumber);
    if (!isNumber) {
        Complain(path + ": the name is not a number");
        return false;
    }
    picture = {type, number, path, renderer.defaultSize()};
    return true;
}

// Reads on after a bad file, so that one run names all of them.
bool ReadPictures(const QDir& folder, std::vector<Picture>& pictures) {
    bool allGood = true;
    for (const QString& type : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir typeFolder(folder.filePath(type));
        for (const QString& name : typeFolder.entryList({"*.svg"}, QDir::Files)) {
            Picture picture;
            if (ReadPicture(type, typeFolder.filePath(name), picture))
                pictures.push_back(picture);
            else
                allGood = false;
        }
    }
    std::sort(pictures.begin(), pictures.end(), [](const Picture& a, const Picture& b) {
        return a.Type != b.Type ? a.Type < b.Type : a.Number < b.Number;
    });
    return allGood;
}

// One ground with the picture on it twice: small and magnified.
QSize PanelSize(const QSize& size) {
    const QSize large = size * Magnification;
    if (size.width() <= WidestSideBySide)
        return {size.width() + large.width() + 3 * Gap, large.height() + 2 * Gap};
    return {large.width() + 2 * Gap, size.height() + large.height() + 3 * Gap};
}

// The panels of both grounds and the label beneath.
QSize CellSize(const QSize& size) {
    const QSize panel = PanelSize(size);
    if (size.width() <= WidestSideBySide)
        return {2 * panel.width(), panel.height() + LabelHeight};
    return {panel.width(), 2 * panel.height() + LabelHeight};
}

void DrawPanel(QPainter& painter, const QPoint& at, const Picture& picture, const QColor& ground) {
    painter.fillRect(QRect(at, PanelSize(picture.Size)), ground);
    QSvgRenderer renderer(picture.Path);
    const QPoint small = at + QPoint(Gap, Gap);
    const bool sideBySide = picture.Size.width() <= WidestSideBySide;
    const QPoint step =
        sideBySide ? QPoint(picture.Size.width() + Gap, 0) : QPoint(0, picture.Size.height() + Gap);
    renderer.render(&painter, QRect(small, picture.Size));
    renderer.render(&painter, QRect(small + step, picture.Size * Magnification));
}

void DrawCell(QPainter& painter, const QPoint& at, const Picture& picture) {
    const QSize panel = PanelSize(picture.Size);
    const bool sideBySide = picture.Size.width() <= WidestSideBySide;
    const QPoint second = sideBySide ? QPoint(panel.width(), 0) : QPoint(0, panel.height());
    DrawPanel(painter, at, picture, White);
    DrawPanel(painter, at + second, picture, PageGround);
    const QSize cell = CellSize(picture.Size);
    const QRect label(at.x(), at.y() + cell.height() - LabelHeight, cell.width(), LabelHeight);
    painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter,
                     picture.Type + ' ' + QString::number(picture.Number));
}

// Fills pages from left to right and from top to bottom and saves each page when it is full.
class SheetWriter {
public:
    explicit SheetWriter(const QDir& outFolder) : OutFolder(outFolder), Page(PageSize, QImage::Format_RGB32) {
        Clear();
    }

    bool StartType(const QString& type) {
        if (At.x() > Margin)
            NextRow();
        if (!MakeRoom(HeadingHeight + 100))
            return false;
        QPainter painter(&Page);
        painter.setFont(QFont("sans-serif", 13, QFont::Bold));
        painter.drawText(QRect(At, QSize(PageSize.width(), HeadingHeight)), Qt::AlignVCenter, type);
        At.ry() += HeadingHeight;
        IsEmpty = false;
        return true;
    }

    bool Add(const Picture& picture) {
        const QSize cell = CellSize(picture.Size);
        if (At.x() > Margin && At.x() + cell.width() > PageSize.width() - Margin)
            NextRow();
        if (!MakeRoom(cell.height()))
            return false;
        QPainter painter(&Page);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(QFont("sans-serif", 8));
        DrawCell(painter, At, picture);
        At.rx() += cell.width() + Margin;
        RowHeight = std::max(RowHeight, cell.height());
        IsEmpty = false;
        return true;
    }

    bool Finish() { return IsEmpty || Save(); }

private:
    void Clear() {
        Page.fill(SheetGround);
        At = QPoint(Margin, Margin);
        RowHeight = 0;
        IsEmpty = true;
    }

    void NextRow() {
        At = QPoint(Margin, At.y() + RowHeight + Gap);
        RowHeight = 0;
    }

    bool MakeRoom(int height) {
        if (IsEmpty || At.y() + height <= PageSize.height() - Margin)
            return true;
        if (!Save())
            return false;
        Clear();
        return true;
    }

    bool Save() {
        const QString path = OutFolder.filePath(QString("sheet-%1.png").arg(++PageCount, 2, 10, QChar('0')));
        if (Page.save(path))
            return true;
        Complain(path + ": cannot be written");
        return false;
    }

    QDir OutFolder;
    QImage Page;
    QPoint At;
    int RowHeight = 0;
    int PageCount = 0;
    bool IsEmpty = true;
};

bool WriteSheets(const std::vector<Picture>& pictures, const QDir& outFolder) {
    SheetWriter writer(outFolder);
    QString type;
    for (const Picture& picture : pictures) {
        if (picture.Type != type && !writer.StartType(picture.Type))
            return false;
        type = picture.Type;
        if (!writer.Add(picture))
            return false;
    }
    return writer.Finish();
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        Complain("usage: contact-sheet <images folder> <out folder>");
        return 2;
    }
    const QDir outFolder(arguments[2]);
    if (!outFolder.mkpath(".")) {
        Complain(arguments[2] + ": cannot be made");
        return 1;
    }
    std::vector<Picture> pictures;
    const bool allGood = ReadPictures(QDir(arguments[1]), pictures);
    if (pictures.empty())
        Complain(arguments[1] + ": holds no pictures");
    return WriteSheets(pictures, outFolder) && allGood && !pictures.empty() ? 0 : 1;
}
