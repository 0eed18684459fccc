#include "shell/StatusPanes.h"

#include "platform/Format.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "platform/widgets/Look.h"

#include <QLabel>

CStatusPanes::CStatusPanes(QWidget* parent) : QStatusBar(parent), m_message(new QLabel(this)) {
    setObjectName("59393");
    setSizeGripEnabled(false);
    m_message->setObjectName("0");
    m_message->setText(LoadString(StatusReady));
    m_message->setContentsMargins(Look::Margin, 0, Look::Margin, 0);
    addWidget(m_message, 1);
    m_count = AddPane(59143);
    for (size_t key = 0; key < m_keys.size(); ++key) {
        const unsigned number = 59137 + static_cast<unsigned>(key);
        m_keys[key] = AddPane(number);
        m_keys[key]->setText(LoadString(number));
    }
    SetLiveCheckCount(0);
    ShowKeyStates({});
}

QLabel* CStatusPanes::AddPane(unsigned number) {
    auto* pane = new QLabel(this);
    pane->setObjectName(CString::number(number));
    pane->setAlignment(Qt::AlignCenter);
    pane->setContentsMargins(Look::Margin, 0, Look::Margin, 0);
    addPermanentWidget(pane);
    return pane;
}

void CStatusPanes::SetLiveCheckCount(int count) {
    if (m_shownCount == count)
        return;
    m_shownCount = count;
    m_count->setText(LoadString(59143).replace("%d", FormatInt(count)));
    m_count->setFixedWidth(m_count->fontMetrics().horizontalAdvance(m_count->text()) + 2 * Look::Margin + 2);
}

void CStatusPanes::ShowKeyStates(const KeyStates& states) {
    const bool isOn[] = {states.caps, states.num, states.scroll};
    for (size_t key = 0; key < m_keys.size(); ++key)
        m_keys[key]->setEnabled(isOn[key]);
}
