// How many random cases a test of a property runs through: few in the daily tests, many in a campaign.
#pragma once

#include <QByteArray>

// `daily`, or that many times what the variable RULEWARD_SOAK says.
inline unsigned SeedCount(unsigned daily) {
    const int factor = qEnvironmentVariableIntValue("RULEWARD_SOAK");
    return factor > 1 ? daily * static_cast<unsigned>(factor) : daily;
}

// Where the random walks over the whole tool begin: 1, or what the variable RULEWARD_SEED says.
inline unsigned FirstSeed() {
    const int seed = qEnvironmentVariableIntValue("RULEWARD_SEED");
    return seed > 0 ? static_cast<unsigned>(seed) : 1;
}
