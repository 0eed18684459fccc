// The tip of a field whose text may be longer than the field.
#pragma once

class QLineEdit;

// Makes the whole text the tip. To be called when a tip is asked for.
void TellTextByTip(QLineEdit& field);
