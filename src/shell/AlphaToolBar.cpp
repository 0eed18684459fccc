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
    m_button->setAutoRaise(false); // a button of text alone is not known for one without its frame
    addWidget(m_button);
}
