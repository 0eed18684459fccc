#include "engines/TextServices.h"

gtStrtok::gtStrtok(const CString& text, const CString& delimiters) {
    qsizetype start = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        if (at < text.size() && !delimiters.contains(text[at]))
            continue;
        if (at > start)
            Tokens.append(text.mid(start, at - start));
        start = at + 1;
    }
    Count = static_cast<int>(Tokens.size());
    Current = Count > 0 ? 0 : -1;
}

bool gtStrtok::MoveTo(int index, CString& out) {
    if (index < 0 || index >= Count)
        return false;
    Current = index;
    out = Tokens[index];
    return true;
}

CString gtStrtok::GetToken(int index) {
    CString token;
    MoveTo(index, token);
    return token;
}

bool gtStrtok::GetFirst(CString& out) {
    return MoveTo(0, out);
}

bool gtStrtok::GetNext(CString& out) {
    return MoveTo(Current + 1, out);
}

bool gtStrtok::GetPrevious(CString& out) {
    return MoveTo(Current - 1, out);
}

bool gtStrtok::GetLast(CString& out) {
    return MoveTo(Count - 1, out);
}

int ExtractNumber(const CString& text, CString& out) {
    CString kept;
    int dropped = -1;
    for (const QChar c : text) {
        if ((c >= u'0' && c <= u'9') || c == u'.')
            kept.append(c);
        else
            dropped = static_cast<int>(kept.size());
    }
    out = kept;
    const int point = NormalizeDecimalPoint(out);
    return point >= 0 ? point : dropped;
}

int NormalizeDecimalPoint(CString& text) {
    const qsizetype first = text.indexOf(u'.');
    if (first >= 0 && text.indexOf(u'.', first + 1) >= 0) {
        text.remove(u'.');
        text.insert(first, u'.');
    }
    return static_cast<int>(first);
}
