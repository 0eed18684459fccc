#include "editing/MyStatic.h"

#include "editing/ComboBoxExt.h"
#include "editing/ExACRichEdit.h"
#include "editing/Pictures.h"
#include "engines/TextServices.h"
#include "engines/UnitText.h"
#include "model/Parameter.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/widgets/Look.h"

#include <QFocusEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr char NumberCharacters[] = "0123456789.";

void SetBase(QWidget* widget, QRgb color) {
    QPalette palette = widget->palette();
    if (palette.color(QPalette::Active, QPalette::Base) == QColor(color))
        return;
    palette.setColor(QPalette::Active, QPalette::Base, color);
    palette.setColor(QPalette::Inactive, QPalette::Base, color);
    widget->setPalette(palette);
}

} // namespace

CMyStatic::CMyStatic(QWidget* parent)
    : QWidget(parent), m_edit(new CExACRichEdit(this)), m_list(new CComboBoxExt(this)) {
    Choices.EntryStyle = m_mode;
    m_edit->setObjectName("10001");
    m_list->setObjectName("10002");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_edit);
    layout->addWidget(m_list);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    SetBase(m_list, Look::CorrectionGround);
    m_edit->installEventFilter(this);
    connect(m_edit, &QLineEdit::textChanged, this, &CMyStatic::OnFieldEdited);
    connect(m_list, &QComboBox::activated, this, &CMyStatic::OnChosen);
    RefreshDisplay();
}

QSize CMyStatic::sizeHint() const {
    return QWidget::sizeHint().expandedTo(
        {0, qMax(m_edit->sizeHint().height(), m_list->sizeHint().height())});
}

QSize CMyStatic::minimumSizeHint() const {
    return QWidget::minimumSizeHint().expandedTo({0, sizeHint().height()});
}

void CMyStatic::SetMode(int mode, int extra) {
    m_mode = mode;
    m_extra = extra;
    Choices.EntryStyle = mode;
    Choices.Strings.clear();
    Choices.Numbers.clear();
    Choices.Operator = 0;
    Choices.SelectedIndex = -1;
    m_rows.clear();
    m_list->clear();
    m_edit->SetFilter(mode == NumberEntry ? CString(NumberCharacters) : CString(), mode != NumberEntry);
    RefreshDisplay();
}

void CMyStatic::SetChoices(const CorrectionChoices& record) {
    Choices.SetChoices(record);
    RefreshDisplay();
}

// A single text or picture is chosen already, yet shows as a choice; a single number may be typed.
bool CMyStatic::UsesList() const {
    if (Choices.ShowsImages())
        return true;
    return Choices.Operator == OpOneOf && Choices.Count() >= (Choices.TakesWords() ? 1 : 2);
}

// What must equal one text can be corrected to that text alone.
bool CMyStatic::IsFixed() const {
    return Choices.Operator == OpEqual && !Choices.Strings.isEmpty() && Choices.TakesWords();
}

void CMyStatic::RefreshDisplay() {
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    const CString value = Choices.Operator == OpNone ? CString() : Choices.MakeDisplayText();
    // The value behind a word may be kept as the number of the word.
    const CString text = IsFixed() ? Choices.Strings[0] : value;
    const bool usesList = UsesList();
    if (usesList)
        FillList();
    else
        ShowField(text);
    QWidget* const shown = usesList ? static_cast<QWidget*>(m_list) : m_edit;
    QWidget* const other = usesList ? static_cast<QWidget*>(m_edit) : m_list;
    other->hide(); // first, for a window that has made room for both does not shrink again
    shown->show();
    setFocusProxy(shown);
}

void CMyStatic::ConvertUnit(unsigned long power, unsigned long dimension, unsigned long oldUnit,
                            unsigned long newUnit) {
    if (Choices.EntryStyle != NumberEntry)
        return;
    const auto convert = [&](CString& number) {
        number = ConvertValueText(number, power, dimension, oldUnit, newUnit);
    };
    convert(Choices.Text);
    std::ranges::for_each(Choices.Strings, convert);
    RefreshDisplay();
}

void CMyStatic::ShowField(const CString& text) {
    if (m_edit->text() != text)
        m_edit->setText(text);
    m_edit->setCursorPosition(m_edit->hasFocus() ? m_edit->cursorPosition() : 0);
    m_edit->setEnabled(Choices.Operator != OpNone);
    m_edit->setReadOnly(IsFixed());
    SetFieldGround(Choices.Satisfies(text) ? Look::CorrectionGround : Look::WrongGround);
}

void CMyStatic::FillList() {
    // Most edits of a pane leave the choices as they are, and a list is slow to fill.
    CStringArray rows;
    for (qsizetype i = 0; i < Choices.Count(); ++i)
        rows.append(Choices.ChoiceAt(i));
    if (rows != m_rows || m_list->count() != rows.size()) {
        m_rows = rows;
        m_list->clear();
        for (qsizetype i = 0; i < Choices.Count(); ++i) {
            const auto bitmap = Choices.ShowsImages() ? static_cast<unsigned>(Choices.Numbers[i]) : 0;
            m_list->AddRow(bitmap ? PictureText(bitmap) : rows[i], bitmap);
        }
    }
    m_list->setEnabled(!rows.isEmpty());
    m_list->setCurrentIndex(Choices.SelectedIndex < Choices.Count() ? Choices.SelectedIndex : -1);
}

void CMyStatic::SetFieldGround(unsigned color) {
    SetBase(m_edit, color);
}

void CMyStatic::OnFieldEdited() {
    if (m_isShowing)
        return;
    CString text = m_edit->text();
    if (Choices.EntryStyle == NumberEntry) {
        text = text.trimmed();
        const int point = NormalizeDecimalPoint(text);
        if (text != m_edit->text()) {
            const QScopedValueRollback<bool> showing(m_isShowing, true);
            m_edit->setText(text);
            m_edit->setCursorPosition(point + 1);
        }
    }
    SetFieldGround(Choices.CheckCorrectionText(text) ? Look::FieldGround : Look::WrongGround);
}

bool CMyStatic::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_edit && event->type() == QEvent::FocusOut)
        OnFieldLeft(static_cast<QFocusEvent*>(event)->reason());
    return QWidget::eventFilter(watched, event);
}

void CMyStatic::OnFieldLeft(Qt::FocusReason reason) {
    // The field's own menu, or a field that its own operator takes away.
    if (reason == Qt::PopupFocusReason || m_edit->isHidden() || !m_edit->isEnabled())
        return;
    const bool isInWindow = reason != Qt::ActiveWindowFocusReason && reason != Qt::MenuBarFocusReason;
    if (!Choices.Satisfies(m_edit->text()) && isInWindow) {
        // The focus is on its way elsewhere and cannot be turned round before it has arrived.
        QTimer::singleShot(0, this, &CMyStatic::RefuseText);
        return;
    }
    if (isInWindow)
        SetFieldGround(Choices.Satisfies(m_edit->text()) ? Look::CorrectionGround : Look::WrongGround);
    Q_EMIT Committed();
}

void CMyStatic::RefuseText() {
    if (Choices.CheckCorrectionText(m_edit->text()))
        return; // a new requirement has come meanwhile, which the text satisfies
    ShowMessage(LoadString(2419));
    {
        const QScopedValueRollback<bool> showing(m_isShowing, true);
        ShowField(Choices.Text);
    }
    m_edit->setFocus(Qt::OtherFocusReason);
    m_edit->selectAll();
    Q_EMIT Committed();
}

void CMyStatic::OnChosen(int index) {
    Choices.Select(index);
    Q_EMIT Committed();
}

void CMyStatic::SetName(const CString& name) {
    setAccessibleName(name);
    m_edit->setAccessibleName(name);
    m_list->setAccessibleName(name);
}
