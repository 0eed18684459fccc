// The value lists: which text and which picture each of the host's codes has, for every parameter kind.
#pragma once

#include <cstdint>
#include <span>

// `count` keys from `firstKey` on; the n-th of them has the n-th number from `firstId` on.
struct IdRun {
    std::uint32_t firstKey;
    std::uint32_t firstId;
    std::uint32_t count = 1;
};

// Runs in the order of their keys, which are the host's own and leave gaps on purpose.
using IdMap = std::span<const IdRun>;

// How the values of a kind are shown and found.
enum class ListUse {
    None,      // measured, coloured or free text: no list
    Number,    // shown as a plain number
    YesNo,     // shown by one of two texts
    ShownOnly, // shown by its text, but neither its number nor its text is looked up
    Texts,     // a list of texts
    Pictures,  // a list of pictures with texts
    Options,   // numbers of the host, never shown
};

inline constexpr int NoValueKind = -1;

struct ValueList {
    ListUse use = ListUse::None;
    int valueKind = NoValueKind; // 0 text or plain number, 1 measured, 2 colour, 3 choice of pictures
    IdMap texts;                 // string numbers; the host's option numbers in a list of options
    IdMap images;                // bitmap numbers
};

// The list of a parameter kind; one without any entry for a number that is no kind.
const ValueList& ValueListOf(int type);

// The number of `key`, or 0 where the map lacks it.
std::uint32_t IdOf(IdMap map, std::uint32_t key);

// What the search found, with the key where it did.
struct FoundKey {
    bool found = false;
    std::uint32_t key = 0;
};

// The first key, in the order of the keys, whose number fulfils `matches`.
template <class Predicate> FoundKey FindKey(IdMap map, Predicate matches) {
    for (const IdRun& run : map)
        for (std::uint32_t i = 0; i < run.count; ++i)
            if (matches(run.firstId + i))
                return {true, run.firstKey + i};
    return {};
}
