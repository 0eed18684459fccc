// A figure has a bound that it must keep. Where it can it is a ratio of two times of one run, so that a slow
// or busy machine changes little; else its name tells its unit.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

struct Figure {
    std::string name;
    double value;
    double bound;
};

// Prints a line for each figure, as soon as it is there: name, value, bound. Whether all keep their bounds.
bool PrintTable(std::initializer_list<std::vector<Figure> (*)()> measures);
