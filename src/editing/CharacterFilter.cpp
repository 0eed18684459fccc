#include "editing/CharacterFilter.h"

CString CharacterFilter::Admitted(const CString& text) const {
    CString admitted;
    for (const QChar character : text)
        if (!Refuses(character))
            admitted.append(character);
    return admitted;
}
