#include "fuzz/XmlProperty.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    if (!LoadLanguage(RULEWARD_BIN_FOLDER, "English")) {
        std::fprintf(stderr, "The English language library is missing from %s.\n", RULEWARD_BIN_FOLDER);
        std::exit(1);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static XmlRoom room;
    const QByteArray document(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    const std::string problem = room.Try(document);
    if (!problem.empty()) {
        std::fprintf(stderr, "%s\n", problem.c_str());
        std::abort();
    }
    return 0;
}
