// Commands: each is one QAction, whatever menus, toolbars and shortcuts show it. Who answers a command is
// asked afresh each time: the first target of the chain that knows it. Whether it is enabled and checked is
// asked when the program goes idle, so that nobody has to tell about every change.
#pragma once

#include "platform/Text.h"

#include <QAction>
#include <QHash>
#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

struct CommandState {
    bool enabled = true;
    bool checked = false;
};

// One that answers commands: a view, a document, a frame, the application.
class CommandTarget {
public:
    virtual ~CommandTarget() = default;
    // Runs the command; false where it is not this target's.
    virtual bool OnCommand(unsigned id) = 0;
    // Tells the state of a command that is this target's; false where it is not. Runs often: must be cheap.
    virtual bool OnUpdateCommand(unsigned id, CommandState& state) = 0;
};

// From the chain's first target to its last. Null entries are left out.
using CommandChain = std::function<std::vector<CommandTarget*>()>;

class CommandRouter : public QObject {
    Q_OBJECT

public:
    // Watches the whole program's events while it lives, so that each is followed by an update.
    explicit CommandRouter(CommandChain chain);
    ~CommandRouter() override;

    // The action of a command, made on first use. The router owns it; a command that nobody knows is
    // disabled, and stays checked or unchecked as it was.
    QAction* ActionOf(unsigned id);

    // Runs a command where its state, asked afresh, is enabled. False where it is disabled or nobody's.
    bool Send(unsigned id);

    // Asks for an update when the program goes idle. To be called where state changes outside of an event.
    void Arm();
    bool IsIdlePending() const { return m_idle.isActive(); }
    // Updates all actions at once, and then runs `AfterUpdate`.
    void UpdateNow();

    // Called after each update, for what is neither enabled nor checked: counts, titles.
    std::function<void()> AfterUpdate;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    CommandTarget* Find(unsigned id, CommandState& state) const;

    CommandChain m_chain;
    QHash<unsigned, QAction*> m_actions;
    QTimer m_idle;
    bool m_updating = false;
};
