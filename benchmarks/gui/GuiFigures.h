// What is measured of the windows.
#pragma once

#include "Table.h"

std::vector<Figure> KeyFigures();   // from a key to the repainted pane
std::vector<Figure> OpenFigures();  // opening a standard, and its summary
std::vector<Figure> StartFigures(); // the tool beside a bare window: time and memory
std::vector<Figure> IdleFigures();
