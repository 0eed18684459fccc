// What a tour does beside its steps: it numbers their pictures, says what each shows, and remembers what did
// not hold.
#pragma once

#include "platform/Text.h"

#include <QImage>

class TourSteps {
public:
    explicit TourSteps(const CString& outFolder) : m_out(outFolder) {}

    // Saves the picture of a step as "<number>-<name>.png" and prints its path with what it shows.
    void Shoot(const QImage& picture, const CString& name, const CString& says);
    // Prints a result that is to be looked at.
    void Tell(const CString& file, const CString& says);
    void Expect(bool holds, const CString& what);
    bool AllHeld() const { return m_failures == 0; }

private:
    CString m_out;
    int m_count = 0;
    int m_failures = 0;
};
