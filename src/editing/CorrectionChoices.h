// The value to which a parameter is corrected, and the choices for it, without a window.
#pragma once

#include "platform/Text.h"

#include <QList>

// How a correction is entered. Every further style shows pictures as well.
enum CorrectionStyle : int { NumberEntry = 0, TextEntry = 1, ImageEntry = 2, FurtherImageEntry = 4 };

struct CorrectionChoices {
    CStringArray Strings; // the choices as texts
    QList<int> Numbers;   // the choices as numbers of bitmaps
    int HasValue = 0;     // above 0 when the choice is a real value
    int SelectedIndex = -1;
    CString Text;          // the value
    unsigned Operator = 0; // of the parameter, an operator code
    int EntryStyle = NumberEntry;

    bool ShowsImages() const { return EntryStyle == ImageEntry || EntryStyle >= FurtherImageEntry; }
    // Whether the choices are words, which are never typed into a field of numbers.
    bool TakesWords() const;
    qsizetype Count() const { return ShowsImages() ? Numbers.size() : Strings.size(); }
    CString ChoiceAt(qsizetype index) const;      // the value that choosing this entry gives
    qsizetype IndexOf(const CString& text) const; // without regard to case; -1 where it is no choice

    // Takes over new choices. Under the same operator the text that the user chose stands where it still
    // satisfies them.
    void SetChoices(const CorrectionChoices& record);

    // The text to show. Where there is no value, one is made of the first choice and kept; empty where none
    // can be made.
    CString MakeDisplayText();

    // Chooses an entry; nothing happens for an index beyond the choices.
    void Select(qsizetype index);

    // Takes a text that the user entered. False where it does not satisfy the choices; it has been replaced
    // by one that does, or by none. An empty text is valid, and no value.
    bool CheckCorrectionText(const CString& entered);

    // The same question, with nothing changed.
    bool Satisfies(const CString& entered) const;

private:
    bool IsNumber() const { return EntryStyle == NumberEntry; }
    void TakeOver(const CorrectionChoices& record, bool keepsText);
    bool NumberSatisfies(const CString& entered) const;
    bool TextSatisfies(const CString& entered) const;
    bool HoldsNumber(double number) const;
    bool LiesBetween(double number) const;
    CString NextOutside() const;
    CString DefaultText() const;
    CString Replacement() const;
};
