// The place of several boxes that have one label. The label's key goes to the first of them; as the buddy of
// the label itself a box would be ticked by that key.
#pragma once

#include <QWidget>

class CBoxPanel : public QWidget {
    Q_OBJECT

public:
    explicit CBoxPanel(QWidget* parent = nullptr);

protected:
    void childEvent(QChildEvent* event) override;
};
