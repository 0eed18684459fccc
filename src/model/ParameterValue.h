// What differs between the data types of parameters: the text form of a value, how two are compared, and
// who owns them.
#pragma once

#include "platform/Format.h"
#include "platform/Text.h"

template <class T> struct ValueForm;

// A value as it stands in a file. A text that is no number reads as zero.
template <> struct ValueForm<int> {
    static CString Format(int value) { return FormatInt(value); }
    static int Parse(const CString& text) {
        int value = 0;
        ParseInt(text, value);
        return value;
    }
};

template <> struct ValueForm<long> {
    static CString Format(long value) { return FormatInt(value); }
    static long Parse(const CString& text) {
        long value = 0;
        ParseLong(text, value);
        return value;
    }
};

template <> struct ValueForm<unsigned long> {
    static CString Format(unsigned long value) { return FormatUnsigned(value); }
    static unsigned long Parse(const CString& text) {
        unsigned long value = 0;
        ParseUnsigned(text, value);
        return value;
    }
};

template <> struct ValueForm<bool> {
    static CString Format(bool value) { return value ? QStringLiteral("1") : QStringLiteral("0"); }
    static bool Parse(const CString& text) { return text != u"0"; }
};

template <> struct ValueForm<double> {
    static CString Format(double value) { return FormatDouble(value); }
    static double Parse(const CString& text) {
        double value = 0;
        ParseDouble(text, value);
        return value;
    }
};

template <> struct ValueForm<CString*> {
    static CString Format(const CString* value) { return value ? *value : CString(); }
    static CString* Parse(const CString& text) { return new CString(text); } // owned by the caller
};

// Dates are kept in no file and have no text.
template <> struct ValueForm<COleDateTime*> {
    static CString Format(const COleDateTime*) { return {}; }
    static COleDateTime* Parse(const CString&) { return nullptr; }
};

// Texts are compared by their content. Their overload takes no pointers to constants: the template would
// match better then, and compare the pointers.
template <class T> bool SameValue(const T& a, const T& b) {
    return a == b;
}
inline bool SameValue(CString* a, CString* b) {
    return a && b ? *a == *b : a == b;
}

template <class T> T CopyValue(const T& value) {
    return value;
}
inline CString* CopyValue(CString* value) {
    return value ? new CString(*value) : nullptr;
}
inline COleDateTime* CopyValue(COleDateTime* value) {
    return value ? new COleDateTime(*value) : nullptr;
}

template <class T> void FreeValue(const T&) {}
inline void FreeValue(CString* value) {
    delete value;
}
inline void FreeValue(COleDateTime* value) {
    delete value;
}
