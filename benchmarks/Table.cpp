#include "Table.h"

#include <cstdio>

bool PrintTable(std::initializer_list<std::vector<Figure> (*)()> measures) {
    bool allKept = true;
    for (const auto measure : measures)
        for (const Figure& figure : measure()) {
            const bool kept = figure.value <= figure.bound;
            allKept &= kept;
            std::printf("%-68s %10.2f %10.2f %s\n", figure.name.c_str(), figure.value, figure.bound,
                        kept ? "ok" : "over");
            std::fflush(stdout);
        }
    return allKept;
}
