// The keys that lock: what their lamps show, where the system tells it.
#pragma once

#include "platform/Text.h"

struct KeyStates {
    bool caps = false;
    bool num = false;
    bool scroll = false;

    bool operator==(const KeyStates&) const = default;
};

// `folder` holds a folder for each lamp of the machine, "<device>::capslock" and the like; what cannot be
// read is off.
KeyStates ReadKeyStates(const CString& folder = "/sys/class/leds");
