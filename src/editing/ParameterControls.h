// How parameters with a list of codes go between a check and the lists and boxes of a pane. What the template
// or the check lacks is passed over. Boxes are set without a word; a list that is shown anew tells so.
#pragma once

#include "model/Check.h"
#include "platform/widgets/ControlHost.h"

#include <span>

// The row of a list that stands for a code.
struct CodedRow {
    unsigned text; // its number in the language library
    long code;
};

// Puts a parameter out of force.
template <class T> CParameter<T>& Emptied(CParameter<T>& parameter) {
    parameter.ClearValues();
    parameter.Operator = 0;
    return parameter;
}

// A CChoiceList. Codes that have no row are not shown.
void FillCodedRows(const ControlHost& pane, int list, std::span<const CodedRow> rows);
void LoadCodedRows(const ControlHost& pane, int list, const CParameter<long>* parameter);
void StoreCodedRows(const ControlHost& pane, int list, CParameter<long>* parameter);

// A box of the choices any, yes and no, of which the last two are written under `op`.
void FillYesNo(const ControlHost& pane, int combo, const CString& name);
void LoadYesNo(const ControlHost& pane, int combo, const CParameter<int>* parameter);
void StoreYesNo(const ControlHost& pane, int combo, CParameter<int>* parameter, unsigned op);

// The check box by which an entry takes its values from the document.
void LoadDocumentBox(const ControlHost& pane, int box, const CCheck& check);
// Writes it, and tells whether it is ticked.
bool StoreDocumentBox(const ControlHost& pane, int box, CCheck& check);
