#include "fuzz/MergeProperty.h"
#include "fuzz/ScratchFolder.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const ScratchFolder folder;
    static const MergePropertyRoom room(folder.Path());
    const std::string problem = room.Try({reinterpret_cast<const char*>(bytes), size});
    if (!problem.empty()) {
        std::fprintf(stderr, "%s\n", problem.c_str());
        std::abort();
    }
    return 0;
}
