// The check boxes of a pane that stand for the values which a parameter may have.
#pragma once

#include "platform/widgets/ControlHost.h"

#include <vector>

class CCheck;

struct ValueBox {
    int number; // of the control
    int value;
};

class BoxGroup {
public:
    // The boxes of a window, which outlives this, in the order in which their values are written. The
    // parameter is one of whole numbers. A number without a box is left out.
    BoxGroup(const ControlHost& window, unsigned parameter, std::vector<ValueBox> boxes);

    const std::vector<ValueBox>& Boxes() const { return m_boxes; }

    // Gives each picture box the picture, in its own size, that a value list has for its value.
    void ShowPictures(int parameterType);

    void SetEnabled(bool isEnabled);
    void Clear();

    // Ticks the boxes of the parameter's values and no others; none for a parameter that is not in force. A
    // value without a box is passed over.
    void Load(const CCheck& check);

    // Requires one of the ticked values; with no box ticked the parameter is empty and not in force.
    void Store(CCheck& check) const;

private:
    const ControlHost& m_window;
    unsigned m_parameter;
    std::vector<ValueBox> m_boxes;
};
