#include "editing/TextTip.h"

#include <QLineEdit>
#include <QTextDocument>

CString PlainTip(const CString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

// As rich text, for only that is wrapped where it is long. Without a text there is no tip.
void TellTextByTip(QLineEdit& field) {
    const QString text = field.text();
    field.setToolTip(text.isEmpty() ? text : text.toHtmlEscaped().prepend("<qt>"));
}
