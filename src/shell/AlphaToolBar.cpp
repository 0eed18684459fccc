#include "shell/AlphaToolBar.h"

#include <QAction>
#include <QToolButton>

CAlphaToolBar::CAlphaToolBar(QAction& action, const QString& title, QWidget* parent)
    : QToolBar(title, parent), m_button(new QToolButton(this)) {
    setMovable(false);
    setFloatable(false);
    setObjectName("DisplayToolBar");
    auto* space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(space);
    action.setCheckable(true);
    m_button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_button->setDefaultAction(&action);
    m_button->setObjectName("ShowAllButton");
    addWidget(m_button);
    m_button->setAutoRaise(false); // text alone is not known for a button without its frame
}
