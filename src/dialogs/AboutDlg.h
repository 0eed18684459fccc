// Tells name and version of the program.
#pragma once

#include "platform/widgets/ControlHost.h"

#include <QDialog>

class CAboutDlg : public QDialog, public ControlHost {
    Q_OBJECT

public:
    explicit CAboutDlg(QWidget* parent = nullptr);
};
