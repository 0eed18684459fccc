// A button of the catalogue bar: image and text of one check. It shows the state of the check's command and
// sends it.
#pragma once

#include "platform/Text.h"

#include <QAbstractButton>

class QAction;

class CatalogueButton : public QAbstractButton {
    Q_OBJECT

public:
    // `action` is the command's; it must outlive the button. The text is that of the catalogue bar.
    CatalogueButton(QAction& action, const CString& buttonText, const QIcon& buttonIcon, QWidget* parent);

    QSize sizeHint() const override;

    static constexpr int Height = 28;
    static constexpr int TextAt = 32; // of the text, from the left edge

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override {} // what is down follows the command's state, not the click
    bool event(QEvent* event) override;

private:
    void Follow();

    QAction& m_action;
};
