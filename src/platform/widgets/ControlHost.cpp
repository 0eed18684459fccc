#include "platform/widgets/ControlHost.h"

#include "platform/widgets/TemplateLoader.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <utility>

namespace {

// Tells when the keyboard leaves a control.
class FocusWatch : public QObject {
public:
    FocusWatch(QObject* parent, std::function<void()> handler)
        : QObject(parent), m_handler(std::move(handler)) {}

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusOut)
            m_handler();
        return false;
    }

private:
    std::function<void()> m_handler;
};

} // namespace

void DataExchange::Text(int number, CString& value) const {
    if (auto* edit = m_host.GetDlgItem<QLineEdit>(number)) {
        if (m_save)
            value = edit->text();
        else if (edit->text() != value)
            edit->setText(value);
    }
}

void DataExchange::Check(int number, int& value) const {
    if (auto* button = m_host.GetDlgItem<QAbstractButton>(number)) {
        if (m_save)
            value = button->isChecked() ? 1 : 0;
        else
            button->setChecked(value != 0);
    }
}

void DataExchange::Radio(std::initializer_list<int> numbers, int& value) const {
    if (m_save)
        value = -1;
    int place = 0;
    for (const int number : numbers) {
        if (auto* button = m_host.GetDlgItem<QAbstractButton>(number)) {
            if (m_save && button->isChecked())
                value = place;
            else if (!m_save && place == value)
                button->setChecked(true);
        }
        ++place;
    }
}

void DataExchange::ComboIndex(int number, int& value) const {
    if (auto* combo = m_host.GetDlgItem<QComboBox>(number)) {
        if (m_save)
            value = combo->currentIndex();
        else
            combo->setCurrentIndex(value);
    }
}

void DataExchange::Number(int number, int& value) const {
    if (auto* box = m_host.GetDlgItem<QSpinBox>(number)) {
        if (m_save)
            value = box->value();
        else
            box->setValue(value);
    }
}

ControlHost::ControlHost(QWidget& window) : m_window(window), m_events(std::make_unique<QObject>()) {}

ControlHost::~ControlHost() = default;

bool ControlHost::LoadTemplate(unsigned number) {
    return FillFromTemplate(number, m_window, m_controls);
}

bool ControlHost::UpdateData(bool save) {
    if (m_exchanging)
        return false;
    const QScopedValueRollback busy(m_exchanging, true);
    DataExchange exchange(*this, save);
    DoDataExchange(exchange);
    return true;
}

void ControlHost::Connect(int number, ControlEvent event, std::function<void()> handler) {
    QWidget* control = m_controls.value(number);
    if (!control)
        return;
    const auto tell = [this, call = std::move(handler)] {
        if (!m_exchanging)
            call();
    };
    QObject* context = m_events.get();
    if (event == ControlEvent::KillFocus) {
        control->installEventFilter(new FocusWatch(context, tell));
    } else if (event == ControlEvent::Clicked) {
        if (auto* button = qobject_cast<QAbstractButton*>(control))
            QObject::connect(button, &QAbstractButton::clicked, context, tell);
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        if (event == ControlEvent::SelChange)
            QObject::connect(combo, &QComboBox::activated, context, tell);
        else
            QObject::connect(combo, &QComboBox::currentTextChanged, context, tell);
    } else if (auto* list = qobject_cast<QListWidget*>(control)) {
        QObject::connect(list, &QListWidget::itemSelectionChanged, context, tell);
    } else if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        QObject::connect(edit, &QLineEdit::textChanged, context, tell);
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(control)) {
        QObject::connect(text, &QPlainTextEdit::textChanged, context, tell);
    } else if (auto* box = qobject_cast<QSpinBox*>(control)) {
        QObject::connect(box, &QSpinBox::textChanged, context, tell);
    }
}
