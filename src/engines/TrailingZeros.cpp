#include "engines/TrailingZeros.h"

void StripTrailingZeros(CString& text) {
    if (text.indexOf(u'.', 1) < 0)
        return;
    qsizetype size = text.size();
    while (text[size - 1] == u'0')
        --size;
    if (text[size - 1] == u'.')
        --size;
    text.truncate(size);
}
