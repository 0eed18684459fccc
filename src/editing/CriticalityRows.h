// The rows of a box of criticalities, in the order of their codes.
#pragma once

class QComboBox;

void FillCriticalityRows(QComboBox& combo);

// The row of a check's criticality; that of an unknown one is 1.
int RowOfCriticality(unsigned criticality);
