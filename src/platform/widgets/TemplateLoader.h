// Makes the controls of a window from its template, a layout file of the language library.
#pragma once

#include "platform/Text.h"

#include <QByteArray>
#include <QHash>
#include <QWidget>
#include <functional>

// Puts the controls of the template, with its layout, into `window`, and tells each by the number that is its
// object name. False, with nothing told, where the library has no such template or it is damaged. A
// template's texts are numbers of the language library.
bool FillFromTemplate(unsigned number, QWidget& window, QHash<int, QWidget*>& controls);

// The same from a template's source.
bool FillFromSource(const QByteArray& source, QWidget& window, QHash<int, QWidget*>& controls);

// A class of the program's own that templates may name. To be registered once, before the first template that
// names it; a class that is not registered makes its template a damaged one.
using ControlMaker = std::function<QWidget*(QWidget* parent)>;
void RegisterControlClass(const CString& className, ControlMaker maker);
