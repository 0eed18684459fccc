// The tokeniser through which all comma-separated value texts pass, and the number filter of value boxes.
#pragma once

#include "platform/Text.h"

// Splits a text once and steps through its tokens.
class gtStrtok {
public:
    // Each character of `delimiters` separates. A run of them counts as one and empty tokens vanish.
    gtStrtok(const CString& text, const CString& delimiters);
    virtual ~gtStrtok() = default;

    int GetCount() const { return Count; }

    // The token at `index`, which becomes the current one; the empty text where there is none.
    CString GetToken(int index);

    // Each moves to a token and hands it out; false, with nothing changed, where no such token exists.
    bool GetFirst(CString& out);
    bool GetNext(CString& out);
    bool GetPrevious(CString& out);
    bool GetLast(CString& out);

private:
    bool MoveTo(int index, CString& out);

    int Count = 0;
    int Current = 0; // -1 where there are no tokens
    CStringArray Tokens;
};

// Copies the digits and points of `text` into `out` and reduces the points there to the first.
// The result is a position in `out`: that of the point; without a point, the place where the last
// character was dropped; -1 where nothing was dropped either.
int ExtractNumber(const CString& text, CString& out);

// Removes every point but the first. The result is the position of that point, -1 without one.
int NormalizeDecimalPoint(CString& text);
