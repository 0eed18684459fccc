// The fixed names of the host's hole types, by hole standard code. They are not translated.
#pragma once

#include <cstdint>

// The name of a code as plain ASCII; an empty text, never null, for a code that has none.
const char* HoleNameOf(std::uint32_t key);
