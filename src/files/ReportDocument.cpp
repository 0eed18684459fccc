#include "files/ReportDocument.h"

#include <QColor>
#include <QFileInfo>
#include <QFont>
#include <QImageReader>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextOption>
#include <QUrl>

namespace {

// The size of the page's text of size 3; sizes 2 and 6, of which it mostly consists, follow from it.
constexpr int FontPoints = 11;

// Pictures of the language library are a fraction of this; a file of another origin may say anything.
constexpr int LargestPicture = 2048;

// Any spacing of the letters, were it too small to be seen, keeps pairs of them from being drawn as one
// sign: whoever looks for "Definition" in a PDF file is to find it.
QFont ReportFont() {
    QFont font("Arial", FontPoints);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    return font;
}

// A rule of size 3, in pixels, and of letters that are not taller.
constexpr qreal RuleHeight = 3;
constexpr qreal RulePoints = 2;
constexpr qreal RuleMargin = 12;

// Not a null image: for that, the text layout would look for a file of the name by itself.
QImage EmptySpot() {
    QImage spot(1, 1, QImage::Format_ARGB32_Premultiplied);
    spot.fill(Qt::transparent);
    return spot;
}

QImage ReadPicture(const CString& path) {
    QImageReader reader(path, "bmp");
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > LargestPicture || size.height() > LargestPicture)
        return {};
    return reader.read();
}

// The text layout draws every rule as a thin grey line; as an empty paragraph on a coloured ground it has
// the look that the report's stylesheet gives it.
void ShowRules(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (!format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth))
            continue;
        format.clearProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
        format.setBackground(QColor("saddlebrown"));
        format.setLineHeight(RuleHeight, QTextBlockFormat::FixedHeight);
        format.setTopMargin(RuleMargin);
        QTextCursor cursor(block);
        cursor.setBlockFormat(format);
        QTextCharFormat letters; // an empty paragraph is as tall as its letters would be
        letters.setFontPointSize(RulePoints);
        cursor.setBlockCharFormat(letters);
    }
}

} // namespace

ReportDocument::ReportDocument(const CString& baseFolder)
    : m_resources(QFileInfo(baseFolder + "/resources").canonicalFilePath()) {
    setUndoRedoEnabled(false);
    setDocumentMargin(0);
    setDefaultFont(ReportFont());
    QTextOption option = defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setDefaultTextOption(option);
    setBaseUrl(QUrl::fromLocalFile(QFileInfo(baseFolder).absoluteFilePath() + "/"));
}

void ReportDocument::ShowPage(const QByteArray& html) {
    setHtml(QString::fromUtf8(html));
    ShowRules(*this);
}

QVariant ReportDocument::loadResource(int type, const QUrl& name) {
    if (type != ImageResource)
        return {};
    const CString path = PicturePath(name);
    const QImage picture = path.isEmpty() ? QImage() : ReadPicture(path);
    return picture.isNull() ? EmptySpot() : picture;
}

CString ReportDocument::PicturePath(const QUrl& name) const {
    if (m_resources.isEmpty() || !name.isLocalFile())
        return {};
    const QFileInfo picture(name.toLocalFile());
    const CString path = picture.canonicalFilePath();
    const bool ownFile = picture.isFile() && QFileInfo(path).path() == m_resources && path.endsWith(".bmp");
    return ownFile ? path : CString();
}
