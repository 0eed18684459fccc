// What is measured of the core and of kvstd.
#pragma once

#include "Table.h"

#include <functional>
#include <string>
#include <vector>

// The median time of a task in nanoseconds, measured by the benchmark library over several repetitions.
double MedianTime(const std::string& name, const std::function<void()>& task);

// The medians of tasks that are measured in turns, so that a busy machine slows all of them alike.
std::vector<double> MedianTimes(const std::vector<std::function<void()>>& tasks, int rounds);

std::vector<Figure> FileFigures();    // reading and writing beside the bare libraries
std::vector<Figure> ListingFigures(); // listings and value lists
std::vector<Figure> MergeFigures();
std::vector<Figure> ProcessFigures(); // kvstd as a whole
