#include "platform/widgets/CommandRouter.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <utility>

namespace {

// The events after which a command's state may be another one.
bool MayChangeState(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::Close:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Drop:
    case QEvent::MetaCall:
    case QEvent::Timer:
    case QEvent::SockAct: return true;
    default: return false;
    }
}

} // namespace

CommandRouter::CommandRouter(CommandChain chain) : m_chain(std::move(chain)) {
    m_idle.setSingleShot(true);
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, &CommandRouter::UpdateNow);
    qApp->installEventFilter(this);
    Arm();
}

CommandRouter::~CommandRouter() = default;

QAction* CommandRouter::ActionOf(unsigned id) {
    QAction*& action = m_actions[id];
    if (!action) {
        action = new QAction(this);
        action->setObjectName(QString::number(id));
        action->setEnabled(false);
        connect(action, &QAction::triggered, this, [this, id] { Send(id); });
        Arm();
    }
    return action;
}

bool CommandRouter::Send(unsigned id) {
    CommandState state;
    CommandTarget* target = Find(id, state);
    Arm();
    const bool done = target && state.enabled && target->OnCommand(id);
    Arm();
    return done;
}

void CommandRouter::Arm() {
    if (!m_updating && !m_idle.isActive())
        m_idle.start();
}

void CommandRouter::UpdateNow() {
    if (m_updating)
        return;
    const QScopedValueRollback updating(m_updating, true);
    m_idle.stop();
    for (auto entry = m_actions.cbegin(); entry != m_actions.cend(); ++entry) {
        CommandState state;
        const bool isKnown = Find(entry.key(), state) != nullptr;
        state.enabled = isKnown && state.enabled;
        QAction& action = *entry.value();
        // Setting what stands already would still repaint menus and toolbars.
        if (action.isEnabled() != state.enabled)
            action.setEnabled(state.enabled);
        if (isKnown && action.isCheckable() && action.isChecked() != state.checked)
            action.setChecked(state.checked);
    }
    if (AfterUpdate)
        AfterUpdate();
}

bool CommandRouter::eventFilter(QObject* object, QEvent* event) {
    if (object != &m_idle && MayChangeState(event->type()))
        Arm();
    return false;
}

CommandTarget* CommandRouter::Find(unsigned id, CommandState& state) const {
    for (CommandTarget* target : m_chain())
        if (target && target->OnUpdateCommand(id, state))
            return target;
    return nullptr;
}
