// Random checks and standards for tests of properties. The same seed gives the same on every machine.
#pragma once

#include "model/Standard.h"

#include <random>

class RandomStandard {
public:
    // `Any`: whatever the model can hold, also operators that do not fit their values and texts that no
    // file can hold. `Fitting`: what a file keeps whole: values that fit, with a correction and without
    // remarks.
    enum class Taste { Any, Fitting };

    explicit RandomStandard(unsigned seed, Taste taste = Taste::Any) : m_numbers(seed), m_taste(taste) {}

    // 0 to `count` - 1.
    unsigned Below(unsigned count) { return static_cast<unsigned>(m_numbers() % count); }
    bool Chance(unsigned percent) { return Below(100) < percent; }

    int Type(); // of the top level, now and then one that is not known
    CString Text();
    double Double();

    std::unique_ptr<CCheck> Check(int type);
    // Inserts so many checks, of any types, some of them deleted.
    void Fill(CStandard& standard, unsigned count);
    // Adds, edits or deletes a check, which is nearly always a step of the history.
    void Edit(CStandard& standard);

private:
    template <class T> T Value();
    template <class T> void FillParameter(CParameter<T>& parameter);
    unsigned Operator(unsigned& count);
    void FillCheck(CCheck& check);
    void FillChildren(CCheckManager& container);
    void Rename(CCheck& check);

    std::mt19937 m_numbers;
    Taste m_taste;
};
