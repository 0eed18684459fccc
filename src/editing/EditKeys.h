// The keys that belong to an editor and not to the window around it.
#pragma once

class QKeyEvent;

// End, Home and the arrows, with whatever modifiers.
bool IsCaretKey(const QKeyEvent& event);

// One of the letters A, C, V, X and Z, with which a text is selected, copied, pasted, cut and undone.
bool IsClipboardLetter(const QKeyEvent& event);

bool HasCtrl(const QKeyEvent& event);
