// A list box of font families in which each name stands in its own face.
#pragma once

#include "editing/ChoiceList.h"

class CFontList : public CChoiceList {
    Q_OBJECT

public:
    explicit CFontList(QWidget* parent = nullptr);

    // Takes the families that this machine has, in the order in which it tells them.
    void FillWithInstalled();

private:
    class FaceDelegate;
};
