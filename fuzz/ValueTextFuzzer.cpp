#include "fuzz/ValueTextProperty.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const bool loaded = LoadLanguage(RULEWARD_BIN_FOLDER, "English");
    const QByteArray input(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    const std::string problem = loaded ? ValueTextProperty::Try(input) : "the language library is missing";
    if (!problem.empty()) {
        std::fprintf(stderr, "%s\n", problem.c_str());
        std::abort();
    }
    return 0;
}
