// The ground on which the documents' windows stand.
#pragma once

#include <QMdiArea>

class CMDIClientWnd : public QMdiArea {
    Q_OBJECT

public:
    explicit CMDIClientWnd(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
