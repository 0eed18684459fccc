#include "engines/ActiveUnit.h"

#include <utility>

namespace {

std::function<int()>& Provider() {
    static std::function<int()> provider;
    return provider;
}

} // namespace

int ActiveLengthUnit() {
    return Provider() ? Provider()() : NoActiveUnit;
}

void SetActiveLengthUnitProvider(std::function<int()> provider) {
    Provider() = std::move(provider);
}
